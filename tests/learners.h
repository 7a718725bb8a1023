#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/learner.h"

namespace numerello {

/// Agrees to everything unless told otherwise, and cancels every prompt.
class NotingLearner : public Learner {
  public:
    /// What was told and what was asked for OK or Cancel, behind its title and a colon where it has
    /// one.
    std::vector<std::string> messages;
    bool agrees = true;

    void MessageBox(std::string_view title, std::string_view text) override {
        messages.push_back(Titled(title, text));
    }
    bool Confirm(std::string_view title, std::string_view text) override {
        messages.push_back(Titled(title, text));
        return agrees;
    }
    std::optional<std::string> InputBox(std::string_view, std::string_view) override {
        return std::nullopt;
    }

  protected:
    static std::string Titled(std::string_view title, std::string_view text) {
        return (title.empty() ? "" : std::string(title) + ": ") + std::string(text);
    }
};

/// Answers prompts from a list, and cancels those behind its end.
class PromptedLearner : public NotingLearner {
  public:
    explicit PromptedLearner(std::vector<std::string> answers) : answers(std::move(answers)) {}

    /// The prompts, behind their titles as messages are.
    std::vector<std::string> asked;

    std::optional<std::string> InputBox(std::string_view title, std::string_view prompt) override {
        asked.push_back(Titled(title, prompt));
        return asked.size() <= answers.size() ? std::optional(answers[asked.size() - 1])
                                              : std::nullopt;
    }

  private:
    std::vector<std::string> answers;
};

}  // namespace numerello
