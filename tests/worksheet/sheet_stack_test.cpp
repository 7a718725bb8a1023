#include "worksheet/sheet_stack.h"

#include <gtest/gtest.h>

#include "core/failure.h"

namespace numerello {
namespace {

class SheetStackTest : public testing::Test {
  protected:
    PlainMetrics metrics;
    SheetStack stack{metrics};
};

TEST_F(SheetStackTest, ATurnedSheetIsEmptyBlackAndInTheSheetsFont) {
    stack[0].surface.ForeColor = kRed;
    stack[1].surface.ForeColor = kRed;
    stack[1].surface.SetFontSize(8);
    stack[1].surface.Print("old");
    stack.Turn(0);
    const Surface& surface = stack[1].surface;
    EXPECT_TRUE(surface.Marks().empty());
    EXPECT_EQ(surface.CurrentX, 0);
    EXPECT_EQ(surface.CurrentY, 0);
    EXPECT_EQ(surface.ForeColor, kBlack);
    EXPECT_EQ(surface.FontName(), "VantrelFont");
    EXPECT_EQ(surface.FontSize(), 12);
}

TEST_F(SheetStackTest, KnowsWhenAnEmptySheetTookThePlaceOfAnother) {
    stack[0].surface.Print("7");
    EXPECT_EQ(stack[0].newSheets, 0);
    stack.Turn(0);
    EXPECT_EQ(stack[1].newSheets, 1);
    stack.Blank(1);
    EXPECT_EQ(stack[0].newSheets, 1);
    EXPECT_EQ(stack[1].newSheets, 2);
}

TEST_F(SheetStackTest, TurningLeavesTheArrowBehindOnNoSheet) {
    stack[0].arrowVisible = true;
    stack.Turn(0);
    EXPECT_FALSE(stack[0].arrowVisible);
    EXPECT_FALSE(stack[1].arrowVisible);
}

TEST_F(SheetStackTest, ASheetTurnedToAgainComesToTheTop) {
    stack.Turn(0);
    stack.Turn(1);
    stack.Turn(0);
    EXPECT_EQ(stack.Order(), (std::vector<int>{0, 2, 1}));
}

TEST_F(SheetStackTest, ARaisedSheetComesToTheTop) {
    stack.Turn(0);
    stack.Turn(1);
    stack.Raise(0);
    EXPECT_EQ(stack.Order(), (std::vector<int>{1, 2, 0}));
    stack.Raise(0);
    stack.Raise(1);
    EXPECT_EQ(stack.Order(), (std::vector<int>{2, 0, 1}));
    stack.Raise(3);
    EXPECT_EQ(stack.Order(), (std::vector<int>{2, 0, 1})) << "a hidden sheet stays hidden";
}

TEST_F(SheetStackTest, ASheetGrowsByWholeRowsUntilItIsBlanked) {
    EXPECT_EQ(stack[0].height, 657);
    stack.Lengthen(0, 657);
    EXPECT_EQ(stack[0].height, 657);
    stack.Lengthen(0, 657.5);
    EXPECT_EQ(stack[0].height, 703);
    stack.Lengthen(0, 300);
    EXPECT_EQ(stack[0].height, 703);
    stack.Lengthen(0, 704);
    EXPECT_EQ(stack[0].height, 749);
    stack.Blank(0);
    EXPECT_EQ(stack[0].height, 657);
}

TEST_F(SheetStackTest, TheTenthIsTheLast) {
    for (int page = 0; page < 9; ++page) {
        stack.Turn(page);
    }
    EXPECT_EQ(stack[9].left, 225);
    EXPECT_EQ(stack[9].top, 225);
    EXPECT_THROW(stack.Turn(9), Failure);
    EXPECT_EQ(stack.Order().size(), 10U);
}

TEST_F(SheetStackTest, AReferenceOutlivesTurning) {
    const Sheet& second = stack[1];
    stack.Turn(0);
    EXPECT_TRUE(second.visible);
    EXPECT_EQ(&second, &stack[1]);
}

TEST_F(SheetStackTest, BlankingStopsAtTheGivenSheet) {
    stack.Turn(0);
    stack.Turn(1);
    stack.Blank(1);
    EXPECT_EQ(stack.Order(), (std::vector<int>{0, 2}));
}

}  // namespace
}  // namespace numerello
