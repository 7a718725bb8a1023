#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// The perimeter of a triangle with sides a, b and c (code 19), or of a rectangle with base a and
/// height b (code 13; c is not read). A side of 0 or less is refused below the formula; a text that
/// is no number fails (Failure) there.
void PerimeterOf(Problem& problem, std::string_view a, std::string_view b, std::string_view c,
                 int code);

}  // namespace numerello
