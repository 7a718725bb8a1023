#include "graph/plot.h"

#include <cmath>

#include "core/failure.h"
#include "graph/axis_line.h"
#include "graph/curve.h"

namespace numerello {

namespace {

using Line = std::vector<GraphPoint>;

/// The line through two points across the whole range. It is followed along the axis that it is
/// less steep to, so that its ends stay near the picture.
Line AcrossRange(GraphPoint a, GraphPoint b, const GraphRange& range) {
    const double run = b.x - a.x;
    const double rise = b.y - a.y;
    if (std::abs(run) >= std::abs(rise)) {
        const auto at = [&](double x) { return GraphPoint{x, a.y + (x - a.x) * (rise / run)}; };
        return {at(range.GraphXMin), at(range.GraphXMax)};
    }
    const auto at = [&](double y) { return GraphPoint{a.x + (y - a.y) * (run / rise), y}; };
    return {at(range.GraphYMin), at(range.GraphYMax)};
}

/// Two equal points have no line through them.
void AddLineThrough(Plot& plot, GraphPoint a, GraphPoint b, const GraphRange& range) {
    plot.points = {a, b};
    plot.dots = plot.points;
    if (a.x != b.x || a.y != b.y) {
        plot.lines.push_back(AcrossRange(a, b, range));
    }
}

void AddAxisLine(Plot& plot, const AxisLine& line, const GraphRange& range) {
    if (line.letter == 'x') {
        plot.points = {{line.value, range.GraphYMin}, {line.value, range.GraphYMax}};
    } else {
        plot.points = {{range.GraphXMin, line.value}, {range.GraphXMax, line.value}};
    }
    plot.lines.push_back(plot.points);
}

/// Joins the points of one branch. Where the branch has no point the line ends, and the next point
/// begins another.
class Branch {
  public:
    explicit Branch(std::vector<Line>& lines) : lines(lines) {}

    void Add(GraphPoint point) {
        if (!open) {
            open = lines.size();
            lines.emplace_back();
        }
        lines[*open].push_back(point);
    }

    void Interrupt() { open.reset(); }

  private:
    std::vector<Line>& lines;
    std::optional<std::size_t> open;
};

class CurvePlotter {
  public:
    CurvePlotter(Plot& plot, const Curve& curve, const GraphRange& range)
        : plot(plot), curve(curve), range(range) {}

    /// The steps are added up, so that x carries their noise.
    void Run(double step) {
        double last = range.GraphXMin;
        for (double x = range.GraphXMin; x <= range.GraphXMax; x += step) {
            const std::optional<double> y = curve.YAt(x);
            AddPoints(x, y);
            Join(x, y);
            last = x;
        }
        // Their sum may stop short of the edge; what is drawn goes on to it.
        if (last < range.GraphXMax) {
            Join(range.GraphXMax, curve.YAt(range.GraphXMax));
        }
    }

  private:
    void AddPoints(double x, std::optional<double> y) {
        const double outOfPicture = range.GraphYMax + 1;
        plot.points.push_back({x, y.value_or(outOfPicture)});
        if (curve.HasTwoBranches()) {
            plot.points.push_back({x, y ? -*y : outOfPicture});
        }
    }

    void Join(double x, std::optional<double> y) {
        if (before && y && !before->hasRoot) {
            JoinEnd(x, before->x);
        } else if (before && !y && before->hasRoot) {
            JoinEnd(before->x, x);
        }
        before = {x, y.has_value()};
        if (y) {
            JoinRoot(x, *y);
        } else {
            upper.Interrupt();
            lower.Interrupt();
        }
    }

    void JoinRoot(double x, double y) {
        upper.Add({x, y});
        if (curve.HasTwoBranches()) {
            lower.Add({x, -y});
        }
    }

    /// The curve begins or ends between two places, one with a root and one without: it is drawn to
    /// there, where its branches meet.
    void JoinEnd(double with, double without) {
        constexpr int kHalvings = 60;
        std::optional<double> y;
        for (int i = 0; i < kHalvings; ++i) {
            const double middle = with / 2 + without / 2;
            const std::optional<double> root = RootAt(middle);
            (root ? with : without) = middle;
            y = root ? root : y;
        }
        if (y) {
            JoinRoot(with, *y);
        }
    }

    /// For drawing alone: a failure here is no root.
    std::optional<double> RootAt(double x) const {
        try {
            return curve.YAt(x);
        } catch (const Failure&) {
            return std::nullopt;
        }
    }

    struct Place {
        double x;
        bool hasRoot;
    };

    std::optional<Place> before;  ///< what was joined last
    Plot& plot;
    const Curve& curve;
    const GraphRange& range;
    Branch upper{plot.lines};
    Branch lower{plot.lines};
};

void AddEquation(Plot& plot, const GraphTerms& terms, const GraphRange& range, double step) {
    if (const std::optional<AxisLine> line = AxisLineOf(terms)) {
        AddAxisLine(plot, *line, range);
        return;
    }
    plot.isCurve = true;
    const Curve curve(terms);
    CurvePlotter(plot, curve, range).Run(step);
}

}  // namespace

Plot PlotOf(const GraphRequest& request, const std::optional<GraphTerms>& terms,
            const GraphRange& range, double GraphStep) {
    Plot plot;
    const GraphPoint first{request.GraphX1, request.GraphY1};
    const GraphPoint second{request.GraphX2, request.GraphY2};
    try {
        if (request.GraphMode == kOnePointGraph) {
            plot.points = plot.dots = {first};
        } else if (request.GraphMode == kTwoPointsGraph) {
            AddLineThrough(plot, first, second, range);
        } else if (request.GraphMode == kEquationGraph && terms) {
            AddEquation(plot, *terms, range, GraphStep);
        }
    } catch (const Failure&) {
        // The part that was computed stays.
    }
    return plot;
}

}  // namespace numerello
