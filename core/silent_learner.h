#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/learner.h"

namespace numerello {

/// Nobody is there: what is told goes unread, and every question is cancelled.
class SilentLearner : public Learner {
  public:
    void MessageBox(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return false; }
    std::optional<std::string> InputBox(std::string_view, std::string_view) override { return {}; }
};

}  // namespace numerello
