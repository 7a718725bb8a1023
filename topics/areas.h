#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// The area of a shape, by topic code: 6 rectangle and 9 parallelogram (base, height), 7 circle
/// (pi, radius), 8 triangle (base, height), 10 trapezoid (height, a, b). Measures not named are not
/// read. A measure of 0 or less is refused in words, but not of a rectangle or parallelogram; a
/// text that is no number fails (Failure) behind the problem line. Throws Failure(Format) for
/// another code.
void AreaOf(Problem& problem, std::string_view first, std::string_view second,
            std::string_view third, int code);

}  // namespace numerello
