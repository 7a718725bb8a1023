#pragma once

#include <string>
#include <string_view>

#include "core/problem.h"

namespace numerello {

/// The product of two letter texts such as "x^2y": exponents add up, letters stand in the order of
/// VarNames, and what cancels is left out. A power of a number at their head ("^2") is no letter.
std::string MultiplyLetters(const TypedProblem& typed, std::string_view one,
                            std::string_view other);

}  // namespace numerello
