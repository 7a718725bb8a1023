#pragma once

#include "core/solve_driver.h"

namespace numerello {

/// Every solver that stands, by topic code: the table that both faces hand to the driver.
const Solvers& AllSolvers();

}  // namespace numerello
