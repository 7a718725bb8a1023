#include "graph/coordinate_list.h"

#include "core/bounds.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

std::string CoordinateEntry(const Plot& plot, int index) {
    CheckIndex(index, static_cast<int>(plot.points.size()) - 1);
    const GraphPoint& point = plot.points[static_cast<std::size_t>(index)];
    const double x = plot.isCurve ? Round(point.x, 2) : point.x;
    return Text("x=", NumberText(x), "  y=", NumberText(point.y));
}

}  // namespace numerello
