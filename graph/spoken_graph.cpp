#include "graph/spoken_graph.h"

#include <algorithm>
#include <cmath>

#include "core/number.h"
#include "core/text.h"
#include "graph/axis_line.h"
#include "graph/curve.h"

namespace numerello {

namespace {

/// Closer than that two numbers differ by the noise of Doubles alone.
constexpr double kNoise = 1e-9;

std::string Spoken(double value) {
    const double rounded = Round(value, 2);
    const bool exact = std::abs(value - rounded) <= kNoise * std::max(1.0, std::abs(value));
    return Text(exact ? "" : "about ", NumberText(rounded));
}

std::string SpokenPoint(double x, double y) {
    return Text("(", Spoken(x), ", ", Spoken(y), ")");
}

std::string SpokenAxisLine(const AxisLine& line) {
    return line.letter == 'x' ? Text("A vertical line at x = ", Spoken(line.value), ".")
                              : Text("A horizontal line at y = ", Spoken(line.value), ".");
}

/// Of a line that is not vertical: where it stands above 0, and by how much it rises from 0 to 1.
std::string SpokenLine(double atZero, double slope) {
    if (slope == 0) {
        return SpokenAxisLine({'y', atZero});
    }
    const std::string rises = slope > 0 ? "A line that rises from left to right."
                                        : "A line that falls from left to right.";
    if (std::abs(atZero) <= kNoise) {
        return Text(rises, " It goes through the crossing of the axes.");
    }
    const double root = -atZero / slope;
    return Text(rises, " It crosses the ",
                std::isfinite(root) ? Text("x axis at ", Spoken(root), " and the ") : "",
                "y axis at ", Spoken(atZero), ".");
}

bool IsOnePoint(const GraphRequest& points) {
    return points.GraphX1 == points.GraphX2 && points.GraphY1 == points.GraphY2;
}

std::string SpokenLineThrough(const GraphRequest& points) {
    if (IsOnePoint(points)) {
        return Text("The point ", SpokenPoint(points.GraphX1, points.GraphY1), ", given twice.");
    }
    const double run = points.GraphX2 - points.GraphX1;
    if (run == 0) {
        return SpokenAxisLine({'x', points.GraphX1});
    }
    const double slope = (points.GraphY2 - points.GraphY1) / run;
    return SpokenLine(points.GraphY1 - slope * points.GraphX1, slope);
}

std::string SpokenTwoPoints(const GraphRequest& points) {
    if (IsOnePoint(points)) {
        return SpokenLineThrough(points);
    }
    return Text("The points ", SpokenPoint(points.GraphX1, points.GraphY1), " and ",
                SpokenPoint(points.GraphX2, points.GraphY2), ". ", SpokenLineThrough(points));
}

std::string SpokenWay(double value, std::string_view forth, std::string_view back) {
    return value == 0 ? "" : Text(" ", Spoken(std::abs(value)), value > 0 ? forth : back);
}

std::string SpokenWayTo(double x, double y) {
    if (x == 0 && y == 0) {
        return "At the crossing of the axes.";
    }
    return Text("From the crossing of the axes", SpokenWay(x, " to the right", " to the left"),
                x != 0 && y != 0 ? " and" : "", SpokenWay(y, " up", " down"), ".");
}

/// Of an equation that was plotted: it has terms.
std::string SpokenEquation(const Graph& graph) {
    if (const std::optional<AxisLine> line = AxisLineOf(*graph.Terms())) {
        return SpokenAxisLine(*line);
    }
    const Curve curve(*graph.Terms());
    if (curve.IsStraight()) {
        // A straight line has a y above every x.
        const double atZero = *curve.YAt(0);
        return SpokenLine(atZero, *curve.YAt(1) - atZero);
    }
    return Text("A curve of ", NumberText(static_cast<double>(graph.ThePlot().points.size())),
                " points.");
}

std::string SpokenPlot(const Graph& graph) {
    const GraphRequest& request = graph.Request();
    if (request.GraphMode == kOnePointGraph) {
        return Text("The point ", SpokenPoint(request.GraphX1, request.GraphY1), ".");
    }
    if (request.GraphMode == kTwoPointsGraph) {
        return SpokenTwoPoints(request);
    }
    return graph.ThePlot().points.empty() ? "Nothing is drawn." : SpokenEquation(graph);
}

}  // namespace

std::string SpokenGraph(const Graph& graph) {
    const GraphRange& range = graph.Range();
    const std::string axes = Text("x and y go from ", NumberText(range.GraphXMin), " to ",
                                  NumberText(range.GraphXMax), ". ");
    const std::string numerals = graph.ShowsQuadrants() ? " The quadrants are numbered." : "";
    return axes + SpokenPlot(graph) + numerals;
}

std::string SpokenAnswer(const GraphRequest& points) {
    return points.GraphMode == kOnePointGraph ? SpokenWayTo(points.GraphX1, points.GraphY1)
                                              : SpokenLineThrough(points);
}

}  // namespace numerello
