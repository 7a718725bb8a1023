#pragma once

#include <optional>
#include <vector>

#include "core/problem.h"
#include "graph/graph_range.h"
#include "graph/graph_terms.h"

namespace numerello {

struct GraphPoint {
    double x;
    double y;
};

/// What a request puts into the range: the points that are computed, and how they are drawn.
struct Plot {
    /// In the order of computing, unrounded. A point that no real root has is put one above
    /// GraphYMax, out of the picture.
    std::vector<GraphPoint> points;
    bool isCurve = false;  ///< the points were computed step by step

    std::vector<std::vector<GraphPoint>> lines;  ///< points to be joined, each list by itself
    std::vector<GraphPoint> dots;
};

/// The plot of a request; `terms` is its equation, nothing when it cannot be read. Never throws
/// Failure: one that comes while points are computed leaves those before it.
Plot PlotOf(const GraphRequest& request, const std::optional<GraphTerms>& terms,
            const GraphRange& range, double GraphStep);

}  // namespace numerello
