#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/problem.h"

/// The texts of numbers as the engine's lines hold them.
namespace numerello {

/// A coefficient: one number over another one.
struct Ratio {
    double over = 1;
    double under = 1;
};

/// A Single as text: whole numbers in full, others with the digits that a Single holds.
std::string SingleValueText(float value);

/// a/b in lowest terms, "a" over 1; "0" for a numerator of 0. Both are whole. Throws
/// Failure(DivisionByZero) for a denominator of 0, Failure(Overflow) beyond 32 bits.
std::string ReduceRatio(double a, double b);

/// The divisor that takes `a` to the numerator of a reduced ratio.
double ReducedBy(double a, std::string_view reduced);

/// The first whole number from 1 up whose product with the positive value is whole to 4 places, as
/// far as a Single tells. At most 20000: of so many multiples two lie within 1/20000 of each other,
/// but for whole numbers.
int FirstDenominator(float value);

/// The ratio as text. In fraction mode in lowest terms, decimals as the fraction of
/// FirstDenominator; in decimals mode as a number rounded to the learner's places. Throws
/// Failure(DivisionByZero) for a denominator of 0.
std::string NumberToFractionText(const AnswerSettings& settings, const Ratio& number);

/// The magnitude of a Single, as NumberToFractionText writes it.
std::string AbsValueToText(const AnswerSettings& settings, float value);

/// The prime factors of a whole number joined with "*"; "1" for 1. Throws Failure(Overflow) beyond
/// 32 bits.
std::string PrimeFactorList(double n);

/// The greatest whole number that divides all whole numbers of a text separated by blanks. Throws
/// Failure(Overflow) beyond 32 bits.
std::string GreatestCommonText(std::string_view list);

/// The least common multiple of whole numbers, "0" when one of them is 0. Throws Failure(Overflow)
/// beyond 32 bits.
std::string LeastCommonMultipleText(std::span<const double> numbers);

}  // namespace numerello
