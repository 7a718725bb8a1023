#include "typeset/notation_walk.h"

#include <utility>

#include "core/failure.h"
#include "core/text.h"

namespace numerello {

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
