#pragma once

#include <algorithm>
#include <vector>

#include "tests/topics/solver_log.h"

namespace numerello {

/// A problem of a box topic with these texts in Text1, Text2 and so on, set as they stand.
inline Problem Boxed(int code, const std::vector<std::string>& texts, int RoundDigits = 2) {
    Problem problem = ProblemOf(code);
    std::copy(texts.begin(), texts.end(), problem.boxes.Text.begin());
    problem.settings.RoundDigits = RoundDigits;
    return problem;
}

/// The lines of such a problem, solved.
inline Log BoxedLog(int code, const std::vector<std::string>& texts, int RoundDigits = 2) {
    return LogOf(Solved(Boxed(code, texts, RoundDigits)));
}

/// The problem's lines up to a failure of this kind.
inline Log LogUpTo(FailureKind kind, Problem problem) {
    EXPECT_EQ(FailureOf(problem), kind);
    return LogOf(problem);
}

}  // namespace numerello
