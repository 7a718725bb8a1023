#pragma once

#include <string>

#include "core/problem.h"

namespace numerello {

/// The number text of a value, rounded to the learner's places.
std::string RoundedResult(const Problem& problem, double value);

}  // namespace numerello
