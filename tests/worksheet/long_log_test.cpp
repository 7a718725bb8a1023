#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

// 81 + 46 k stays within 589 up to k = 11: a sheet holds twelve rows, the first one of them the
// typed line. So ten sheets hold the lines 2 to 120 of a log.
constexpr int kRows = 12;
constexpr int kLastThatFits = 120;

class LongLogTest : public Desk {
  protected:
    void SetUp() override {
        Choose(53);
        Type("40");
    }

    void ExpectLine(int line) {
        const int place = line - 1;
        SCOPED_TRACE(line);
        ExpectRow(sheet.SheetAt(place / kRows), place % kRows, BaseOf(place % kRows),
                  Text("line ", WholeText(line)));
    }

    int CheckCount() {
        std::size_t count = 0;
        for (int i = 0; i < Worksheet::kSheetCount; ++i) {
            count += ChecksOf(sheet.SheetAt(i)).size();
        }
        return static_cast<int>(count);
    }
};

TEST_F(LongLogTest, AFullSheetIsFollowedByTheNext) {
    SolveInLines<30>();
    while (ShownStep() < 12) {
        sheet.blinker_Click();
    }
    EXPECT_EQ(sheet.StackingOrder(), std::vector<int>{0});
    EXPECT_EQ(RowsOf(First()).size(), 12U);
    EXPECT_TRUE(First().arrowVisible);
    EXPECT_EQ(problem.playback.CurrentPage, 0);

    sheet.blinker_Click();
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{0, 1}));
    EXPECT_EQ(problem.playback.CurrentPage, 1);
    const Sheet& second = sheet.SheetAt(1);
    EXPECT_TRUE(second.visible);
    EXPECT_EQ(second.left, 175);
    EXPECT_EQ(second.top, 25);
    EXPECT_EQ(second.width, 800);
    EXPECT_EQ(second.height, 657);
    EXPECT_EQ(second.title, Text(problem.topic.TopicTitle, " (Page 2)"));
    ExpectRow(second, 0, 109.8, "line 13");
    EXPECT_FALSE(First().arrowVisible);
    EXPECT_TRUE(second.arrowVisible);
    EXPECT_TRUE(sheet.ArrowVisible());
    EXPECT_NEAR(second.arrowLeft, EndOf("line 13") + 10, 1e-6);
    EXPECT_NEAR(second.arrowTop, 96.8, 1e-6);
}

TEST_F(LongLogTest, TheSheetsLieFannedOutTheLastOnTop) {
    problem.settings.mnuShowStep = false;
    SolveInLines<40>();
    for (int line = 2; line <= 40; ++line) {
        ExpectLine(line);
    }
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{0, 1, 2, 3}));
    for (int i = 0; i <= 3; ++i) {
        EXPECT_EQ(sheet.SheetAt(i).left, 150 + 25 * i);
        EXPECT_EQ(sheet.SheetAt(i).top, 25 * i);
    }
    EXPECT_FALSE(sheet.SheetAt(4).visible);
    EXPECT_EQ(ChecksOf(sheet.SheetAt(3)).size(), 1U);
    EXPECT_EQ(CheckCount(), 1);
}

TEST_F(LongLogTest, TheNextSheetFollowsTheLastWhereItLiesNow) {
    SolveInLines<30>();
    while (ShownStep() < 13) {
        sheet.blinker_Click();
    }
    sheet.Centre(1300);
    EXPECT_EQ(First().left, 250);
    EXPECT_EQ(sheet.SheetAt(1).left, 275);
    EXPECT_EQ(sheet.SheetAt(1).top, 25);
    while (ShownStep() < 25) {
        sheet.blinker_Click();
    }
    EXPECT_EQ(sheet.SheetAt(2).left, 300);
    EXPECT_EQ(sheet.SheetAt(2).top, 50);
}

TEST_F(LongLogTest, ALineThatWrapsGoesOverToTheNextSheet) {
    SolveInLines<30>();
    while (ShownStep() < 11) {
        sheet.blinker_Click();
    }
    // In the last row of the sheet 87 letters pass the edge; a row lower would be past 589.
    problem.log.StepText[12] = std::string(90, 'x');
    sheet.blinker_Click();
    EXPECT_EQ(problem.playback.CurrentPage, 1);
    ExpectRow(First(), 11, BaseOf(11), std::string(87, 'x') + "...");
    ExpectRow(sheet.SheetAt(1), 0, 88, "xxx");
    EXPECT_FALSE(First().arrowVisible);
    EXPECT_NEAR(sheet.SheetAt(1).arrowLeft, 67 + 3 * kCharacter + 6, 1e-6);
    EXPECT_NEAR(sheet.SheetAt(1).arrowTop, 75, 1e-6);
}

TEST_F(LongLogTest, AnArrowAtTheTopOfASheetStaysOnIt) {
    SolveInLines<30>();
    while (ShownStep() < 11) {
        sheet.blinker_Click();
    }
    // The 87th letter passes the edge and is the last: the line ends at the top of the new sheet.
    problem.log.StepText[12] = std::string(87, 'x');
    sheet.blinker_Click();
    EXPECT_EQ(problem.playback.LineEndY, 0);
    EXPECT_TRUE(sheet.SheetAt(1).arrowVisible);
    EXPECT_EQ(sheet.SheetAt(1).arrowLeft, 73);
    EXPECT_EQ(sheet.SheetAt(1).arrowTop, 0);
}

TEST_F(LongLogTest, TenSheetsAreFilledToTheLastRow) {
    problem.settings.mnuShowStep = false;
    SolveInLines<kLastThatFits>();
    EXPECT_TRUE(learner.messages.empty());
    ExpectLine(kLastThatFits);
    EXPECT_EQ(problem.playback.CurrentPage, 9);
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    ASSERT_EQ(ChecksOf(sheet.SheetAt(9)).size(), 1U);
    EXPECT_NEAR(ChecksOf(sheet.SheetAt(9))[0].y, BaseOf(11) - 15, 1e-6);
}

const std::vector<std::string> kOneMessage{"An error occurred while displaying information."};

TEST_F(LongLogTest, PastTheTenthSheetTheLearnerIsToldOnce) {
    problem.settings.mnuShowStep = false;
    SolveInLines<kLastThatFits + 5>();
    EXPECT_EQ(learner.messages, kOneMessage);
    ExpectLine(kLastThatFits);
    EXPECT_EQ(RowsOf(sheet.SheetAt(9)).size(), 12U);
    EXPECT_EQ(CheckCount(), 0);
    EXPECT_EQ(problem.playback.CurrentPage, 9);
    EXPECT_EQ(problem.log.StepCount, kLastThatFits + 6);
    EXPECT_EQ(ShownStep(), kLastThatFits + 5);
    EXPECT_FALSE(sheet.ArrowVisible());
}

TEST_F(LongLogTest, PastTheTenthSheetTheArrowDoesNotComeBack) {
    SolveInLines<kLastThatFits + 5>();
    for (int i = 0; i < kLastThatFits + 10; ++i) {
        sheet.blinker_Click();
    }
    EXPECT_EQ(learner.messages, kOneMessage);
    EXPECT_EQ(ShownStep(), kLastThatFits + 1);
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_FALSE(sheet.Timer2Enabled());
    EXPECT_EQ(CheckCount(), 0);
    EXPECT_EQ(problem.playback.CurrentPage, 9);
}

TEST_F(LongLogTest, TheLastLineAlonePastTheTenthSheetGetsNoCheckMark) {
    SolveInLines<kLastThatFits + 1>();
    while (sheet.ArrowVisible()) {
        sheet.blinker_Click();
    }
    EXPECT_EQ(ShownStep(), kLastThatFits + 1);
    EXPECT_EQ(learner.messages, kOneMessage);
    EXPECT_EQ(CheckCount(), 0);
}

TEST_F(LongLogTest, WhatWasDrawnIsShownBeforeTheLearnerIsTold) {
    problem.settings.mnuShowStep = false;
    bool shownBefore = false;
    sheet.OnChange([&] {
        shownBefore =
            shownBefore || (learner.messages.empty() && RowsOf(sheet.SheetAt(9)).size() == 12);
    });
    SolveInLines<kLastThatFits + 5>();
    EXPECT_TRUE(shownBefore);
}

TEST_F(LongLogTest, EachProblemIsToldOfAnew) {
    problem.settings.mnuShowStep = false;
    SolveInLines<kLastThatFits + 5>();
    EraseProblem(problem, sheet);
    EXPECT_EQ(sheet.StackingOrder(), std::vector<int>{0});
    Type("40");
    SolveInLines<kLastThatFits + 5>();
    EXPECT_EQ(learner.messages.size(), 2U);
    ExpectLine(2);
    ExpectLine(kLastThatFits);
}

}  // namespace
}  // namespace numerello
