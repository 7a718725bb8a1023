#pragma once

#include "typeset/surface.h"

namespace numerello {

/// Draws the number line that shows A and B, from (150, 150) to (550, 150). The pen ends 46 below
/// where it was, under the line.
void DrawNumberLine(Surface& surface, double A, double B);

}  // namespace numerello
