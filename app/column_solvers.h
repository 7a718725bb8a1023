#pragma once

#include <span>

#include "core/solve_driver.h"

namespace numerello {

/// The column topics, codes 200 to 203. They log no lines: each leaves its column request, which
/// the sheet draws step by step.
std::span<const SolverRow> ColumnSolvers();

}  // namespace numerello
