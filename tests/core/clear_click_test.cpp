#include "core/erasing.h"
#include "tests/core/solve_driver_fixture.h"

namespace numerello {
namespace {

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
    EXPECT_EQ(learner.messages,
              std::vector<std::string>{"Clear Problem: This will erase your entire problem."});
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
