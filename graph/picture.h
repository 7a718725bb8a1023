#pragma once

#include <string>
#include <variant>
#include <vector>

#include "graph/graph_settings.h"
#include "graph/plot.h"

namespace numerello {

// The drawing of a graph as a display list. Places are in graph units, y growing upward; widths and
// radii are pixels of 96 to the inch and letters points, so that they stay as they are at any zoom
// and in any size of the window.

/// A straight line of the grid or of an axis.
struct GraphStroke {
    double x1, y1, x2, y2;
    double width;
    Color color;
};

/// Points joined by straight lines. They lie in the picture or close to it.
struct GraphPath {
    std::vector<GraphPoint> points;
    double width;
    Color color;
};

/// A filled circle.
struct GraphDot {
    double x, y;  ///< centre
    double radius;
    Color color;
};

/// A text beside a place or over it.
struct GraphLabel {
    std::string text;
    double x, y;
    double alongWidth;   ///< which part of the text's width stands left of x: 0, 0.5 or 1
    double alongHeight;  ///< which part of its height stands above y
    Font font;
    Color color;
};

using GraphMark = std::variant<GraphStroke, GraphPath, GraphDot, GraphLabel>;

struct GraphPicture {
    GraphRange range;  ///< what its edges stand for
    Color BackColor = 0;
    std::vector<GraphMark> marks;  ///< in drawing order
};

/// Grid, axes, the range at their ends, the quadrants' numerals if wanted, and the plot.
GraphPicture PictureOf(const Plot& plot, const GraphRange& range, const GraphSettings& settings,
                       bool showsQuadrants);

}  // namespace numerello
