#include <gtest/gtest.h>

#include "core/failure.h"
#include "graph/curve.h"
#include "tests/graph/asked.h"

namespace numerello {
namespace {

Curve CurveOf(std::string_view equation) {
    return Curve(ReadGraphTerms(equation));
}

TEST(Curve, SolvesForY) {
    EXPECT_EQ(CurveOf("y=2x+3").YAt(4), 11);
    EXPECT_EQ(CurveOf("2x+3=y").YAt(4), 11);
    EXPECT_EQ(CurveOf("-2y=x").YAt(4), -2);
    EXPECT_EQ(CurveOf("y=-1/2x^2").YAt(-4), -8);
    EXPECT_EQ(CurveOf("y=x^0").YAt(-4), 1);
    // What stands beside y is brought to the other side.
    EXPECT_EQ(CurveOf("2y+x=6").YAt(4), 1);
    EXPECT_EQ(CurveOf("3y=y+x").YAt(4), 2);
    EXPECT_EQ(CurveOf("6=x-2y").YAt(4), -1);
}

TEST(Curve, AnEvenPowerHasTwoBranchesAndNoRootOfANegative) {
    const Curve sideways = CurveOf("y^2=x");
    EXPECT_TRUE(sideways.HasTwoBranches());
    EXPECT_EQ(sideways.YAt(9), 3);
    EXPECT_EQ(sideways.YAt(0), 0);
    EXPECT_EQ(sideways.YAt(-1), std::nullopt);
    EXPECT_EQ(CurveOf("y^4=x").YAt(16), 2);
    EXPECT_EQ(CurveOf("y^-2=x").YAt(4), 0.5);
}

TEST(Curve, AnOddPowerKeepsTheSign) {
    const Curve cubic = CurveOf("y^3=x");
    EXPECT_FALSE(cubic.HasTwoBranches());
    EXPECT_DOUBLE_EQ(*cubic.YAt(8), 2);
    EXPECT_DOUBLE_EQ(*cubic.YAt(-8), -2);
    EXPECT_DOUBLE_EQ(*CurveOf("y^-1=x").YAt(-4), -0.25);
}

TEST(Curve, ABrokenPowerHasOneBranchAboveZero) {
    const Curve root = CurveOf("y^1/2=x");
    EXPECT_FALSE(root.HasTwoBranches());
    EXPECT_DOUBLE_EQ(*root.YAt(3), 9);
    EXPECT_EQ(root.YAt(-3), std::nullopt);
}

TEST(Curve, WithoutYThereIsNone) {
    EXPECT_THROW(CurveOf("2x=3"), Failure);
    EXPECT_THROW(CurveOf("0y=x"), Failure);
    EXPECT_THROW(CurveOf("y=y+x"), Failure);
    EXPECT_THROW(CurveOf("y^0=x"), Failure);
    EXPECT_THROW(CurveOf("y^2+y=x"), Failure);
}

Graph DrawnCurve(const char* equation, int quality = kHighSpeed, int zoomedOut = 0) {
    static GraphSettings settings;
    settings.GraphQuality = quality;
    return Drawn(AskedEquation(equation), settings, zoomedOut);
}

TEST(CurvePoints, AreAsManyAsAddedUpStepsFit) {
    EXPECT_EQ(DrawnCurve("y=x").ThePlot().points.size(), 201U);
    EXPECT_EQ(DrawnCurve("y=x", kHighQuality).ThePlot().points.size(), 4000U);
    EXPECT_EQ(DrawnCurve("y=x", kHighSpeed, -1).ThePlot().points.size(), 101U);
    EXPECT_EQ(DrawnCurve("y=x", kHighSpeed, -2).ThePlot().points.size(), 50U);
    EXPECT_EQ(DrawnCurve("y=x", kHighQuality, 1).ThePlot().points.size(), 800U);
    EXPECT_EQ(DrawnCurve("y=x", kHighSpeed, 10).ThePlot().points.size(), 21U);
}

TEST(CurvePoints, WhatIsDrawnReachesTheEdge) {
    // The 50 points from -5 by 0.2 end before 5, those from -20480 by 2000 at 19520.
    for (const int zoomedOut : {-2, 10}) {
        const Graph graph = DrawnCurve("y=2x", kHighSpeed, zoomedOut);
        const double edge = graph.Range().GraphXMax;
        EXPECT_LT(graph.ThePlot().points.back().x, edge);
        EXPECT_EQ(graph.ThePlot().lines[0].back().x, edge);
        EXPECT_EQ(graph.ThePlot().lines[0].back().y, 2 * edge);
    }
}

TEST(CurvePoints, OfAnEvenPowerAreTwoForEachX) {
    const Graph graph = DrawnCurve("y^2=x");
    const Plot& plot = graph.ThePlot();
    ASSERT_EQ(plot.points.size(), 402U);
    for (std::size_t i = 0; i < plot.points.size(); i += 2) {
        const GraphPoint upper = plot.points[i];
        const GraphPoint lower = plot.points[i + 1];
        EXPECT_EQ(upper.x, lower.x);
        if (upper.x < 0) {
            EXPECT_EQ(upper.y, 21);
            EXPECT_EQ(lower.y, 21);
        } else {
            EXPECT_NEAR(upper.y * upper.y, upper.x, 1e-12);
            EXPECT_EQ(lower.y, -upper.y);
        }
    }
}

TEST(CurvePoints, OutOfThePictureNothingIsJoined) {
    const Plot plot = DrawnCurve("y^2=x^2-16").ThePlot();
    // Two branches on the left and two on the right, none of them across the gap.
    ASSERT_EQ(plot.lines.size(), 4U);
    for (const auto& line : plot.lines) {
        for (const GraphPoint& point : line) {
            EXPECT_NE(point.y, 21);
            EXPECT_EQ(point.x < 0, line.front().x < 0);
            EXPECT_TRUE(point.y * line.front().y >= 0);
        }
    }
}

TEST(CurvePoints, BranchesMeetWhereTheCurveBeginsAndEnds) {
    // A circle of 5 around the crossing, computed in steps of 0.2.
    const Plot plot = DrawnCurve("y^2=25-x^2").ThePlot();
    ASSERT_EQ(plot.lines.size(), 2U);
    for (const auto& line : plot.lines) {
        EXPECT_NEAR(line.front().x, -5, 1e-9);
        EXPECT_NEAR(line.front().y, 0, 1e-4);
        EXPECT_NEAR(line.back().x, 5, 1e-9);
        EXPECT_NEAR(line.back().y, 0, 1e-4);
    }
    // Of the points themselves none is added.
    EXPECT_EQ(plot.points.size(), 402U);
}

TEST(CurvePoints, AFailureAtTheFirstPointLeavesNone) {
    // 20 to the power 300 is beyond the largest Double, and a negative x has no square root.
    for (const char* equation :
         {"y=x^300", "y=x^1/2", "y=2/0x", "2x=3", "0y=x", "y=(x+1)", "y", ""}) {
        const Graph graph = DrawnCurve(equation);
        EXPECT_TRUE(graph.ThePlot().points.empty()) << equation;
        EXPECT_TRUE(graph.ThePlot().lines.empty()) << equation;
        EXPECT_EQ(graph.Picture().marks.size(), DrawnCurve("0=0").Picture().marks.size());
    }
}

TEST(CurvePoints, AnOverflowOnTheWayLeavesThePartBeforeIt) {
    // y^(1/300) = x + 10.5: y passes the largest Double, about 10.655^300, where x passes 0.155.
    const Graph graph = DrawnCurve("y^1/300=x+10.5");
    const Plot& plot = graph.ThePlot();
    ASSERT_FALSE(plot.points.empty());
    EXPECT_NEAR(plot.points.back().x, 0, 1e-9);
    EXPECT_EQ(plot.points.size(), 101U);
    // Grid, axes and figures are there, and the part of the curve.
    EXPECT_FALSE(graph.Picture().marks.empty());
    EXPECT_TRUE(std::holds_alternative<GraphPath>(graph.Picture().marks.back()));
}

}  // namespace
}  // namespace numerello
