#include "graph/clipping.h"

#include <algorithm>

namespace numerello {

namespace {

/// Part of the range that is kept around it, so that no line is seen to end.
constexpr double kMargin = 1.0 / 16;

struct Box {
    double left, right, bottom, top;

    /// The nearest place of the box: beside very large numbers a cut is not exact.
    GraphPoint Nearest(GraphPoint point) const {
        return {std::clamp(point.x, left, right), std::clamp(point.y, bottom, top)};
    }

    bool Holds(GraphPoint point) const {
        return point.x >= left && point.x <= right && point.y >= bottom && point.y <= top;
    }
};

Box Around(const GraphRange& range) {
    const double aside = kMargin * (range.GraphXMax - range.GraphXMin);
    const double above = kMargin * (range.GraphYMax - range.GraphYMin);
    return {range.GraphXMin - aside, range.GraphXMax + aside, range.GraphYMin - above,
            range.GraphYMax + above};
}

/// The part of a way from 0 to 1 that lies between two bounds of one coordinate.
struct Way {
    double begin = 0;
    double end = 1;

    void Narrow(double from, double to, double least, double most) {
        // Halves: the difference of two large numbers could be beyond all bounds.
        const double length = to / 2 - from / 2;
        if (length == 0) {
            if (from < least || from > most) {
                end = -1;
            }
            return;
        }
        const double toLeast = (least / 2 - from / 2) / length;
        const double toMost = (most / 2 - from / 2) / length;
        begin = std::max(begin, std::min(toLeast, toMost));
        end = std::min(end, std::max(toLeast, toMost));
    }

    static double Part(double from, double to, double part) {
        return from * (1 - part) + to * part;
    }

    static GraphPoint At(GraphPoint a, GraphPoint b, double part) {
        if (part == 0 || part == 1) {
            return part == 0 ? a : b;
        }
        return {Part(a.x, b.x, part), Part(a.y, b.y, part)};
    }
};

}  // namespace

bool IsNearRange(GraphPoint point, const GraphRange& range) {
    return Around(range).Holds(point);
}

std::vector<std::vector<GraphPoint>> LinesInRange(const std::vector<GraphPoint>& line,
                                                  const GraphRange& range) {
    const Box box = Around(range);
    std::vector<std::vector<GraphPoint>> inside;
    bool goesOn = false;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const GraphPoint a = line[i - 1];
        const GraphPoint b = line[i];
        Way way;
        if (!box.Holds(a) || !box.Holds(b)) {
            way.Narrow(a.x, b.x, box.left, box.right);
            way.Narrow(a.y, b.y, box.bottom, box.top);
        }
        if (way.begin > way.end) {
            goesOn = false;
            continue;
        }
        if (!goesOn) {
            inside.push_back({box.Nearest(Way::At(a, b, way.begin))});
        }
        inside.back().push_back(box.Nearest(Way::At(a, b, way.end)));
        goesOn = way.end == 1;
    }
    return inside;
}

}  // namespace numerello
