#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

class EraseTest : public Desk {
  protected:
    /// A solution of 16 lines in mid-play: the arrow waits behind line 15 on the second sheet.
    void PlayOntoTheSecondSheet() {
        Choose(53);
        Type("40");
        SolveInLines<16>();
        while (ShownStep() < 15) {
            sheet.blinker_Click();
        }
        sheet.Timer2_Timer();
    }

    void ExpectPlay() {
        EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{0, 1}));
        EXPECT_TRUE(sheet.ArrowVisible());
        EXPECT_TRUE(sheet.Timer2Enabled());
        EXPECT_TRUE(sheet.ArrowFrame());
        EXPECT_EQ(RowsOf(sheet.SheetAt(1)).size(), 3U);
    }
};

TEST_F(EraseTest, InMidPlayLeavesOneEmptySheet) {
    PlayOntoTheSecondSheet();
    ExpectPlay();
    EXPECT_TRUE(clear_Click(problem, learner, sheet));

    EXPECT_EQ(sheet.StackingOrder(), std::vector<int>{0});
    EXPECT_TRUE(First().visible);
    EXPECT_FALSE(sheet.SheetAt(1).visible);
    EXPECT_FALSE(sheet.SheetAt(1).arrowVisible);
    EXPECT_TRUE(First().surface.Marks().empty());
    EXPECT_TRUE(sheet.SheetAt(1).surface.Marks().empty());
    EXPECT_EQ(problem.playback.CurrentPage, 0);
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_FALSE(sheet.Timer2Enabled());
    EXPECT_FALSE(sheet.ArrowFrame());
    EXPECT_EQ(problem.playback.LineEndX, 0);
    EXPECT_EQ(problem.playback.LineEndY, 0);
    EXPECT_EQ(Note(), problem.topic.InstructionText);
}

TEST_F(EraseTest, NotAgreedChangesNothing) {
    PlayOntoTheSecondSheet();
    learner.agrees = false;
    EXPECT_FALSE(clear_Click(problem, learner, sheet));
    ExpectPlay();
    EXPECT_EQ(problem.playback.CurrentPage, 1);
}

TEST_F(EraseTest, CentresTheFirstSheetInTheViewOfTheMoment) {
    PlayOntoTheSecondSheet();
    sheet.Centre(1200);
    EXPECT_EQ(First().left, 200);
    EXPECT_TRUE(clear_Click(problem, learner, sheet));
    EXPECT_EQ(First().left, 200);
    EXPECT_EQ(First().top, 0);
}

TEST_F(EraseTest, TheNextProblemStartsOver) {
    PlayOntoTheSecondSheet();
    EXPECT_TRUE(clear_Click(problem, learner, sheet));
    Type("7");
    ExpectRow(First(), 0, BaseOf(0), "7");
    problem.settings.mnuShowStep = false;
    SolveInLines<13>();
    EXPECT_EQ(RowsOf(First()).size(), 12U);
    EXPECT_EQ(RowsOf(sheet.SheetAt(1)).size(), 1U);
    ExpectRow(sheet.SheetAt(1), 0, BaseOf(0), "line 13");
}

TEST_F(EraseTest, OpeningAnewLeavesOneEmptySheetToo) {
    PlayOntoTheSecondSheet();
    problem.topic.TopicTitle = "Medians";
    sheet.Open(1000);
    EXPECT_EQ(sheet.StackingOrder(), std::vector<int>{0});
    EXPECT_EQ(First().title, "Medians");
    EXPECT_EQ(First().left, 100);
    EXPECT_TRUE(First().surface.Marks().empty());
    EXPECT_TRUE(sheet.SheetAt(1).surface.Marks().empty());
    EXPECT_FALSE(sheet.SheetAt(1).arrowVisible);
    EXPECT_EQ(problem.playback.CurrentPage, 0);
    EXPECT_EQ(problem.playback.LineEndX, 0);
    EXPECT_EQ(problem.playback.LineEndY, 0);
    EXPECT_FALSE(sheet.Timer2Enabled());
    EXPECT_FALSE(sheet.ArrowFrame());
}

TEST_F(EraseTest, ABoxTopicBeginsInItsRowAgain) {
    Choose(20);
    SolveInLines<3>();
    EXPECT_TRUE(clear_Click(problem, learner, sheet));
    EXPECT_TRUE(First().surface.Marks().empty());
    SolveInLines<3>();
    ExpectRow(First(), 0, 201.8, "line 2");
}

}  // namespace
}  // namespace numerello
