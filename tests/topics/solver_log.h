#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/solvers.h"
#include "core/silent_learner.h"

namespace numerello {

/// The lines of a log with their reasons.
using Log = std::vector<std::pair<std::string, std::string>>;

inline Log LogOf(const Problem& problem) {
    Log log;
    for (int i = 1; i < problem.log.StepCount; ++i) {
        log.emplace_back(problem.log.StepText[i], problem.log.StepNote[i]);
    }
    return log;
}

/// A problem of the code with the text on its line, boxes and lists as the form opens them.
inline Problem ProblemOf(int code, std::string_view text = "") {
    Problem problem;
    problem.topic.ProblemType = code;
    problem.typed.ProblemText = text;
    return problem;
}

/// How solving through the table of solvers ends, nothing when it works; `problem` keeps what was
/// logged.
inline std::optional<FailureKind> FailureOf(Problem& problem) {
    const Solver solve = AllSolvers().Find(problem.topic.ProblemType);
    if (solve == nullptr) {
        ADD_FAILURE() << "no solver for " << problem.topic.ProblemType;
        return std::nullopt;
    }
    SilentLearner learner;
    SolveRun run{problem, learner};
    try {
        solve(run);
    } catch (const Failure& failure) {
        return failure.Kind();
    }
    return std::nullopt;
}

inline Problem Solved(Problem problem) {
    EXPECT_EQ(FailureOf(problem), std::nullopt) << problem.typed.ProblemText;
    return problem;
}

inline Problem Solved(int code, std::string_view text, int RoundDigits = 2) {
    Problem problem = ProblemOf(code, text);
    problem.settings.RoundDigits = RoundDigits;
    return Solved(std::move(problem));
}

/// That solving fails so, with these lines kept.
inline void ExpectFailure(Problem problem, FailureKind kind, const Log& kept) {
    EXPECT_EQ(FailureOf(problem), kind) << problem.typed.ProblemText;
    EXPECT_EQ(LogOf(problem), kept) << problem.typed.ProblemText;
}

}  // namespace numerello
