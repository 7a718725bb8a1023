#pragma once

#include <string_view>

/// Sentences that more than one way of working gives.
namespace numerello {

/// Never shown but as the reason of a first line.
inline constexpr std::string_view kReorderReason = "Reorder the polynomial.";

/// Shown where a bracket has gone.
inline constexpr std::string_view kRemoveParensReason = "Remove the parenthesis.";

inline constexpr std::string_view kFlipReason =
    "To divide two fractions, flip the numerator and denominator of one of the fractions, then "
    "multiply the fractions.";

inline constexpr std::string_view kWrittenOutReason =
    "Remove exponents by multiplying the number by itself the same number of times as the "
    "exponent.";

inline constexpr std::string_view kZeroPowerReason = "Any number raised to the 0th power is 1.";

inline constexpr std::string_view kLetterZeroPowerReason =
    "Any variable or number raised to the 0th power is 1.";

inline constexpr std::string_view kZeroDividedReason = "0 divided by any number equals 0.";

}  // namespace numerello
