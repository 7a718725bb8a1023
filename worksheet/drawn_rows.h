#pragma once

#include <string>
#include <vector>

#include "typeset/surface.h"

namespace numerello {

/// What is printed on a sheet as rows of text, from the top to the bottom and from left to right,
/// for those who hear it. A blank stands where a cell of a column problem stays empty.
std::vector<std::string> DrawnRows(const Surface& sheet);

}  // namespace numerello
