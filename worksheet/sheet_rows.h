#pragma once

#include <string>
#include <vector>

#include "worksheet/sheet_stack.h"

namespace numerello {

/// What stands on a sheet, row by row in math text: its lines, or where something was drawn without
/// any, as in a column problem, the pieces that stand side by side.
std::vector<std::string> SheetRows(const Sheet& sheet);

}  // namespace numerello
