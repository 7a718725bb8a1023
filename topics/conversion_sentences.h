#pragma once

#include <string>
#include <string_view>

#include "core/problem.h"

/// What the conversions share: sentences with places for numbers, and one multiplication or
/// division.
namespace numerello {

/// A line of the step log and its reason. {v} is the value as typed, {f} the value of the first
/// stage and {r} the result.
struct ConversionLine {
    std::string_view text;
    std::string_view note;
};

// Facts that direct and chained conversions share.
inline constexpr ConversionLine kTwelveInches{"There are 12 inches in a foot.",
                                              "12 inches = 1 foot"};
inline constexpr ConversionLine kThreeFeet{"There are 3 feet in a yard.", "3 feet = 1 yard"};
inline constexpr ConversionLine kFeetOfMile{"There are 5280 feet in a mile.", "5280 feet = 1 mile"};

struct ConversionNumbers {
    std::string_view v{};
    std::string_view f{};
    std::string_view r{};
};

void WriteConversionLine(Problem& problem, const ConversionLine& line,
                         const ConversionNumbers& numbers);

/// The problem line: the value as typed, without a reason.
void WriteProblemLine(Problem& problem, std::string_view ValueText);

inline constexpr int kEveryDigit = -1;      ///< no rounding
inline constexpr int kLearnersDigits = -2;  ///< the places that the learner chose

struct ConversionArithmetic {
    enum class Operation { Multiply, Divide } operation;
    double factor;
    int digits;  ///< places to round to, or one of the two constants above
};

/// The result as number text.
std::string Convert(const Problem& problem, const ConversionArithmetic& arithmetic,
                    std::string_view ValueText);

}  // namespace numerello
