#pragma once

#include <string>

#include "graph/graph.h"

namespace numerello {

/// The drawing in words, for those who cannot see it: "x and y go from -20 to 20. A line that rises
/// from left to right. It crosses the x axis at -1.5 and the y axis at 3."
std::string SpokenGraph(const Graph& graph);

/// What has to be drawn for one point or two, as one would check it on paper: "From the crossing of
/// the axes 3 to the right and 4 up.", "A line that rises from left to right. It crosses ...".
std::string SpokenAnswer(const GraphRequest& points);

}  // namespace numerello
