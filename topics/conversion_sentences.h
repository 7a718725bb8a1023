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
