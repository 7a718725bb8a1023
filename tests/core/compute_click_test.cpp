#include "tests/core/solve_driver_fixture.h"

namespace numerello {
namespace {

const std::string kOverflow =
    "Overflow!: The entered problem caused a data overflow.  Click the 'Erase' button and try "
    "again.";
const std::string kFormat =
    "The format of the entered problem was not recognized.  Click the 'Erase' button and try "
    "again.";

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
    EXPECT_EQ(learner.messages, std::vector<std::string>{kOverflow});
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
    EXPECT_EQ(learner.messages, std::vector<std::string>{kOverflow});
}

TEST_F(Compute, DivisionByZeroHasItsMessage) {
    EXPECT_EQ(Solve(55), FailureKind::DivisionByZero);
    EXPECT_EQ(learner.messages,
              std::vector<std::string>{"Division by 0!: The problem entered caused division by 0 "
                                       "(which is not mathematically possible).  "
                                       "Click the 'Erase' button and try again."});
}

TEST_F(Compute, AllElseHasTheFormatMessage) {
    EXPECT_EQ(Solve(56), FailureKind::Format);
    EXPECT_EQ(learner.messages, std::vector<std::string>{kFormat});
}

TEST_F(Compute, AMistakeOfOursHasTheFormatMessageToo) {
    EXPECT_EQ(Solve(59), FailureKind::Format);
    EXPECT_EQ(learner.messages, std::vector<std::string>{kFormat});
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
    EXPECT_EQ(learner.messages, std::vector<std::string>{kOverflow});
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

}  // namespace
}  // namespace numerello
