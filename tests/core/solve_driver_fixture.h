#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/number.h"
#include "core/solve_driver.h"
#include "tests/learners.h"

namespace numerello {

/// Writes down what the driver asks of sheets and windows.
class RecordingStage : public Stage {
  public:
    explicit RecordingStage(const Problem& problem) : problem(problem) {}

    std::vector<std::string> calls;
    int shownStepCount = 0;  ///< StepCount when the first line was shown
    int blankedPage = -1;    ///< CurrentPage when the sheets were blanked
    bool failsToShow = false;

    void CloseGraph() override { calls.emplace_back("CloseGraph"); }
    void CloseExplanation() override { calls.emplace_back("CloseExplanation"); }
    void ShowNextStep() override {
        calls.emplace_back("ShowNextStep");
        shownStepCount = problem.log.StepCount;
        if (failsToShow) {
            throw Failure(FailureKind::Overflow);
        }
    }
    void DrawColumns() override { calls.emplace_back("DrawColumns"); }
    void BlankSheets() override {
        calls.emplace_back("BlankSheets");
        blankedPage = problem.playback.CurrentPage;
    }

  private:
    const Problem& problem;
};

inline void WriteTwoLines(SolveRun& run) {
    run.problem.log.Write(run.problem.typed.ProblemText, "");
    run.problem.log.Write("worked", "because");
}

inline void FailAfterALine(SolveRun& run, FailureKind kind) {
    run.problem.log.Write("begun", "");
    run.problem.columns.ColumnAdd = true;
    run.problem.graph.GraphMode = 3;
    run.problem.playback.DrawingRow = 243;
    run.problem.controls.GraphEnabled = true;
    throw Failure(kind);
}

inline void RecordFiveLines(SolveRun& run) {
    for (int i = 1; i <= 5; ++i) {
        run.problem.log.StepLevels[i] = 2;
        run.problem.log.Write(WholeText(i), "");
    }
}

inline constexpr SolverRow kRows[] = {
    {53, WriteTwoLines},
    {54, [](SolveRun& run) { FailAfterALine(run, FailureKind::Overflow); }},
    {55, [](SolveRun& run) { FailAfterALine(run, FailureKind::DivisionByZero); }},
    {56, [](SolveRun& run) { FailAfterALine(run, FailureKind::Format); }},
    {57, [](SolveRun& run) { FailAfterALine(run, FailureKind::Unanswered); }},
    {58,
     [](SolveRun& run) {
         for (int i = 1; i <= 201; ++i) {
             run.problem.log.Write("line", "");
         }
     }},
    {20, WriteTwoLines},
    {59, [](SolveRun&) { throw std::out_of_range("a mistake of ours"); }},
    {60, [](SolveRun& run) { run.problem.log.Write("5", ""); }},
    {61, [](SolveRun&) {}},
    {200, [](SolveRun& run) { run.problem.columns.ColumnAdd = true; }},
    {91, RecordFiveLines},
};

inline constexpr Solvers kSolvers{
    kRows, [](const Problem& problem) { return problem.typed.ProblemText != "unfinished"; }};

/// A typed problem, ready to be solved; its code, unless another is asked for, writes two lines.
class Compute : public testing::Test {
  protected:
    explicit Compute(int code = 53) {
        problem.topic.ProblemType = code;
        problem.typed.ProblemText = "40";
        problem.controls.SolveEnabled = true;
        problem.playback.TypingEnabled = true;
    }

    std::optional<FailureKind> Solve() { return compute_Click(problem, kSolvers, learner, stage); }

    std::optional<FailureKind> Solve(int code) {
        problem.topic.ProblemType = code;
        return Solve();
    }

    Problem problem;
    NotingLearner learner;
    RecordingStage stage{problem};
};

}  // namespace numerello
