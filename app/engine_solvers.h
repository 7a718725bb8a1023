#pragma once

#include <span>

#include "core/solve_driver.h"

namespace numerello {

/// The topics that the expression engine works.
std::span<const SolverRow> EngineSolvers();

}  // namespace numerello
