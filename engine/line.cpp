#include <algorithm>

#include "core/bounds.h"
#include "engine/display.h"
#include "engine/engine.h"

/// What the passes read of the line, and how they put the next one together.
namespace numerello {

const Group& Engine::GroupAt(std::size_t group) const {
    CheckIndex(static_cast<int>(group), static_cast<int>(tables.groups.size()) - 1);
    return tables.groups[group];
}

std::string_view Engine::TokenAt(std::size_t at) const {
    return at < tokens.size() ? std::string_view(tokens[at]) : std::string_view();
}

bool Engine::Holds(std::string_view token) const {
    return std::find(tokens.begin(), tokens.end(), token) != tokens.end();
}

bool Engine::HoldsRoot() const {
    return std::any_of(tokens.begin(), tokens.end(), [](const std::string& token) {
        return token.find('~') != std::string::npos;
    });
}

/// A term as the line has it, sign first.
std::string Engine::Written(const Term& term) const {
    return WithoutEmphasis(TextBetween(tokens, term.begin, term.end));
}

/// A piece of a line as the learner sees it.
std::string Engine::Shown(std::string_view text) const {
    return ShownText(text, problem.topic.ProblemType);
}

void Engine::ReplaceBetween(std::size_t begin, std::size_t end, std::string_view text) {
    std::string line = TextBetween(tokens, 0, begin);
    line += text;
    line += TextBetween(tokens, end, tokens.size());
    SetText(line);
}

void Engine::ReplaceGroup(std::size_t group, std::string_view text) {
    ReplaceBetween(GroupAt(group).begin, GroupAt(group).end, text);
}

void Engine::Because(std::string_view reason, int level) {
    problem.log.StepReason = reason;
    problem.log.StepLevel = level;
}

}  // namespace numerello
