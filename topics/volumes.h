#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// The volume of a shape, by topic code: 1 box and 4 pyramid (length, width, height), 2 cylinder
/// and 3 cone (pi, radius, height), 5 sphere (pi, radius). Measures not named are not read. A
/// measure of 0 or less is refused in words, but not of a cone; a text that is no number fails
/// (Failure) behind the problem line. Throws Failure(Format) for another code.
void VolumeOf(Problem& problem, std::string_view first, std::string_view second,
              std::string_view third, int code);

}  // namespace numerello
