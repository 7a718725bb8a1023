#pragma once

#include "core/problem.h"

namespace numerello {

/// The perimeter of a shape, by topic code: 19 triangle (its sides in Text3, Text2 and Text1), 13
/// rectangle (base in Text2, height in Text1). A side of 0 or less is refused below the formula; a
/// text that is no number fails (Failure) there. Throws Failure(Format) for another code.
void PerimeterOf(Problem& problem, const EntryBoxes& boxes, int code);

}  // namespace numerello
