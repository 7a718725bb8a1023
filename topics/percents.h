#pragma once

#include <string_view>

#include "core/problem.h"

/// The ways between fractions, decimals and percents. The number is repeated as typed. A text that
/// is no number fails (Failure) at the first line that computes, with the lines before it written;
/// a denominator 0 has words of its own.
namespace numerello {

// Inside another solver, without `Standalone`, these write no problem line.
void DecimalToFraction(Problem& problem, std::string_view ValueText, bool Standalone);
void DecimalToPercent(Problem& problem, std::string_view ValueText, bool Standalone);

/// A number without a "/" is in decimal form already.
void FractionToDecimal(Problem& problem, std::string_view FractionText);

void FractionToPercent(Problem& problem, std::string_view FractionText);

// The percent sign at the end may be missing.
void PercentToDecimal(Problem& problem, std::string_view PercentText);
void PercentToFraction(Problem& problem, std::string_view PercentText);

}  // namespace numerello
