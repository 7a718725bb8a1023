#pragma once

#include <string>
#include <vector>

#include "worksheet/sheet_stack.h"

namespace numerello {

/// What stands on a sheet, row by row in math text: its lines, or where something was drawn without
/// any, as in a column problem, the pieces that stand side by side. A blank stands where a cell
/// stays empty and beside a cell of several digits. A piece that was drawn twice is there once. The
/// cross of a product is "*", the bracket of a division "into".
std::vector<std::string> SheetRows(const Sheet& sheet);

/// The upper edge of the lowest text that stands there; 0 where there is none.
double LowestText(const Surface& surface);

}  // namespace numerello
