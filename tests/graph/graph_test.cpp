#include <gtest/gtest.h>

#include "graph/coordinate_list.h"
#include "tests/graph/asked.h"

namespace numerello {
namespace {

TEST(Graph, OpensWithTheDefaults) {
    const GraphSettings settings;
    const Graph graph(AskedPoint(4, -8), settings);
    EXPECT_EQ(graph.TopicTitle(), "Plotting A Point");
    EXPECT_EQ(graph.Range(), GraphRange());
    EXPECT_EQ(graph.GraphStep(), 0.2);
    EXPECT_FALSE(graph.ShowsQuadrants());
    EXPECT_EQ(settings.GraphLineColor, 255U);
    EXPECT_EQ(settings.GraphGridColor, 16766596U);
    EXPECT_EQ(settings.GraphQuality, 20);
}

TEST(Graph, NumbersTheQuadrantsOfThePointWhoseQuadrantWasAsked) {
    const GraphSettings settings;
    Problem problem = AskedPoint(-3, 5);
    problem.topic.ProblemType = kPointsQuadrant;
    EXPECT_TRUE(Graph(problem, settings).ShowsQuadrants());
}

TEST(Graph, HasOneEntryForAPointAndTwoForALine) {
    const GraphSettings settings;
    const Graph point(AskedPoint(4, -8), settings);
    ASSERT_EQ(point.ThePlot().points.size(), 1U);
    EXPECT_EQ(CoordinateEntry(point.ThePlot(), 0), "x=4  y=-8");
    const Graph line(AskedLine(1.005, 2, -5, 6.125), settings);
    ASSERT_EQ(line.ThePlot().points.size(), 2U);
    EXPECT_EQ(CoordinateEntry(line.ThePlot(), 0), "x=1.005  y=2");
    EXPECT_EQ(CoordinateEntry(line.ThePlot(), 1), "x=-5  y=6.125");
}

TEST(Graph, GoesOnWithoutTheProblem) {
    const GraphSettings settings;
    Problem problem = AskedEquation("+1/1y^+1=+2/1x+3/1");
    Graph graph(problem, settings);
    problem.typed.ExprVariants.Clear();
    problem.graph.GraphMode = 0;
    graph.Command2_Click();
    graph.Redraw();
    ASSERT_FALSE(graph.ThePlot().points.empty());
    EXPECT_EQ(graph.ThePlot().points[0].x, -40);
    EXPECT_EQ(graph.ThePlot().points[0].y, -77);
}

TEST(Graph, ANewRequestKeepsRangeAndNumerals) {
    const GraphSettings settings;
    Graph graph(AskedPoint(4, -8), settings);
    graph.Command2_Click();
    graph.ShowQuadrants(true);
    graph.TakeRequest(AskedLine(1, 2, 3, 4));
    graph.Redraw();
    EXPECT_EQ(graph.TopicTitle(), "Graphing A Line Using Two Points");
    EXPECT_EQ(graph.Range().GraphXMax, 40);
    EXPECT_TRUE(graph.ShowsQuadrants());
    EXPECT_EQ(graph.ThePlot().points.size(), 2U);
}

TEST(Graph, WithoutARequestIsGridAndAxes) {
    const GraphSettings settings;
    const Graph graph(Problem(), settings);
    EXPECT_TRUE(graph.ThePlot().points.empty());
    EXPECT_EQ(graph.Picture().marks.size(), 82U + 2 + 5);
}

TEST(Graph, FollowsTheSettings) {
    GraphSettings settings;
    Graph graph(AskedEquation("y=x"), settings);
    settings.GraphQuality = kHighQuality;
    graph.Redraw();
    EXPECT_EQ(graph.GraphStep(), 0.01);
    EXPECT_EQ(graph.ThePlot().points.size(), 4000U);
}

}  // namespace
}  // namespace numerello
