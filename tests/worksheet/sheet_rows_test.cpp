#include "worksheet/sheet_rows.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

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

TEST_F(SheetRowsTest, AreWhatStandsSideBySideInColumns) {
    EXPECT_TRUE(SheetRows(sheet).empty());
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
    EXPECT_EQ(SheetRows(sheet), (std::vector<std::string>{"1", "47", "+38", "85"}));
}

}  // namespace
}  // namespace numerello
