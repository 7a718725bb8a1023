#pragma once

#include <string_view>

#include "core/problem.h"

/// Equations of fractions with one unknown. A text that is no number fails (Failure) at the first
/// line that computes, with the lines before it written; a division by 0 has words of its own.
namespace numerello {

/// #A/B# = #C/D# where one of the four is "x".
void SolveProportion(Problem& problem, std::string_view A, std::string_view B, std::string_view C,
                     std::string_view D);

/// The unknown one of the three holds its word: "amount", "N" or "base".
void AmountOfBase(Problem& problem, std::string_view Amount, std::string_view N,
                  std::string_view Base);

}  // namespace numerello
