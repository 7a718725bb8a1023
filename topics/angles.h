#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// Names the kind of an angle of so many degrees. A text that is no number fails (Failure) behind
/// the problem line.
void ClassifyAngle(Problem& problem, std::string_view DegreesText);

}  // namespace numerello
