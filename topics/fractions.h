#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/problem.h"

/// Fractions as numbers, and ratios. Parts are repeated as typed. A part that is no number, or a
/// missing "/", ":", fails (Failure) at the first line that needs it, with the lines before it
/// written; a denominator 0 has words of its own.
namespace numerello {

/// A fraction as it reduces, and by what.
struct ReducedFraction {
    std::string text;                  ///< the numerator alone over 1
    std::int32_t FractionDivisor = 0;  ///< above 1; 0: nothing divides both; below 0: denominator 0
};

/// Throws Failure(Format) for a text without a "/".
ReducedFraction GreatestDivisorText(std::string_view FractionText);

/// Without `Standalone` there is no problem line.
void SimplifyFraction(Problem& problem, std::string_view FractionText, bool Standalone);

/// Whole and Fraction are the parts of a mixed number: 2 and 1/2.
void MixedToFraction(Problem& problem, std::string_view Whole, std::string_view Fraction);

void FractionToMixed(Problem& problem, std::string_view FractionText);

/// No arithmetic: nothing is refused.
void RatioToFraction(Problem& problem, std::string_view RatioText);

/// The texts before and behind a mark.
struct SplitParts {
    std::string_view first;
    std::string_view second;
};

/// At the first mark; throws Failure(Format) when there is none.
SplitParts SplitAt(std::string_view text, char mark);

}  // namespace numerello
