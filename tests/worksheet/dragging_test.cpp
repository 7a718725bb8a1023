#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

/// A solution on three sheets, in a view of 1100 by 690.
class DraggedSheets : public Desk {
  protected:
    static constexpr Worksheet::SeenDesk kSeen{0, 0, 1100, 690};

    DraggedSheets() {
        Choose(31);
        Type("7");
        problem.settings.mnuShowStep = false;
        // Twelve rows a sheet: the typed line and lines 2 to 12, then 13 to 24, then 25 to 26.
        SolveInLines<26>();
    }

    void Drag(int index, int x, int y, const Worksheet::SeenDesk& seen = kSeen) {
        sheet.Paper_MouseDown(index, true, 30, 40);
        sheet.Paper_MouseMove(index, true, 30 + x, 40 + y);
        sheet.Paper_MouseUp(index, seen);
    }

    void ExpectAt(int index, double left, double top) {
        EXPECT_EQ(sheet.SheetAt(index).left, left);
        EXPECT_EQ(sheet.SheetAt(index).top, top);
    }
};

TEST_F(DraggedSheets, EachSheetKnowsItsLines) {
    ASSERT_EQ(problem.playback.CurrentPage, 2);
    EXPECT_EQ(sheet.SheetAt(0).lines.size(), 12U);
    EXPECT_EQ(sheet.SheetAt(0).lines.front(), "7");
    EXPECT_EQ(sheet.SheetAt(0).lines.back(), "line 12");
    EXPECT_EQ(sheet.SheetAt(1).lines.size(), 12U);
    EXPECT_EQ(sheet.SheetAt(2).lines, (std::vector<std::string>{"line 25", "line 26"}));
    EraseProblem(problem, sheet);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(sheet.SheetAt(i).lines.empty()) << i;
    }
}

TEST_F(DraggedSheets, APressBringsASheetToTheFront) {
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{0, 1, 2}));
    sheet.Paper_MouseDown(1, false, 5, 5);
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{0, 1, 2})) << "the right button";
    sheet.Paper_MouseDown(1, true, 5, 5);
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{0, 2, 1}));
    sheet.Paper_MouseDown(0, true, 5, 5);
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{2, 1, 0}));
}

TEST_F(DraggedSheets, ASheetFollowsTheMouse) {
    ExpectAt(1, 175, 25);
    sheet.Paper_MouseDown(1, true, 100, 200);
    sheet.Paper_MouseMove(1, true, 130, 190);
    ExpectAt(1, 205, 15);
    // The sheet has moved below the mouse: the same place on it means rest.
    sheet.Paper_MouseMove(1, true, 100, 200);
    ExpectAt(1, 205, 15);
    sheet.Paper_MouseMove(1, false, 500, 500);
    ExpectAt(1, 205, 15);
    ExpectAt(0, 150, 0);
    ExpectAt(2, 200, 50);
}

TEST_F(DraggedSheets, AChooserClosedOverASheetDoesNotMakeItJump) {
    sheet.Paper_MouseDown(0, true, 100, 100);
    problem.topic.ClickedOnly = true;
    sheet.Paper_MouseMove(0, true, 160, 170);
    ExpectAt(0, 150, 0);
    EXPECT_FALSE(problem.topic.ClickedOnly);
    sheet.Paper_MouseMove(0, true, 161, 172);
    ExpectAt(0, 151, 2);
}

TEST_F(DraggedSheets, ThePictureSendsTheSecondSheetToTheBack) {
    sheet.Picture3_MouseDown(200, 100);
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{1, 0, 2}));
    sheet.Paper_MouseMove(0, true, 210, 130);
    ExpectAt(0, 160, 30);
    sheet.Picture3_MouseDown(200, 100);
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{1, 0, 2}));
}

TEST_F(DraggedSheets, AtReleaseEnoughIsSeenToGripIt) {
    Drag(1, 3000, 3000);
    ExpectAt(1, 1100 - 60, 690 - 40);
    Drag(1, -3000, -3000);
    ExpectAt(1, 60 - 800, 0);
    // The desk is scrolled by 300 and 100.
    Drag(2, 3000, 3000, {300, 100, 1100, 690});
    ExpectAt(2, 1340, 750);
}

TEST_F(DraggedSheets, AReleaseWithoutADragMovesNothing) {
    Drag(1, 900, 0);
    ExpectAt(1, 1040, 25);
    Drag(1, 0, 0, {0, 0, 640, 480});
    ExpectAt(1, 1040, 25);
}

TEST_F(DraggedSheets, ResizingLeavesDraggedSheetsAlone) {
    sheet.Centre(1200);
    ExpectAt(0, 200, 0);
    ExpectAt(1, 225, 25);
    Drag(0, 40, 60);
    sheet.Centre(1000);
    ExpectAt(0, 240, 60);
    ExpectAt(1, 225, 25);
    ExpectAt(2, 250, 50);
}

TEST_F(DraggedSheets, AShakingHandIsNoDrag) {
    Drag(0, 9, -9);
    sheet.Centre(1000);
    EXPECT_EQ(sheet.SheetAt(0).left, 100);
    Drag(0, 10, 0);
    sheet.Centre(1200);
    EXPECT_EQ(sheet.SheetAt(0).left, 110);
}

TEST_F(DraggedSheets, TheNextSheetLiesWhereTheLastWasDragged) {
    EraseProblem(problem, sheet);
    Type("7");
    Drag(0, 40, 60);
    SolveInLines<14>();
    ExpectAt(1, 150 + 40 + 25, 60 + 25);
}

TEST_F(DraggedSheets, ErasingCentresTheFirstSheetAcross) {
    Drag(0, 40, 60);
    EraseProblem(problem, sheet);
    ExpectAt(0, 150, 60);
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{0}));
    sheet.Centre(1000);
    ExpectAt(0, 100, 60);
}

TEST_F(DraggedSheets, TheNeighboursOfTheUppermostComeToTheFront) {
    EXPECT_FALSE(sheet.RaiseNeighbour(1));
    EXPECT_TRUE(sheet.RaiseNeighbour(-1));
    EXPECT_EQ(sheet.StackingOrder().back(), 1);
    EXPECT_TRUE(sheet.RaiseNeighbour(-1));
    EXPECT_EQ(sheet.StackingOrder().back(), 0);
    EXPECT_FALSE(sheet.RaiseNeighbour(-1));
    EXPECT_EQ(sheet.StackingOrder(), (std::vector<int>{2, 1, 0}));
    EXPECT_TRUE(sheet.RaiseNeighbour(1));
    EXPECT_EQ(sheet.StackingOrder().back(), 1);
}

}  // namespace
}  // namespace numerello
