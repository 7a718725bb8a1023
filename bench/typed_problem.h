#pragma once

#include <string_view>

#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "core/erasing.h"
#include "core/silent_learner.h"
#include "core/solve_driver.h"

namespace numerello {

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
