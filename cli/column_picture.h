#pragma once

#include <string>
#include <vector>

#include "cli/json.h"

namespace numerello {

/// The marks of a column problem, as an answer tells them, drawn in characters: row by row, a cell
/// two characters wide, its rules as hyphens. What is crossed out is left as it is.
std::vector<std::string> ColumnPicture(const Json& marks);

}  // namespace numerello
