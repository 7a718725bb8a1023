#pragma once

#include <vector>

#include "graph/plot.h"

namespace numerello {

/// What of a line of joined points lies in the range or near it: none, one or several lines. A
/// picture can be drawn from them whatever the size of the numbers; their ends lie outside of it.
std::vector<std::vector<GraphPoint>> LinesInRange(const std::vector<GraphPoint>& line,
                                                  const GraphRange& range);

/// Whether a dot at that place can be seen.
bool IsNearRange(GraphPoint point, const GraphRange& range);

}  // namespace numerello
