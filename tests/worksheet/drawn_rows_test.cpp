#include "worksheet/drawn_rows.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

using Rows = std::vector<std::string>;

class DrawnRowsTest : public testing::Test {
  protected:
    void Print(double x, double y, std::string_view text) {
        sheet.CurrentX = x;
        sheet.CurrentY = y;
        sheet.Print(text);
    }

    PlainMetrics metrics;
    Surface sheet{metrics, {std::string(kSheetFace), 12}};
};

TEST_F(DrawnRowsTest, AreReadFromTheTopAndFromTheLeft) {
    EXPECT_EQ(DrawnRows(sheet), Rows());
    Print(120, 338.4, "5");
    Print(100, 300, "4");
    Print(120, 300, "7");
    Print(100, 338.4, "8");
    Print(99, 283.4, "1");
    sheet.Line(80, 334.4, 137, 334.4);
    EXPECT_EQ(DrawnRows(sheet), (Rows{"1", "47", "85"}));
}

TEST_F(DrawnRowsTest, HaveABlankWhereACellIsEmpty) {
    Print(80, 317.2, "+");
    Print(160, 317.2, "6");
    Print(140, 317.2, "5");
    EXPECT_EQ(DrawnRows(sheet), Rows{"+ 56"});
}

TEST_F(DrawnRowsTest, SayOnceWhatWasDrawnTwice) {
    for (int i = 0; i < 2; ++i) {
        Print(120, 314.333, "1");
        Print(140, 314.333, "13");
    }
    EXPECT_EQ(DrawnRows(sheet), Rows{"113"});
}

TEST_F(DrawnRowsTest, TakeTheBracketOfADivisionIntoItsRow) {
    Print(80, 300, "7");
    Print(100, 297, ")");
    Print(114.196, 300, "9");
    Print(114.196, 280, "1");
    EXPECT_EQ(DrawnRows(sheet), (Rows{"1", "7)9"}));
}

}  // namespace
}  // namespace numerello
