#pragma once

#include <span>
#include <string>
#include <string_view>

#include "typeset/surface.h"

namespace numerello {

/// The picture of the graph on a printed page, in its drawing order among the page's marks.
inline constexpr std::string_view kGraphPicture = "graph";

/// Sets out a page of 800 by 600 units for the graph: the heading's lines if wanted, then the
/// picture with its upper left corner at the pen. Ends the page; ending the document is the
/// caller's.
void PrintTheGraph(Surface& page, std::span<const std::string> heading, bool WithHeading);

}  // namespace numerello
