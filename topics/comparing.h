#pragma once

#include "core/problem.h"

namespace numerello {

/// Tells which of two numbers is greater, and asks for the number line that shows it.
void CompareNumbers(Problem& problem, double A, double B);

}  // namespace numerello
