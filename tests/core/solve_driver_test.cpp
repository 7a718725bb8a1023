#include "core/solve_driver.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "core/erasing.h"
#include "core/number.h"

namespace numerello {
namespace {

class RecordingLearner : public Learner {
  public:
    std::vector<std::pair<std::string, std::string>> messages;
    bool agrees = true;

    void MessageBox(std::string_view title, std::string_view text) override {
        messages.emplace_back(title, text);
    }
    bool Confirm(std::string_view title, std::string_view text) override {
        messages.emplace_back(title, text);
        return agrees;
    }
    std::optional<std::string> InputBox(std::string_view, std::string_view) override {
        return std::nullopt;
    }
};

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

void WriteTwoLines(SolveRun& run) {
    run.problem.log.Write(run.problem.typed.ProblemText, "");
    run.problem.log.Write("worked", "because");
}

void FailAfterALine(SolveRun& run, FailureKind kind) {
    run.problem.log.Write("begun", "");
    run.problem.columns.ColumnAdd = true;
    run.problem.graph.GraphMode = 3;
    run.problem.playback.DrawingRow = 243;
    run.problem.controls.GraphEnabled = true;
    throw Failure(kind);
}

void RecordFiveLines(SolveRun& run) {
    for (int i = 1; i <= 5; ++i) {
        run.problem.log.StepLevels[i] = 2;
        run.problem.log.Write(WholeText(i), "");
    }
}

constexpr SolverRow kRows[] = {
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

constexpr Solvers kSolvers{
    kRows, [](const Problem& problem) { return problem.typed.ProblemText != "unfinished"; }};

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
    RecordingLearner learner;
    RecordingStage stage{problem};
};

TEST_F(Compute, FillsTheLogAndShowsItsFirstLine) {
    EXPECT_EQ(Solve(), std::nullopt);
    EXPECT_EQ(problem.log.StepCount, 3);
    EXPECT_EQ(problem.log.StepText[1], "40");
    EXPECT_EQ(problem.log.StepText[2], "worked");
    EXPECT_EQ(problem.log.StepNote[2], "because");
    EXPECT_EQ(stage.calls, (std::vector<std::string>{"CloseGraph", "ShowNextStep"}));
    EXPECT_TRUE(learner.messages.empty());
}

TEST_F(Compute, AColumnRequestIsDrawnInPlaceOfLines) {
    EXPECT_EQ(Solve(200), std::nullopt);
    EXPECT_EQ(stage.calls, (std::vector<std::string>{"CloseGraph", "DrawColumns"}));
    EXPECT_TRUE(problem.columns.ColumnAdd);
    EXPECT_EQ(problem.playback.ShownStep, 2);
}

TEST_F(Compute, ALaterPartOfASolveFailsLikeTheSolve) {
    problem.topic.InstructionText = "Enter a number.";
    problem.columns.ColumnAdd = true;
    problem.playback.ShownStep = 5;
    problem.log.StepNote[0] = "Add 4 and 5 (9).";
    EXPECT_EQ(Trapped(problem, learner, [] { throw Failure(FailureKind::Overflow); }),
              FailureKind::Overflow);
    ASSERT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(learner.messages[0].first, "Overflow!");
    EXPECT_FALSE(problem.columns.Any());
    EXPECT_EQ(problem.playback.ShownStep, 0);
    EXPECT_EQ(problem.log.StepNote[0], "Enter a number.");
}

TEST_F(Compute, ALaterPartThatSucceedsChangesNothing) {
    bool ran = false;
    problem.columns.ColumnAdd = true;
    EXPECT_EQ(Trapped(problem, learner, [&ran] { ran = true; }), std::nullopt);
    EXPECT_TRUE(ran);
    EXPECT_TRUE(problem.columns.ColumnAdd);
    EXPECT_TRUE(learner.messages.empty());
}

TEST_F(Compute, LocksSolveAndTypingAndOpensPrintAndSave) {
    problem.controls.Light = EntryControls::LightPicture::Incorrect;
    problem.controls.LightToolTip = "Incorrect input.";
    problem.controls.Pencil = EntryControls::PencilPicture::Eraser;
    Solve();
    EXPECT_FALSE(problem.controls.SolveEnabled);
    EXPECT_FALSE(problem.playback.TypingEnabled);
    EXPECT_TRUE(problem.controls.PrintEnabled);
    EXPECT_TRUE(problem.controls.SaveEnabled);
    EXPECT_FALSE(problem.controls.GraphEnabled);
    EXPECT_EQ(problem.controls.Light, EntryControls::LightPicture::Neutral);
    EXPECT_EQ(problem.controls.LightToolTip, "");
    EXPECT_EQ(problem.controls.Pencil, EntryControls::PencilPicture::Pencil);
}

TEST_F(Compute, ForgetsTheLinesOfTheLastSolveButNotTheNotes) {
    problem.log.StepText[0] = "zero";
    problem.log.StepText[9] = "old";
    problem.log.StepNote[9] = "old note";
    problem.log.StepCount = 10;
    Solve();
    EXPECT_EQ(problem.log.StepCount, 3);
    EXPECT_EQ(problem.log.StepText[9], "");
    EXPECT_EQ(problem.log.StepNote[9], "old note");
    EXPECT_EQ(problem.log.StepText[0], "zero");
}

TEST_F(Compute, PlaysStepByStepWhenTicked) {
    problem.settings.mnuShowStep = true;
    Solve();
    EXPECT_EQ(problem.playback.ShownStep, 2);
    EXPECT_EQ(problem.playback.ShowAllSteps, 0);
}

TEST_F(Compute, ShowsAllAtOnceWhenUnticked) {
    problem.settings.mnuShowStep = false;
    Solve();
    EXPECT_EQ(problem.playback.ShownStep, 0);
    EXPECT_EQ(problem.playback.ShowAllSteps, -1);
}

TEST_F(Compute, ThinsARecordedLogBeforeItIsShown) {
    problem.settings.DetailLevel = 2;
    Solve(91);
    EXPECT_EQ(stage.shownStepCount, 5);
    EXPECT_EQ(problem.log.StepCount, 5);
    EXPECT_EQ(problem.log.StepText[3], "4");
}

TEST_F(Compute, OverflowHasItsMessage) {
    EXPECT_EQ(Solve(54), FailureKind::Overflow);
    ASSERT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(learner.messages[0].first, "Overflow!");
    EXPECT_EQ(
        learner.messages[0].second,
        "The entered problem caused a data overflow.  Click the 'Erase' button and try again.");
}

TEST_F(Compute, DivisionByZeroHasItsMessage) {
    EXPECT_EQ(Solve(55), FailureKind::DivisionByZero);
    ASSERT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(learner.messages[0].first, "Division by 0!");
    EXPECT_EQ(learner.messages[0].second,
              "The problem entered caused division by 0 (which is not mathematically possible).  "
              "Click the 'Erase' button and try again.");
}

TEST_F(Compute, AllElseHasTheFormatMessage) {
    EXPECT_EQ(Solve(56), FailureKind::Format);
    ASSERT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(learner.messages[0].first, "");
    EXPECT_EQ(learner.messages[0].second,
              "The format of the entered problem was not recognized.  Click the 'Erase' button and "
              "try again.");
}

TEST_F(Compute, AMistakeOfOursHasTheFormatMessageToo) {
    EXPECT_EQ(Solve(59), FailureKind::Format);
    ASSERT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(learner.messages[0].first, "");
}

TEST_F(Compute, AnUnansweredPromptEndsWithoutAMessage) {
    EXPECT_EQ(Solve(57), FailureKind::Unanswered);
    EXPECT_TRUE(learner.messages.empty());
    EXPECT_FALSE(problem.controls.SolveEnabled);
    EXPECT_EQ(problem.playback.ShownStep, 0);
    EXPECT_EQ(stage.calls, (std::vector<std::string>{"CloseGraph"}));
}

TEST_F(Compute, AFailureWhileTheFirstLineIsShownIsTrappedToo) {
    stage.failsToShow = true;
    EXPECT_EQ(Solve(53), FailureKind::Overflow);
    ASSERT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(learner.messages[0].first, "Overflow!");
    EXPECT_FALSE(problem.controls.SolveEnabled);
    EXPECT_EQ(problem.playback.ShownStep, 0);
}

TEST_F(Compute, ALogOfOneLineHasNoNoteToShow) {
    problem.log.StepNote[2] = "Enter a number.";
    Solve(60);
    EXPECT_EQ(problem.playback.ShownStep, 2);
    EXPECT_EQ(problem.log.StepNote[2], "");
    EXPECT_EQ(stage.calls, (std::vector<std::string>{"CloseGraph", "ShowNextStep"}));
}

TEST_F(Compute, WithoutALineNothingIsShown) {
    Solve(61);
    EXPECT_EQ(stage.calls, (std::vector<std::string>{"CloseGraph"}));
}

TEST_F(Compute, TooManyLinesAreAFormatFailure) {
    EXPECT_EQ(Solve(58), FailureKind::Format);
    EXPECT_EQ(problem.log.StepCount, 201);
}

TEST_F(Compute, AFailureKeepsTheLogShowsNothingAndStaysLocked) {
    Solve(54);
    EXPECT_EQ(problem.log.StepCount, 2);
    EXPECT_EQ(problem.log.StepText[1], "begun");
    EXPECT_EQ(stage.calls, (std::vector<std::string>{"CloseGraph"}));
    EXPECT_FALSE(problem.controls.SolveEnabled);
    EXPECT_FALSE(problem.controls.GraphEnabled);
    EXPECT_TRUE(problem.controls.PrintEnabled);
    EXPECT_TRUE(problem.controls.SaveEnabled);
    EXPECT_FALSE(problem.playback.TypingEnabled);
    EXPECT_EQ(problem.playback.ShownStep, 0);
    EXPECT_FALSE(problem.columns.ColumnAdd);
    EXPECT_EQ(problem.graph.GraphMode, 0);
    EXPECT_EQ(problem.playback.DrawingRow, std::nullopt);
}

TEST_F(Compute, AnUnfinishedLineFailsBeforeAnyStep) {
    problem.typed.ProblemText = "unfinished";
    EXPECT_EQ(Solve(53), FailureKind::Format);
    EXPECT_EQ(problem.log.StepCount, 1);
}

TEST_F(Compute, TheLineOfABoxTopicIsNotLookedAt) {
    problem.typed.ProblemText = "unfinished";
    EXPECT_EQ(Solve(20), std::nullopt);
}

TEST_F(Compute, NoTopicSolvesNothingAndLocksSolve) {
    EXPECT_EQ(Solve(0), std::nullopt);
    EXPECT_EQ(problem.log.StepCount, 1);
    EXPECT_EQ(stage.calls, (std::vector<std::string>{"CloseGraph"}));
    EXPECT_FALSE(problem.controls.SolveEnabled);
    EXPECT_TRUE(learner.messages.empty());
}

TEST_F(Compute, DropsTheRequestsOfTheProblemBefore) {
    problem.columns.ColumnDivide = true;
    problem.graph.GraphMode = 3;
    problem.playback.DrawingRow = 243;
    Solve();
    EXPECT_FALSE(problem.columns.ColumnDivide);
    EXPECT_EQ(problem.graph.GraphMode, 0);
    EXPECT_EQ(problem.playback.DrawingRow, std::nullopt);
}

class Clear : public Compute {
  protected:
    Clear() {
        problem.topic.InstructionText = "Enter a number.  Example: 8";
        problem.typed.ExprChars[0] = "4";
        problem.typed.ExprCharCount = 1;
        problem.boxes.Text[3] = "12";
        problem.boxes.ListIndex = {2, 5, 4};
        problem.input.InputError = "why";
        problem.playback.LineEndX = 300;
        problem.playback.LineEndY = 100;
        Solve();
        problem.playback.CurrentPage = 12;
        problem.columns.ColumnMultiply = true;
        problem.graph.GraphMode = 2;
        problem.playback.DrawingRow = 243;
        problem.controls.Pencil = EntryControls::PencilPicture::Eraser;
        learner.messages.clear();
        stage.calls.clear();
    }
};

TEST_F(Clear, AsksFirst) {
    learner.agrees = false;
    EXPECT_FALSE(clear_Click(problem, learner, stage));
    ASSERT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(learner.messages[0].first, "Clear Problem");
    EXPECT_EQ(learner.messages[0].second, "This will erase your entire problem.");
    EXPECT_EQ(problem.typed.ExprCharCount, 1);
    EXPECT_EQ(problem.log.StepCount, 3);
    EXPECT_TRUE(stage.calls.empty());
}

TEST_F(Clear, WipesTheProblem) {
    EXPECT_TRUE(clear_Click(problem, learner, stage));
    EXPECT_EQ(problem.typed.ExprCharCount, 0);
    EXPECT_EQ(problem.log.StepCount, 1);
    EXPECT_EQ(problem.log.StepNote[2], problem.topic.InstructionText);
    EXPECT_EQ(problem.input.InputError, "");
    EXPECT_EQ(problem.boxes.Text[3], "");
    EXPECT_EQ(problem.boxes.ListIndex, (std::array<int, 3>{-1, -1, 0}));
    EXPECT_EQ(problem.playback.LineEndX, 0);
    EXPECT_EQ(problem.playback.LineEndY, 0);
    EXPECT_EQ(problem.playback.CurrentPage, 0);
    EXPECT_EQ(stage.blankedPage, 9);
    EXPECT_EQ(stage.calls, (std::vector<std::string>{"CloseExplanation", "BlankSheets"}));
    EXPECT_FALSE(problem.columns.ColumnMultiply);
    EXPECT_EQ(problem.graph.GraphMode, 0);
    EXPECT_EQ(problem.playback.DrawingRow, std::nullopt);
}

TEST_F(Clear, LocksTheCommandsAndUnlocksTyping) {
    clear_Click(problem, learner, stage);
    EXPECT_FALSE(problem.controls.SolveEnabled);
    EXPECT_FALSE(problem.controls.PrintEnabled);
    EXPECT_FALSE(problem.controls.SaveEnabled);
    EXPECT_FALSE(problem.controls.GraphEnabled);
    EXPECT_EQ(problem.controls.Light, EntryControls::LightPicture::Neutral);
    EXPECT_EQ(problem.controls.LightToolTip, "Click the red light for incorrect input details.");
    EXPECT_EQ(problem.controls.Pencil, EntryControls::PencilPicture::Pencil);
    EXPECT_TRUE(problem.playback.TypingEnabled);
}

TEST_F(Clear, TheInstructionIsTheNoteAgain) {
    problem.playback.ShownStep = 7;
    clear_Click(problem, learner, stage);
    EXPECT_EQ(problem.playback.ShownStep, 7);
    EXPECT_EQ(problem.log.StepNote[7], "Enter a number.  Example: 8");
    EXPECT_EQ(problem.log.StepNote[0], "Enter a number.  Example: 8");
    EXPECT_EQ(problem.log.StepNote[2], "");
}

}  // namespace
}  // namespace numerello
