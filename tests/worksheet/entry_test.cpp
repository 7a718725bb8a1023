#include "tests/worksheet/desk.h"
#include "worksheet/entry_rows.h"

namespace numerello {
namespace {

constexpr int kInchesToYards = 53;

class EntryTest : public Desk {};

TEST_F(EntryTest, AFreshFormShowsOneEmptySheetInTheMiddle) {
    problem.topic.TopicTitle = "Inches To Yards";
    sheet.Open(kViewWidth);
    EXPECT_TRUE(First().visible);
    EXPECT_EQ(First().left, 150);
    EXPECT_EQ(First().top, 0);
    EXPECT_EQ(First().width, 800);
    EXPECT_EQ(First().height, 657);
    EXPECT_TRUE(First().surface.Marks().empty());
    EXPECT_EQ(First().surface.FontName(), "VantrelFont");
    EXPECT_EQ(First().surface.FontSize(), 12);
    EXPECT_EQ(sheet.StackingOrder(), std::vector<int>{0});
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_FALSE(sheet.Timer2Enabled());
    EXPECT_FALSE(sheet.ArrowFrame());
    for (int i = 1; i < Worksheet::kSheetCount; ++i) {
        EXPECT_FALSE(sheet.SheetAt(i).visible) << i;
    }
}

TEST_F(EntryTest, LaterSheetsCarryTheirPageNumber) {
    problem.topic.TopicTitle = "Inches To Yards";
    sheet.Open(kViewWidth);
    EXPECT_EQ(First().title, "Inches To Yards");
    EXPECT_EQ(sheet.SheetAt(1).title, "Inches To Yards (Page 2)");
    EXPECT_EQ(sheet.SheetAt(9).title, "Inches To Yards (Page 10)");
}

TEST_F(EntryTest, ThereIsNoEleventhSheet) {
    EXPECT_THROW(sheet.SheetAt(10), Failure);
    EXPECT_THROW(sheet.SheetAt(-1), Failure);
}

TEST_F(EntryTest, TheSheetNeverReachesBeyondTheLeftEdgeOfTheView) {
    sheet.Open(801);
    EXPECT_EQ(First().left, 0);
    sheet.Centre(803);
    EXPECT_EQ(First().left, 1);
    sheet.Centre(640);
    EXPECT_EQ(First().left, 0);
    sheet.Centre(1000);
    EXPECT_EQ(First().left, 100);
}

TEST_F(EntryTest, AKeyDrawsTheLineAnewInTheTypedRow) {
    Choose(kInchesToYards);
    Type("40");
    EXPECT_EQ(RowsOf(First()).size(), 1U);
    ExpectRow(First(), 0, BaseOf(0), "40");
    EXPECT_NEAR(problem.playback.LineEndX, kMargin + 2 * kCharacter - 4, 1e-6);
    EXPECT_NEAR(problem.playback.LineEndY, BaseOf(0), 1e-6);
    EXPECT_FALSE(sheet.ArrowVisible());
}

TEST_F(EntryTest, BackspaceTakesTheCharacterFromTheSheet) {
    Choose(kInchesToYards);
    Type("40\b");
    ExpectRow(First(), 0, BaseOf(0), "4");
    EXPECT_EQ(First().surface.Marks().size(), 1U);
    EXPECT_NEAR(problem.playback.LineEndX, kMargin + kCharacter - 4, 1e-6);
    Type("\b");
    EXPECT_TRUE(First().surface.Marks().empty());
    EXPECT_NEAR(problem.playback.LineEndX, 63, 1e-6);
}

TEST_F(EntryTest, OnceSolvedNoKeyTouchesTheSheet) {
    Choose(kInchesToYards);
    Type("40");
    EXPECT_EQ(Solve(), std::nullopt);
    const std::size_t marks = First().surface.Marks().size();
    Type("7\b\b");
    EXPECT_EQ(First().surface.Marks().size(), marks);
}

TEST_F(EntryTest, ABoxTopicHasNoTypedLine) {
    Choose(23);
    problem.typed.DisplayLine = "5";
    sheet.DrawTypedLine();
    EXPECT_TRUE(First().surface.Marks().empty());
}

TEST_F(EntryTest, SolutionsOfBoxTopicsBeginBelowTheirBoxes) {
    const std::vector<int> onPicture{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19};
    for (int code = 1; code <= 27; ++code) {
        SCOPED_TRACE(code);
        Choose(code);
        SolveInLines<3>();
        const bool hasPicture =
            std::find(onPicture.begin(), onPicture.end(), code) != onPicture.end();
        ExpectRow(First(), 0, hasPicture ? 293.8 : 201.8, "line 2");
        sheet.blinker_Click();
        ExpectRow(First(), 1, hasPicture ? 339.8 : 247.8, "line 3");
    }
}

TEST_F(EntryTest, TheSolversRowGoesBeforeThatOfTheTopic) {
    Choose(20);
    problem.log.StepCount = 3;
    problem.log.StepText[2] = "here";
    problem.playback.ShownStep = 2;
    problem.playback.DrawingRow = 300;
    sheet.ShowNextStep();
    ExpectRow(First(), 0, 328.8, "here");
    EXPECT_EQ(problem.playback.DrawingRow, std::nullopt);
}

TEST(EntryRowTest, ColumnTopicsChooseTheirOwn) {
    EXPECT_EQ(EntryRow(200), std::nullopt);
    EXPECT_EQ(EntryRow(203), std::nullopt);
    EXPECT_EQ(EntryRow(199), 81);
    EXPECT_EQ(EntryRow(28), 81);
}

}  // namespace
}  // namespace numerello
