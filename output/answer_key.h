#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/solve_driver.h"
#include "output/practice_test.h"

namespace numerello {

/// A problem of a practice test, worked: its lines stand in the log, or its columns are still asked
/// for. What a message would have told is the last line of the log.
struct WorkedProblem {
    std::string line;  ///< the test's, with its number: "3) 12+5"
    Problem problem;
};

/// Works the problems of a test as they stand there, also where a learner could not type so many
/// digits. A polynomial that is to be evaluated gets no values, so it is worked as far as it goes
/// without; a linear equation is solved for y where it has one.
std::vector<WorkedProblem> AnswerKey(std::span<const TestProblem> problems,
                                     const AnswerSettings& settings, const Solvers& solvers);

}  // namespace numerello
