#pragma once

#include <string_view>

#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "core/erasing.h"
#include "core/solve_driver.h"
#include "core/text.h"

namespace numerello {

/// The problem as the entry form of this topic opens it.
inline Problem Opened(std::string_view caption) {
    Problem problem;
    MersenneSource random;
    Stage stage;
    TreeViewSelect(caption, problem.topic, FixedClock(0), random);
    EraseProblem(problem, stage);
    return problem;
}

inline void Type(Problem& problem, std::string_view keys) {
    for (const std::string& key : Characters(keys)) {
        Form_KeyPress(problem, key);
    }
}

inline Problem Typed(std::string_view caption, std::string_view keys) {
    Problem problem = Opened(caption);
    Type(problem, keys);
    return problem;
}

}  // namespace numerello
