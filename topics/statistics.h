#pragma once

#include <string_view>

#include "core/problem.h"

/// Mean, median, mode and range of numbers separated by commas. An entry that is no number, an
/// empty one included, fails (Format) at the step that first computes with it, with the lines
/// before it written; the mode compares texts and fails at nothing.
namespace numerello {

void FindMean(Problem& problem, std::string_view ListText);
void FindMedian(Problem& problem, std::string_view ListText);
void FindMode(Problem& problem, std::string_view ListText);
void FindRange(Problem& problem, std::string_view ListText);

}  // namespace numerello
