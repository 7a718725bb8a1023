#pragma once

#include <string>

#include "columns/column_run.h"

namespace numerello {

/// Draws two whole numbers in columns, "+" before the lower one, and below the rule the digits of
/// their sum that are worked by now, the carries above the columns they go to.
void ColumnAddition(std::string Top, std::string Bottom, ColumnRun& run);

}  // namespace numerello
