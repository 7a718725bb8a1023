#include "app/column_worksheet.h"

#include "core/erasing.h"
#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

/// A column problem on the sheets of an entry form.
class ColumnWorksheetTest : public testing::Test {
  protected:
    void Enter(int code, const std::string& Text1, const std::string& Text2) {
        MersenneSource random;
        TreeViewSelect(FindTopicByCode(code)->caption, problem.topic, FixedClock(0), random);
        sheet.Open(1100);
        EraseProblem(problem, sheet);
        problem.boxes.Text[0] = Text1;
        problem.boxes.Text[1] = Text2;
    }

    std::optional<FailureKind> Solve() {
        return compute_Click(problem, AllSolvers(), learner, sheet);
    }

    void SolveToTheEnd() {
        Solve();
        while (sheet.ArrowVisible()) {
            sheet.blinker_Click();
        }
    }

    std::string Note() { return problem.log.StepNote[problem.playback.ShownStep]; }
    const Sheet& First() const { return sheet.SheetAt(0); }

    void ExpectCheckAt(double x, double y) {
        ASSERT_EQ(ChecksOf(First()).size(), 1U);
        EXPECT_NEAR(ChecksOf(First())[0].x, x, 1e-6);
        EXPECT_NEAR(ChecksOf(First())[0].y, y, 1e-6);
    }

    Problem problem;
    PlainMetrics metrics;
    NotingLearner learner;
    ColumnWorksheet sheet{problem, metrics, learner};
};

TEST_F(ColumnWorksheetTest, TheArrowLeadsFromTheNumbersToTheCheckMark) {
    Enter(200, "47", "38");
    EXPECT_EQ(Solve(), std::nullopt);
    EXPECT_FALSE(problem.controls.SolveEnabled);
    EXPECT_TRUE(problem.controls.PrintEnabled);
    EXPECT_EQ(problem.columns.ColumnTop, "47");
    EXPECT_EQ(problem.columns.ColumnBottom, "38");
    EXPECT_EQ(problem.playback.ShownStep, 2);
    EXPECT_EQ(Note(), "Add 47 and 38.");
    EXPECT_TRUE(sheet.ArrowVisible());
    EXPECT_EQ(First().arrowLeft, 150);
    EXPECT_EQ(First().arrowTop, 326);
    EXPECT_TRUE(ChecksOf(First()).empty());

    sheet.blinker_Click();
    EXPECT_EQ(problem.playback.ShownStep, 3);
    EXPECT_EQ(Note().substr(0, 14), "Add 7 and 8 (1");
    EXPECT_TRUE(sheet.ArrowVisible());
    EXPECT_TRUE(problem.columns.ColumnAdd);

    sheet.blinker_Click();
    EXPECT_EQ(problem.playback.ShownStep, 4);
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_FALSE(problem.columns.Any());
    ExpectCheckAt(145, 324);
    EXPECT_EQ(Note(), "Add 4 and 3 (7) , then add the carried remainder of 1 to the total (8).");

    const std::size_t marks = First().surface.Marks().size();
    sheet.blinker_Click();
    EXPECT_EQ(First().surface.Marks().size(), marks);
}

TEST_F(ColumnWorksheetTest, EveryStepIsDrawnAnewSoThatNothingIsDoubled) {
    Enter(202, "123", "45");
    Solve();
    // Two numbers with their sign and the rule; then a digit or more with each step.
    std::size_t marks = First().surface.Marks().size();
    EXPECT_EQ(marks, 3U + 3 + 1);
    for (int step = 0; step < 5; ++step) {
        sheet.blinker_Click();
        EXPECT_LE(First().surface.Marks().size() - marks, 2U);
        marks = First().surface.Marks().size();
    }
}

TEST_F(ColumnWorksheetTest, AllAtOnceThereIsNoArrowButTheWholeWork) {
    problem.settings.mnuShowStep = false;
    Enter(201, "523", "347");
    Solve();
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_FALSE(sheet.Timer2Enabled());
    EXPECT_FALSE(problem.columns.Any());
    EXPECT_EQ(problem.playback.ShownStep, 0);
    EXPECT_EQ(Note(), "Subtract 3 from 4 (1).");
    ExpectCheckAt(165, 372.6 - 15);
}

TEST_F(ColumnWorksheetTest, UntickedInTheWaitTheRestStaysUnseen) {
    Enter(200, "47", "38");
    Solve();
    const std::size_t marks = First().surface.Marks().size();
    sheet.mnuShowStep_Click(false);
    EXPECT_EQ(Note(), "Enter numbers into both boxes.");
    sheet.blinker_Click();
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_EQ(First().surface.Marks().size(), marks);
    EXPECT_TRUE(ChecksOf(First()).empty());
}

TEST_F(ColumnWorksheetTest, TickedAgainInTheWaitTheDrawingBeginsAgain) {
    Enter(200, "1234", "5678");
    Solve();
    const std::size_t marks = First().surface.Marks().size();
    sheet.blinker_Click();
    sheet.blinker_Click();
    sheet.mnuShowStep_Click(false);
    sheet.mnuShowStep_Click(true);
    sheet.blinker_Click();
    EXPECT_EQ(First().surface.Marks().size(), marks);
    EXPECT_EQ(problem.playback.ShownStep, 3);
    for (int step = 0; step < 4; ++step) {
        EXPECT_TRUE(sheet.ArrowVisible());
        sheet.blinker_Click();
    }
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
}

TEST_F(ColumnWorksheetTest, TheCheckMarkOfTwoZerosStandsBehindTheirBar) {
    for (const bool stepwise : {true, false}) {
        problem.settings.mnuShowStep = stepwise;
        Enter(203, "0", "0");
        Solve();
        EXPECT_FALSE(sheet.ArrowVisible());
        // Step by step the frame alone is drawn, and ends at 125; else "r" and 0 stand behind it.
        ExpectCheckAt(stepwise ? 130 : 114.196078 + 40 + kCharacter + 5, 277 - 15);
        EXPECT_EQ(learner.messages,
                  (std::vector<std::string>{"Division by 0 is mathematically impossible."}));
        learner.messages.clear();
    }
}

TEST_F(ColumnWorksheetTest, AFailureWhileItIsPlayedEndsAsOneWhileItIsSolved) {
    Enter(203, "95", "7");
    Solve();
    sheet.blinker_Click();
    ASSERT_TRUE(sheet.ArrowVisible());
    problem.boxes.Text[0] = "9999999999";
    sheet.blinker_Click();
    EXPECT_EQ(learner.messages,
              std::vector<std::string>{"Overflow!: The entered problem caused a data overflow.  "
                                       "Click the 'Erase' button and try again."});
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_FALSE(problem.columns.Any());
    EXPECT_TRUE(ChecksOf(First()).empty());
    EXPECT_EQ(Note(), problem.topic.InstructionText);
}

TEST_F(ColumnWorksheetTest, EraseInTheMiddleForgetsTheColumns) {
    Enter(201, "1000", "1");
    Solve();
    sheet.blinker_Click();
    EraseProblem(problem, sheet);
    EXPECT_FALSE(problem.columns.Any());
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_TRUE(First().surface.Marks().empty());
    EXPECT_EQ(Note(), problem.topic.InstructionText);
}

TEST_F(ColumnWorksheetTest, TheNextProblemBeginsWithItsFirstDrawing) {
    for (const auto& [Text1, note] :
         {std::pair{"47", "Add 47 and 38."}, std::pair{"9999", "Add 9999 and 38."}}) {
        Enter(200, Text1, "38");
        Solve();
        EXPECT_EQ(Note(), note);
        EXPECT_TRUE(ChecksOf(First()).empty());
        sheet.blinker_Click();
    }
}

TEST_F(ColumnWorksheetTest, TheLongestDivisionsGetARowOfPaperMore) {
    // The tenth product is printed at 320 + 9 * 38 = 662, its difference at 681.
    Enter(203, "2147483647", "2");
    SolveToTheEnd();
    EXPECT_EQ(First().height, 657 + 46);
    EraseProblem(problem, sheet);
    EXPECT_EQ(First().height, 657);

    // With nine digits the last difference, at 643, would touch the lower edge.
    Enter(203, "999999999", "2");
    SolveToTheEnd();
    EXPECT_EQ(First().height, 657 + 46);
    Enter(203, "99999999", "1");
    SolveToTheEnd();
    EXPECT_EQ(First().height, 657);
    Enter(202, "9999999999", "999999");
    SolveToTheEnd();
    EXPECT_EQ(First().height, 657);
}

}  // namespace
}  // namespace numerello
