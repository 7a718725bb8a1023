#pragma once

#include <span>

#include "core/solve_driver.h"

namespace numerello {

/// The solvers of topics that are typed on the line: what of the line is which argument.
std::span<const SolverRow> LineSolvers();

}  // namespace numerello
