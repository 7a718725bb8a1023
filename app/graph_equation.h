#pragma once

#include "core/solve_driver.h"

namespace numerello {

/// Solves a linear equation for one letter and leaves it to the graph in x and y, in ExprVariants.
void GraphEquation(SolveRun& run);

}  // namespace numerello
