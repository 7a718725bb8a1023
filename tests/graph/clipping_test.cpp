#include <gtest/gtest.h>

#include <cmath>

#include "graph/clipping.h"

namespace numerello {
namespace {

using Line = std::vector<GraphPoint>;

const GraphRange kRange;  // from -20 to 20

/// The range and a sixteenth of its width around it.
constexpr double kEdge = 22.5;

void ExpectLines(const std::vector<Line>& lines, const std::vector<Line>& expected) {
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        ASSERT_EQ(lines[i].size(), expected[i].size());
        for (std::size_t k = 0; k < lines[i].size(); ++k) {
            EXPECT_DOUBLE_EQ(lines[i][k].x, expected[i][k].x);
            EXPECT_DOUBLE_EQ(lines[i][k].y, expected[i][k].y);
        }
    }
}

TEST(Clipping, WhatLiesInsideStaysAsItIs) {
    const Line line{{-20, -20}, {0, 3}, {20, 20}};
    ExpectLines(LinesInRange(line, kRange), {line});
}

TEST(Clipping, WhatLiesOutsideGoes) {
    ExpectLines(LinesInRange({{30, -20}, {30, 20}}, kRange), {});
    ExpectLines(LinesInRange({{-20, 100}, {20, 101}}, kRange), {});
    // Past a corner.
    ExpectLines(LinesInRange({{0, 46}, {46, 0}}, kRange), {});
    ExpectLines(LinesInRange({{5, 5}}, kRange), {});
    ExpectLines(LinesInRange({}, kRange), {});
}

TEST(Clipping, ALineThatLeavesIsCutAtTheEdge) {
    ExpectLines(LinesInRange({{0, 0}, {0, 100}}, kRange), {{{0, 0}, {0, kEdge}}});
    ExpectLines(LinesInRange({{-100, -50}, {0, 0}, {10, 10}}, kRange),
                {{{-45 / 2.0, -45 / 4.0}, {0, 0}, {10, 10}}});
    ExpectLines(LinesInRange({{-100, 0}, {100, 0}}, kRange), {{{-kEdge, 0}, {kEdge, 0}}});
}

TEST(Clipping, ALineThatComesBackIsTwo) {
    ExpectLines(LinesInRange({{-10, 0}, {0, 90}, {10, 0}}, kRange),
                {{{-10, 0}, {-7.5, kEdge}}, {{7.5, kEdge}, {10, 0}}});
}

TEST(Clipping, TheLargestNumbersDoNotMatter) {
    constexpr double kHuge = 1.7e308;
    const std::vector<Line> lines =
        LinesInRange({{-1, -kHuge}, {1, kHuge}, {2, 0}, {kHuge, kHuge}}, kRange);
    ASSERT_EQ(lines.size(), 2U);
    for (const Line& line : lines) {
        for (const GraphPoint& point : line) {
            EXPECT_LE(std::abs(point.x), kEdge + 1e-9);
            EXPECT_LE(std::abs(point.y), kEdge + 1e-9);
        }
    }
}

}  // namespace
}  // namespace numerello
