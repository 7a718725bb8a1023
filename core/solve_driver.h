#pragma once

#include <functional>
#include <optional>
#include <span>

#include "core/failure.h"
#include "core/learner.h"
#include "core/problem.h"
#include "core/stage.h"

namespace numerello {

/// What a solver gets: the problem to work, and the learner it may have to ask.
struct SolveRun {
    Problem& problem;
    Learner& learner;
};

using Solver = void (*)(SolveRun&);

struct SolverRow {
    int ProblemType;
    Solver solve;
};

/// The dispatch, composed above the solvers and handed to the driver.
struct Solvers {
    std::span<const SolverRow> rows;

    /// Whether the typed line is a problem that somebody finished.
    bool (*lineIsComplete)(const Problem&);

    /// Null for a code without a solver.
    Solver Find(int ProblemType) const;
};

/// Works the entered problem: fills the step log, thins it, shows its first line and locks Solve
/// until the next problem. Any failure on the way ends in FailSolve; its kind is returned, and the
/// log keeps what was recorded up to it.
std::optional<FailureKind> compute_Click(Problem& problem, const Solvers& solvers, Learner& learner,
                                         Stage& stage);

/// Runs a part of a solve under the driver's trap: any failure ends in FailSolve, and its kind is
/// returned.
std::optional<FailureKind> Trapped(Problem& problem, Learner& learner,
                                   const std::function<void()>& part);

/// Ends a solve that failed, also one that fails while it is played: the learner gets the message
/// of the failure, nothing more is shown, and all stays locked until the problem is erased.
void FailSolve(Problem& problem, FailureKind kind, Learner& learner);

}  // namespace numerello
