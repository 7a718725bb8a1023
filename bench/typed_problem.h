#pragma once

#include <string_view>

#include "catalogue/chooser.h"
#include "catalogue/guided_input.h"
#include "core/solve_driver.h"

namespace numerello {

class SilentLearner : public Learner {
  public:
    void MessageBox(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    std::optional<std::string> InputBox(std::string_view, std::string_view) override {
        return std::nullopt;
    }
};

/// The topic's entry form with these keys typed.
inline Problem TypedProblemOf(std::string_view caption, std::string_view keys) {
    Problem problem;
    MersenneSource random;
    Stage stage;
    TreeViewSelect(caption, problem.topic, SystemClock(), random);
    EraseProblem(problem, stage);
    for (const char key : keys) {
        Form_KeyPress(problem, std::string_view(&key, 1));
    }
    return problem;
}

}  // namespace numerello
