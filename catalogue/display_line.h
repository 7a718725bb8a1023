#pragma once

#include <string>

#include "core/problem.h"

/// Setting the typed characters out as mathematics.
namespace numerello {

/// Rebuilds ExprCells from ExprChars, one token a cell from 0: a number or a fraction of two
/// numbers stays together, every other character is a token of its own. The "~" that ends a root is
/// no token.
void ChunkChars(Problem& problem);

/// Sets the tokens of ExprCells apart, as kCellPitch says, with the marks of the notation in the
/// cells beside them; returns the line as text.
std::string FormatForDisplay(Problem& problem);

}  // namespace numerello
