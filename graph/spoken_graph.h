#pragma once

#include <string>

#include "graph/graph.h"

namespace numerello {

/// The drawing in words, for those who cannot see it: "x and y go from -20 to 20. A line that rises
/// from left to right. It crosses the x axis at -1.5 and the y axis at 3."
std::string SpokenGraph(const Graph& graph);

}  // namespace numerello
