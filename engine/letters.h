#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/problem.h"

/// The letters of a term as the term tables hold them, such as "x^2y". A power of a number at their
/// head ("^2") is no letter.
namespace numerello {

struct LetterPower {
    std::string letter;
    double exponent = 1;
};

bool HasLetters(std::string_view text);

/// The letters in written order.
std::vector<LetterPower> ReadLetters(std::string_view text);

/// Letters with their exponents; "^1" is left out.
std::string LettersText(const std::vector<LetterPower>& letters);

/// The product of two letter texts: exponents add up, letters stand in the order of VarNames, and
/// what cancels is left out.
std::string MultiplyLetters(const TypedProblem& typed, std::string_view one,
                            std::string_view other);

/// Letters over and under a line.
struct LetterRatio {
    std::string over;
    std::string under;
};

/// Letters over a line divided by those under it: what cancels is left out, negative exponents
/// change their side.
LetterRatio DivideLetters(const TypedProblem& typed, std::string_view over, std::string_view under);

}  // namespace numerello
