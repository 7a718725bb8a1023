#pragma once

#include <string_view>

#include "core/problem.h"

/// Rounding a number, repeated as typed. A text that is no number fails (Failure) at the first line
/// that computes, with the lines before it written.
namespace numerello {

/// To the nearest "1000", "100" or "10". Decimals are cut off first, so that 149.5 is not rounded
/// twice.
void RoundToPlace(Problem& problem, std::string_view ValueText, std::string_view PlaceText);

/// To the nearest "whole number", "tenth", "hundredth" or "thousandth", with 0 to 3 digits.
void RoundDecimal(Problem& problem, std::string_view ValueText, std::string_view Word, int Digits);

/// As the list of places has it: rows 0 to 6 from the nearest thousand to the nearest thousandth.
/// Throws Failure(Format) for any other row, before a line is written.
void RoundByChoice(Problem& problem, std::string_view ValueText, int ListIndex);

}  // namespace numerello
