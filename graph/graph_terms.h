#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/problem.h"

namespace numerello {

/// A number, or a number times a power of a letter.
struct GraphTerm {
    double coefficient = 1;
    char letter = '\0';  ///< 'x', 'y', or none
    double power = 1;
};

/// An equation in x and y, split at "=" into the terms of its two sides.
struct GraphTerms {
    /// A side is a table of so many entries, three for each term.
    static constexpr int kEntries = 101;
    static constexpr int kMostTerms = kEntries / 3;

    std::vector<GraphTerm> left;
    std::vector<GraphTerm> right;  ///< a side without a term is 0
};

/// The equation that was left to the graph, as its cells hold it.
std::string EquationText(const TypedProblem& typed);

/// Reads such a text: "+1/1y^+1=-2/3x+2/1". Blanks and the marks of notation are passed over; a
/// fraction is divided out; without a number the coefficient is 1, without "^" the power.
/// Throws Failure: Format for what is no equation of such terms (parentheses and absolute bars
/// included) or has too many of them, DivisionByZero for a denominator 0.
GraphTerms ReadGraphTerms(std::string_view text);

}  // namespace numerello
