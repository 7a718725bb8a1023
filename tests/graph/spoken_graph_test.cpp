#include <gtest/gtest.h>

#include "graph/spoken_graph.h"
#include "tests/graph/asked.h"

namespace numerello {
namespace {

std::string Spoken(const Problem& problem) {
    static const GraphSettings settings;
    const std::string text = SpokenGraph(Graph(problem, settings));
    const std::string axes = "x and y go from -20 to 20. ";
    EXPECT_TRUE(text.starts_with(axes)) << text;
    return text.substr(axes.size());
}

TEST(SpokenGraph, NamesPoints) {
    EXPECT_EQ(Spoken(AskedPoint(4, -8)), "The point (4, -8).");
    EXPECT_EQ(Spoken(AskedLine(1, 2, 1, 2)), "The point (1, 2), given twice.");
    EXPECT_EQ(
        Spoken(AskedLine(1, 2, 5, 6)),
        "The points (1, 2) and (5, 6). A line that rises from left to right. It crosses the x "
        "axis at -1 and the y axis at 1.");
    EXPECT_EQ(Spoken(AskedLine(3, 1, 3, 7)),
              "The points (3, 1) and (3, 7). A vertical line at x = 3.");
}

TEST(SpokenGraph, SaysWhereALineGoes) {
    EXPECT_EQ(Spoken(AskedEquation("+1/1y^+1=-2/3x+2/1")),
              "A line that falls from left to right. It crosses the x axis at 3 and the y axis at "
              "2.");
    EXPECT_EQ(Spoken(AskedEquation("+1/1y^+1=+3/1x-1/1")),
              "A line that rises from left to right. It crosses the x axis at about 0.33 and the y "
              "axis at -1.");
    EXPECT_EQ(Spoken(AskedEquation("+1/1y^+1=-1/1x")),
              "A line that falls from left to right. It goes through the crossing of the axes.");
    EXPECT_EQ(Spoken(AskedEquation("+1/1x^+1=+3/1")), "A vertical line at x = 3.");
    EXPECT_EQ(Spoken(AskedEquation("+1/1y^+1=-1/2")), "A horizontal line at y = -0.5.");
}

std::string Answer(const Problem& problem) {
    return SpokenAnswer(problem.graph);
}

TEST(SpokenAnswer, SaysHowToGetToAPoint) {
    EXPECT_EQ(Answer(AskedPoint(4, -8)),
              "From the crossing of the axes 4 to the right and 8 down.");
    EXPECT_EQ(Answer(AskedPoint(-2.5, 0)), "From the crossing of the axes 2.5 to the left.");
    EXPECT_EQ(Answer(AskedPoint(0, 3)), "From the crossing of the axes 3 up.");
    EXPECT_EQ(Answer(AskedPoint(0, 0)), "At the crossing of the axes.");
}

TEST(SpokenAnswer, SaysWhereTheLineThroughTwoPointsGoes) {
    EXPECT_EQ(Answer(AskedLine(1, 2, 5, 6)),
              "A line that rises from left to right. It crosses the x axis at -1 and the y axis at "
              "1.");
    EXPECT_EQ(Answer(AskedLine(3, 1, 3, 7)), "A vertical line at x = 3.");
    EXPECT_EQ(Answer(AskedLine(3, 7, -1, 7)), "A horizontal line at y = 7.");
    EXPECT_EQ(Answer(AskedLine(1, 2, 1, 2)), "The point (1, 2), given twice.");
}

TEST(SpokenGraph, SaysWhatElseThereIs) {
    EXPECT_EQ(Spoken(AskedEquation("y^2=x")), "A curve of 402 points.");
    EXPECT_EQ(Spoken(AskedEquation("y=(x)")), "Nothing is drawn.");
    EXPECT_EQ(Spoken(Problem()), "Nothing is drawn.");
    const GraphSettings settings;
    Graph graph(AskedPoint(4, -8), settings);
    graph.ShowQuadrants(true);
    graph.Command2_Click();
    graph.Redraw();
    EXPECT_EQ(SpokenGraph(graph),
              "x and y go from -40 to 40. The point (4, -8). The quadrants are numbered.");
}

}  // namespace
}  // namespace numerello
