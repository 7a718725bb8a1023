#include <gtest/gtest.h>

#include "graph/graph_range.h"

namespace numerello {
namespace {

struct Stop {
    double edge;
    double step;  ///< at a quality of 1
    bool grid;
};

/// Every range from the innermost to the outermost.
const std::vector<Stop> kStops{
    {5, 0.01, true},     {10, 0.01, true},    {20, 0.01, true},    {40, 0.1, true},
    {80, 0.1, true},     {160, 0.1, true},    {320, 1, false},     {640, 1, false},
    {1280, 1, false},    {2560, 10, false},   {5120, 10, false},   {10240, 10, false},
    {20480, 100, false}, {40960, 100, false}, {81920, 100, false},
};

GraphRange At(double edge) {
    return {-edge, edge, -edge, edge};
}

TEST(GraphRange, OpensFromMinus20To20) {
    EXPECT_EQ(GraphRange(), At(20));
    EXPECT_EQ(GraphRange().Step(20), 0.2);
    EXPECT_TRUE(GraphRange().HasGrid());
}

TEST(GraphRange, EveryStopHasItsStepAndGrid) {
    for (const Stop& stop : kStops) {
        const GraphRange range = At(stop.edge);
        EXPECT_EQ(range.Step(1), stop.step) << stop.edge;
        EXPECT_EQ(range.Step(20), stop.step * 20) << stop.edge;
        EXPECT_EQ(range.HasGrid(), stop.grid) << stop.edge;
    }
}

TEST(GraphRange, ZoomingOutDoublesUpTo81920) {
    GraphRange range = At(5);
    for (const Stop& stop : kStops) {
        EXPECT_EQ(range, At(stop.edge));
        EXPECT_EQ(range.CanZoomOut(), stop.edge < 81920);
        range.ZoomOut();
    }
    EXPECT_EQ(range, At(81920));
}

TEST(GraphRange, ZoomingInHalvesDownTo5) {
    GraphRange range = At(81920);
    for (auto stop = kStops.rbegin(); stop != kStops.rend(); ++stop) {
        EXPECT_EQ(range, At(stop->edge));
        EXPECT_EQ(range.CanZoomIn(), stop->edge > 5);
        range.ZoomIn();
    }
    EXPECT_EQ(range, At(5));
}

}  // namespace
}  // namespace numerello
