#include <gtest/gtest.h>

#include "graph/axis_line.h"
#include "tests/graph/asked.h"

namespace numerello {
namespace {

std::optional<AxisLine> LineOf(std::string_view equation) {
    return AxisLineOf(ReadGraphTerms(equation));
}

void ExpectLine(std::string_view equation, char letter, double value) {
    const std::optional<AxisLine> line = LineOf(equation);
    ASSERT_TRUE(line) << equation;
    EXPECT_EQ(line->letter, letter) << equation;
    EXPECT_EQ(line->value, value) << equation;
}

TEST(AxisLine, ALoneLetterAndALoneNumber) {
    ExpectLine("+1/1x^+1=+3/1", 'x', 3);
    ExpectLine("+1/1y^+1=-1/2", 'y', -0.5);
    ExpectLine("+1/1y^+1=-7/2", 'y', -3.5);
    ExpectLine("5=y", 'y', 5);
    ExpectLine("-1/4=x", 'x', -0.25);
}

TEST(AxisLine, AnEmptySideIsZero) {
    ExpectLine("+1/1y^+1=", 'y', 0);
    ExpectLine("+1/1x^+1=", 'x', 0);
    ExpectLine("+1/1x^+1=+0", 'x', 0);
    ExpectLine("=y", 'y', 0);
}

TEST(AxisLine, WhateverIsNotAloneIsNone) {
    for (const char* equation :
         {"y=x", "2x=3", "-y=3", "y^2=4", "y=2+3", "y+1=3", "2=3", "x+y=3"}) {
        EXPECT_FALSE(LineOf(equation)) << equation;
    }
}

/// Both ends of the range, whatever it is.
void ExpectAcross(const std::string& equation, const std::vector<GraphPoint>& expected,
                  int zoomedOut = 0) {
    const GraphSettings settings;
    const Graph graph = Drawn(AskedEquation(equation), settings, zoomedOut);
    const Plot& plot = graph.ThePlot();
    ASSERT_EQ(plot.points.size(), expected.size()) << equation;
    ASSERT_EQ(plot.lines.size(), 1U) << equation;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(plot.points[i].x, expected[i].x) << equation;
        EXPECT_EQ(plot.points[i].y, expected[i].y) << equation;
        EXPECT_EQ(plot.lines[0][i].x, expected[i].x) << equation;
        EXPECT_EQ(plot.lines[0][i].y, expected[i].y) << equation;
    }
}

TEST(AxisLine, IsDrawnAcrossTheWholeRange) {
    ExpectAcross("+1/1x^+1=+3/1", {{3, -20}, {3, 20}});
    ExpectAcross("+1/1y^+1=-1/2", {{-20, -0.5}, {20, -0.5}});
    ExpectAcross("+1/1x^+1=+3/1", {{3, -160}, {3, 160}}, 3);
    ExpectAcross("+1/1y^+1=-1/2", {{-5, -0.5}, {5, -0.5}}, -2);
    ExpectAcross("+1/1y^+1=", {{-20, 0}, {20, 0}});
}

}  // namespace
}  // namespace numerello
