#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// Tells in which quadrant, or on which axis, a point lies. A coordinate that is no number fails
/// (Failure).
void PointQuadrant(Problem& problem, std::string_view XText, std::string_view YText);

}  // namespace numerello
