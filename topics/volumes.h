#pragma once

#include "core/problem.h"

namespace numerello {

/// The volume of a shape, by topic code: 1 box and 4 pyramid (length in Text2, width in Text3,
/// height in Text1), 2 cylinder and 3 cone (radius in Text2, height in Text1), 5 sphere (radius in
/// Text2). A measure of 0 or less is refused in words, but not of a cone; a text that is no number
/// fails (Failure) behind the problem line. Throws Failure(Format) for another code.
void VolumeOf(Problem& problem, const EntryBoxes& boxes, int code);

}  // namespace numerello
