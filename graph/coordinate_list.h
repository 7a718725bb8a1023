#pragma once

#include <string>

#include "graph/plot.h"

namespace numerello {

/// The coordinate list's entry of the plot's point at this index: "x=4  y=-8". The x of a curve's
/// point is rounded to 2 places. Throws Failure(Format) for an index that no point has.
std::string CoordinateEntry(const Plot& plot, int index);

}  // namespace numerello
