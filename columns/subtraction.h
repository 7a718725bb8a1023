#pragma once

#include <string>

#include "columns/column_run.h"

namespace numerello {

/// Draws two whole numbers in columns, "-" before the lower one, the smaller below, and under the
/// rule the digits of their difference that are worked by now. Digits that were borrowed from or
/// added to are crossed out, and what they became stands above.
void ColumnSubtraction(std::string Top, std::string Bottom, ColumnRun& run);

}  // namespace numerello
