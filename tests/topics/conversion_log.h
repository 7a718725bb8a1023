#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/solvers.h"

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

class SilentLearner : public Learner {
  public:
    void MessageBox(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    std::optional<std::string> InputBox(std::string_view) override { return std::nullopt; }
};

/// A problem of the code with the text on its line, solved through the table of solvers.
inline Problem Solved(int code, std::string_view text, int RoundDigits = 2) {
    Problem problem;
    problem.topic.ProblemType = code;
    problem.typed.ProblemText = text;
    problem.settings.RoundDigits = RoundDigits;
    SilentLearner learner;
    SolveRun run{problem, learner};
    const Solver solve = AllSolvers().Find(code);
    if (solve == nullptr) {
        ADD_FAILURE() << "no solver for " << code;
    } else {
        solve(run);
    }
    return problem;
}

/// How solving ends, nothing when it works; `problem` keeps what was logged.
inline std::optional<FailureKind> FailureOf(int code, std::string_view text, Problem& problem) {
    problem.topic.ProblemType = code;
    problem.typed.ProblemText = text;
    SilentLearner learner;
    SolveRun run{problem, learner};
    try {
        AllSolvers().Find(code)(run);
    } catch (const Failure& failure) {
        return failure.Kind();
    }
    return std::nullopt;
}

}  // namespace numerello
