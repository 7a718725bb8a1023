#pragma once

#include <cstddef>
#include <string_view>

namespace numerello {

/// Views into the body of a fraction.
struct FractionParts {
    std::string_view numerator;
    std::string_view denominator;
};

/// Blanks before each part, a rough centring in which two blanks stand for one digit, and the part
/// whose end is the bar's.
struct FractionLayout {
    int numeratorPadding = 0;
    int denominatorPadding = 0;
    std::string_view longest;
};

/// Parts at the last "/" outside parentheses; both are empty when there is none.
FractionParts SplitFraction(std::string_view body);

/// Throws Failure(Format) for a part of more than `limit` characters.
FractionLayout LayOutFraction(const FractionParts& parts, std::size_t limit);

}  // namespace numerello
