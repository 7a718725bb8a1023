#pragma once

#include <span>
#include <string>

#include "core/learner.h"
#include "output/print_heading.h"

namespace numerello {

/// Prints the lines of a practice test under their heading. `Printer` is an empty print surface in
/// the sheets' face at 12 points.
void PrintPracticeTest(const HeadingLines& heading, std::span<const std::string> TestLines,
                       Surface& Printer, Learner& learner);

}  // namespace numerello
