#pragma once

#include "core/problem.h"

namespace numerello {

/// The area of a shape, by topic code: 6 rectangle and 9 parallelogram (base in Text2, height in
/// Text1), 7 circle (radius in Text2), 8 triangle (base, height), 10 trapezoid (height in Text2, a
/// in Text1, b in Text3). A measure of 0 or less is refused in words, but not of a rectangle or
/// parallelogram; a text that is no number fails (Failure) behind the problem line. Throws
/// Failure(Format) for another code.
void AreaOf(Problem& problem, const EntryBoxes& boxes, int code);

}  // namespace numerello
