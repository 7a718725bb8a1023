#pragma once

#include <span>
#include <string>
#include <vector>

#include "typeset/surface.h"

namespace numerello {

/// The marks of a column problem drawn in characters: row by row, its rules as hyphens. A cell
/// is two characters wide, or more where numbers would touch. What is crossed out is left as it is.
std::vector<std::string> ColumnPicture(std::span<const Mark> marks);

}  // namespace numerello
