#pragma once

#include <string>

#include "columns/column_run.h"

namespace numerello {

/// Draws a long division of whole numbers: the divisor, the dividend under its bar, the quotient's
/// digits that are worked by now above it, and below each its product, the difference and in red
/// the digit that is brought down. The greater number is divided by the other one.
/// Failure(Overflow) for a dividend beyond 32 bits, unless the divisor is 0.
void LongDivision(std::string Dividend, std::string Divisor, ColumnRun& run);

}  // namespace numerello
