#include <gtest/gtest.h>

#include "graph/plot.h"

namespace numerello {
namespace {

/// y^2 = 1/x has two branches from x = 0 on, and at 0 there is nothing to be computed.
TEST(PlotOf, FollowsACurveToAnEndThatCannotBeComputed) {
    const GraphRequest request{.GraphMode = kEquationGraph};
    // At -20, -12, -4, 4, 12 and 20; between -4 and 4 the end is looked for.
    const Plot plot = PlotOf(request, ReadGraphTerms("y^2=x^-1"), GraphRange(), 8);
    EXPECT_EQ(plot.points.size(), 12U);
    ASSERT_EQ(plot.lines.size(), 2U);
    for (const auto& line : plot.lines) {
        ASSERT_EQ(line.size(), 4U);
        EXPECT_GT(line[0].x, 0);
        EXPECT_LT(line[0].x, 1e-9);
        EXPECT_EQ(line[1].x, 4);
        EXPECT_EQ(line[3].x, 20);
    }
    // The root of 1/4.
    EXPECT_EQ(plot.lines[0][1].y, 0.5);
    EXPECT_EQ(plot.lines[1][1].y, -0.5);
}

}  // namespace
}  // namespace numerello
