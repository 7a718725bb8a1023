#pragma once

#include <span>

#include "core/solve_driver.h"

namespace numerello {

/// The solvers of topics that are typed into boxes: which box is which argument.
std::span<const SolverRow> BoxSolvers();

}  // namespace numerello
