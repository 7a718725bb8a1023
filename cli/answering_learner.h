#pragma once

#include <string>
#include <vector>

#include "cli/json.h"
#include "core/learner.h"

namespace numerello {

/// Answers prompts from a list, agrees to every question and keeps what was told.
class AnsweringLearner : public Learner {
  public:
    explicit AnsweringLearner(std::vector<std::string> answers = {});

    void MessageBox(std::string_view title, std::string_view text) override;
    bool Confirm(std::string_view title, std::string_view text) override;
    std::optional<std::string> InputBox(std::string_view title, std::string_view prompt) override;

    /// [{"title","text"}], in order.
    const Json& Messages() const { return messages; }
    /// The prompts, in order.
    const Json& Prompts() const { return prompts; }

  private:
    std::vector<std::string> answers;
    std::size_t nextAnswer = 0;
    Json messages = Json::array();
    Json prompts = Json::array();
};

}  // namespace numerello
