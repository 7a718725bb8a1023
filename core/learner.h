#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace numerello {

/// Whoever answers for the learner: the window asks, the command line answers from a list.
class Learner {
  public:
    virtual ~Learner() = default;

    /// A message with OK alone; an empty title means that none is given.
    virtual void MessageBox(std::string_view title, std::string_view text) = 0;

    /// A question with OK and Cancel; true for OK.
    virtual bool Confirm(std::string_view title, std::string_view text) = 0;

    /// A typed answer; nothing when the learner cancels. An empty title means that none is given.
    virtual std::optional<std::string> InputBox(std::string_view title,
                                                std::string_view prompt) = 0;
};

}  // namespace numerello
