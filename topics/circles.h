#pragma once

#include <string_view>

#include "core/problem.h"

/// Circumference, diameter and radius of a circle. A measure of 0 or less is refused in words; a
/// text that is no number fails (Failure) behind the problem line.
namespace numerello {

/// From the radius, else from the diameter.
void CircumferenceOfCircle(Problem& problem, std::string_view ValueText, bool ByRadius);

void DiameterFromRadius(Problem& problem, std::string_view RadiusText);
void RadiusFromDiameter(Problem& problem, std::string_view DiameterText);

}  // namespace numerello
