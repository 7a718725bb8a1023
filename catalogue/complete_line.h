#pragma once

#include "core/problem.h"

namespace numerello {

/// Whether the typed line is a problem that somebody finished: nothing is left open, an operand is
/// last, and it holds what its solver cannot do without.
bool LineIsComplete(const Problem& problem);

}  // namespace numerello
