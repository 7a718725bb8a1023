#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

/// Ticking and unticking Show Step-By-Step.
class ShowStepTest : public Desk {
  protected:
    void SetUp() override {
        Choose(53);
        Type("40");
    }

    /// The arrow waits behind line 4 of 6.
    void WaitAtLineFour() {
        SolveInLines<6>();
        sheet.blinker_Click();
        sheet.blinker_Click();
        EXPECT_EQ(ShownStep(), 4);
    }
};

TEST_F(ShowStepTest, UntickedInTheWaitTheArrowFlashesOnAndItsClickEndsPlayback) {
    WaitAtLineFour();
    sheet.mnuShowStep_Click(false);
    EXPECT_EQ(ShownStep(), 0);
    EXPECT_EQ(problem.playback.ShowAllSteps, -1);
    EXPECT_FALSE(problem.settings.mnuShowStep);
    EXPECT_EQ(Note(), problem.topic.InstructionText);
    EXPECT_TRUE(sheet.ArrowVisible());
    EXPECT_TRUE(sheet.Timer2Enabled());

    sheet.blinker_Click();
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_FALSE(sheet.Timer2Enabled());
    EXPECT_EQ(RowsOf(First()).size(), 4U);
    EXPECT_TRUE(ChecksOf(First()).empty());
    EXPECT_EQ(ShownStep(), 0);
}

TEST_F(ShowStepTest, TickedAgainInTheWaitLineThreeIsDrawnOnceMore) {
    WaitAtLineFour();
    sheet.mnuShowStep_Click(false);
    sheet.mnuShowStep_Click(true);
    EXPECT_EQ(ShownStep(), 2);
    EXPECT_EQ(problem.playback.ShowAllSteps, 0);
    EXPECT_EQ(Note(), "reason 2");

    sheet.blinker_Click();
    EXPECT_EQ(ShownStep(), 3);
    ExpectRow(First(), 3, BaseOf(3), "line 4");
    ExpectRow(First(), 4, BaseOf(4), "line 3");
    EXPECT_TRUE(sheet.ArrowVisible());
    sheet.blinker_Click();
    sheet.blinker_Click();
    sheet.blinker_Click();
    ExpectRow(First(), 7, BaseOf(7), "line 6");
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
}

TEST_F(ShowStepTest, TickedAgainAfterTheArrowIsGoneNothingComesBack) {
    WaitAtLineFour();
    sheet.mnuShowStep_Click(false);
    sheet.blinker_Click();
    sheet.mnuShowStep_Click(true);
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_EQ(ShownStep(), 0);
    EXPECT_EQ(problem.playback.ShowAllSteps, 0);
    EXPECT_TRUE(problem.settings.mnuShowStep);
}

TEST_F(ShowStepTest, TickedTwiceInTheWaitPlaybackGoesOn) {
    WaitAtLineFour();
    sheet.mnuShowStep_Click(true);
    EXPECT_EQ(ShownStep(), 4);
    sheet.blinker_Click();
    ExpectRow(First(), 4, BaseOf(4), "line 5");
}

TEST_F(ShowStepTest, BesideAFinishedSheetTheNoteStays) {
    SolveInLines<3>();
    sheet.blinker_Click();
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
    sheet.mnuShowStep_Click(false);
    EXPECT_EQ(ShownStep(), 3);
    EXPECT_EQ(Note(), "reason 3");
    EXPECT_EQ(problem.playback.ShowAllSteps, -1);
    sheet.mnuShowStep_Click(true);
    EXPECT_EQ(ShownStep(), 3);
    EXPECT_EQ(problem.playback.ShowAllSteps, 0);
}

TEST_F(ShowStepTest, WhileTypingOnlyTheNextSolveIsChanged) {
    sheet.mnuShowStep_Click(false);
    EXPECT_EQ(ShownStep(), 0);
    EXPECT_EQ(Note(), problem.topic.InstructionText);
    SolveInLines<4>();
    EXPECT_EQ(RowsOf(First()).size(), 4U);
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
}

}  // namespace
}  // namespace numerello
