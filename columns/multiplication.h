#pragma once

#include <string>

#include "columns/column_run.h"

namespace numerello {

/// How many cells of a product are drawn, one with each step behind the first drawing. A longer one
/// is cut off there and never finished.
inline constexpr int kMostCells = 100;

/// Draws two whole numbers in columns, "x" before the lower one, and below the rule the first cells
/// of their multiplication: partial products with inserted zeros, carries above, then the column
/// sums. One cell more with every drawing, 100 at most, where a longer working is cut off. The
/// shorter number stands below.
void ColumnMultiplication(std::string Top, std::string Bottom, ColumnRun& run);

}  // namespace numerello
