#include "ui/graph_place.h"

#include <gtest/gtest.h>

#include "tests/ui/frm_main_fixture.h"
#include "ui/frm_graph.h"
#include "ui/frm_paper.h"

namespace numerello {
namespace {

constexpr QRect kScreen(0, 0, 1280, 800);
constexpr QRect kUsual(723, 129, 533, 558);

TEST(PlaceOfGraph, IsTheUsualOneBesideAShortLine) {
    EXPECT_EQ(PlaceOfGraph(kUsual, {300, 200, 400, 80}, kScreen), kUsual);
    EXPECT_EQ(PlaceOfGraph(kUsual, {}, kScreen), kUsual);
}

TEST(PlaceOfGraph, IsRightOfTheLineOnAWideScreen) {
    // The line ends at 1000; behind a gap of 8 there is room for 533 up to 1920.
    EXPECT_EQ(PlaceOfGraph(kUsual, {300, 200, 700, 80}, {0, 0, 1920, 800}),
              QRect(1008, 129, 533, 558));
}

TEST(PlaceOfGraph, IsBelowTheLineAndSmallerWhereTheScreenEnds) {
    const QRect line(300, 250, 700, 80);
    const QRect place = PlaceOfGraph(kUsual, line, kScreen);
    // From 338 to 800 there are 462, less 32 for the caption and 25 for the menu.
    EXPECT_EQ(place, QRect(kUsual.right() + 1 - 405, 370, 405, 430));
}

TEST(PlaceOfGraph, IsAboveALineAtTheFoot) {
    const QRect place = PlaceOfGraph(kUsual, {300, 620, 700, 80}, kScreen);
    EXPECT_EQ(place.bottom(), 611);
    EXPECT_EQ(place.size(), kUsual.size());
}

TEST(PlaceOfGraph, IsTheUsualOneWhereNothingElseWouldBeOfUse) {
    const QRect small(0, 0, 400, 300);
    const QRect usual(100, 40, 250, 255);
    EXPECT_EQ(PlaceOfGraph(usual, {20, 130, 330, 60}, small), usual);
}

TEST_F(Window, TheGraphLeavesTheQuadrantToBeRead) {
    Choose(QStringLiteral("Calculating A Point's Quadrant"));
    Type(QStringLiteral("(-3,4)"));
    Enter();
    while (Arrow().isVisible()) {
        Click(Arrow());
    }
    const auto& paper = Find<FrmPaper>(frame, QStringLiteral("frmPaper"));
    const auto& graph = Find<FrmGraph>(frame, QStringLiteral("frmGraph"));
    const QRect line = paper.LastLine();
    EXPECT_GT(line.width(), 500);
    EXPECT_TRUE(paper.viewport()
                    ->rect()
                    .translated(paper.viewport()->mapToGlobal(QPoint()))
                    .contains(line));
    EXPECT_FALSE(graph.geometry().intersects(line));
}

}  // namespace
}  // namespace numerello
