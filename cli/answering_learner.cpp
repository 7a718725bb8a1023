#include "cli/answering_learner.h"

#include <utility>

namespace numerello {

AnsweringLearner::AnsweringLearner(std::vector<std::string> answers)
    : answers(std::move(answers)) {}

void AnsweringLearner::MessageBox(std::string_view title, std::string_view text) {
    messages.push_back({{"title", title}, {"text", text}});
}

bool AnsweringLearner::Confirm(std::string_view /*title*/, std::string_view /*text*/) {
    return true;
}

std::optional<std::string> AnsweringLearner::InputBox(std::string_view /*title*/,
                                                      std::string_view prompt) {
    prompts.push_back(prompt);
    if (nextAnswer >= answers.size()) {
        return std::nullopt;
    }
    return answers[nextAnswer++];
}

}  // namespace numerello
