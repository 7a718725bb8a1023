#include "worksheet/sheet_rows.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

using Rows = std::vector<std::string>;

class SheetRowsTest : public testing::Test {
  protected:
    void PrintAt(double x, double y, const char* text) {
        sheet.surface.CurrentX = x;
        sheet.surface.CurrentY = y;
        sheet.surface.Print(text);
    }

    PlainMetrics metrics;
    Sheet sheet{
        .surface = Surface(metrics, {"VantrelFont", 12}), .newSheets = 0, .title = {}, .lines = {}};
};

TEST_F(SheetRowsTest, AreTheLinesWhereThereAreSome) {
    PrintAt(100, 300, "7");
    sheet.lines = {"7", "7 feet = 2.33 yards"};
    EXPECT_EQ(SheetRows(sheet), sheet.lines);
}

TEST_F(SheetRowsTest, AreReadFromTheTopAndFromTheLeft) {
    EXPECT_EQ(SheetRows(sheet), Rows());
    // 47 + 38 as it is drawn: the answer from the right, and the carry last.
    PrintAt(100, 300, "4");
    PrintAt(120, 300, "7");
    PrintAt(80, 317.2, "+");
    PrintAt(100, 317.2, "3");
    PrintAt(120, 317.2, "8");
    sheet.surface.Line(80, 334.4, 137, 334.4);
    PrintAt(120, 338.4, "5");
    PrintAt(100, 338.4, "8");
    PrintAt(99, 283.4, "1");
    EXPECT_EQ(SheetRows(sheet), (Rows{"1", "47", "+38", "85"}));
}

TEST_F(SheetRowsTest, HaveABlankWhereACellIsEmpty) {
    PrintAt(80, 317.2, "+");
    PrintAt(160, 317.2, "6");
    PrintAt(140, 317.2, "5");
    EXPECT_EQ(SheetRows(sheet), Rows{"+ 56"});
}

TEST_F(SheetRowsTest, SayOnceWhatWasDrawnTwice) {
    for (int i = 0; i < 2; ++i) {
        PrintAt(120, 314.333, "1");
        PrintAt(140, 314.333, "2");
    }
    EXPECT_EQ(SheetRows(sheet), Rows{"12"});
}

TEST_F(SheetRowsTest, KeepACellOfSeveralDigitsApart) {
    PrintAt(120, 283, "9");
    PrintAt(140, 283, "13");
    PrintAt(160, 283, "7");
    // A remainder behind its letter is none of a number's cells.
    PrintAt(120, 300, "4");
    PrintAt(140, 300, "r");
    PrintAt(160, 300, "12");
    EXPECT_EQ(SheetRows(sheet), (Rows{"9 13 7", "4r12"}));
}

TEST_F(SheetRowsTest, TakeTheBracketOfADivisionIntoItsRow) {
    PrintAt(80, 300, "7");
    PrintAt(100, 297, ")");
    PrintAt(114.196, 300, "9");
    PrintAt(114.196, 280, "1");
    EXPECT_EQ(SheetRows(sheet), (Rows{"1", "7 into 9"}));
}

TEST_F(SheetRowsTest, ReadTheCrossOfAProductAsItsSign) {
    PrintAt(80, 317.2, "x");
    PrintAt(100, 317.2, "4");
    EXPECT_EQ(SheetRows(sheet), Rows{"*4"});
}

TEST_F(SheetRowsTest, KnowsWhereTheLowestStands) {
    EXPECT_EQ(LowestText(sheet.surface), 0);
    PrintAt(100, 300, "4");
    PrintAt(120, 317.5, "7");
    PrintAt(99, 283.4, "1");
    EXPECT_EQ(LowestText(sheet.surface), 317.5);
}

}  // namespace
}  // namespace numerello
