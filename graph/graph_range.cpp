#include "graph/graph_range.h"

#include <algorithm>
#include <array>

namespace numerello {

namespace {

constexpr double kSmallestToHalve = 10;
constexpr double kLargestToDouble = 40960;
constexpr double kFirstWithoutGrid = 320;

struct StepRow {
    double below;  ///< GraphXMax
    double step;   ///< to be multiplied by GraphQuality
};

constexpr std::array kSteps{
    StepRow{40, 0.01},
    StepRow{320, 0.1},
    StepRow{2560, 1},
    StepRow{20480, 10},
};
constexpr double kLargestStep = 100;

void Multiply(GraphRange& range, double factor) {
    range.GraphXMin *= factor;
    range.GraphXMax *= factor;
    range.GraphYMin *= factor;
    range.GraphYMax *= factor;
}

}  // namespace

bool GraphRange::CanZoomIn() const {
    return GraphXMax >= kSmallestToHalve;
}

bool GraphRange::CanZoomOut() const {
    return GraphXMax <= kLargestToDouble;
}

void GraphRange::ZoomIn() {
    if (CanZoomIn()) {
        Multiply(*this, 0.5);
    }
}

void GraphRange::ZoomOut() {
    if (CanZoomOut()) {
        Multiply(*this, 2);
    }
}

bool GraphRange::HasGrid() const {
    return GraphXMax < kFirstWithoutGrid;
}

double GraphRange::Step(int GraphQuality) const {
    const auto* const row = std::find_if(kSteps.begin(), kSteps.end(), [this](const StepRow& each) {
        return GraphXMax < each.below;
    });
    return (row == kSteps.end() ? kLargestStep : row->step) * GraphQuality;
}

}  // namespace numerello
