#pragma once

#include "core/learner.h"
#include "core/problem.h"
#include "typeset/surface.h"

namespace numerello {

/// Prints the finished working of a column problem below the pen, on a new page when it does not
/// fit, and leaves the pen below it. Numbers that cannot be worked are printed as a line.
void PrintWholeColumns(const Problem& problem, Surface& Printer, Learner& learner);

}  // namespace numerello
