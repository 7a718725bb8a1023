#include "typeset/notation_walk.h"

#include <utility>

#include "core/failure.h"
#include "core/text.h"

namespace numerello {

namespace {

bool IsMark(std::string_view character) {
    return character.size() == 1 && std::string_view("#^~[]").find(character) != std::string::npos;
}

}  // namespace

std::vector<std::string> CharactersWithQuotedMarks(std::string_view text) {
    const std::vector<std::string> characters = Characters(text);
    std::vector<std::string> pieces;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const bool quotes = i + 2 < characters.size() && characters[i] == "'" &&
                            characters[i + 2] == "'" && IsMark(characters[i + 1]);
        if (quotes) {
            pieces.push_back("'" + characters[i + 1] + "'");
            i += 2;
        } else {
            pieces.push_back(characters[i]);
        }
    }
    return pieces;
}

NotationWalk::NotationWalk(std::vector<std::string> characters)
    : characters(std::move(characters)) {}

NotationWalk NotationWalk::Bounded(std::string_view text, std::size_t limit) {
    std::vector<std::string> characters = Characters(text);
    if (characters.size() > limit) {
        throw Failure(FailureKind::Format);
    }
    return NotationWalk(std::move(characters));
}

std::string NotationWalk::TakeBody() {
    const std::string& marker = Here();
    std::string body;
    for (Step(); !AtEnd(); Step()) {
        if (Here() == marker) {
            Step();
            return body;
        }
        body += Here();
    }
    throw Failure(FailureKind::Format);
}

}  // namespace numerello
