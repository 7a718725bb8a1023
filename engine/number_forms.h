#pragma once

#include <span>
#include <string>

#include "core/problem.h"

/// The texts of numbers as the engine's lines hold them.
namespace numerello {

/// a/b in lowest terms, "a" over 1; "0" for a numerator of 0. Both are whole. Throws
/// Failure(DivisionByZero) for a denominator of 0, Failure(Overflow) beyond 32 bits.
std::string ReduceRatio(double a, double b);

/// The magnitude of a Single: a fraction in fraction mode, else rounded to the learner's places.
/// A value that is no small fraction gives the one whose multiple comes within 0.00005 of a whole
/// number.
std::string AbsValueToText(const AnswerSettings& settings, float value);

/// The prime factors of a whole number joined with "*"; "1" for 1. Throws Failure(Overflow) beyond
/// 32 bits.
std::string PrimeFactorList(double n);

/// The least common multiple of whole numbers, "0" when one of them is 0. Throws Failure(Overflow)
/// beyond 32 bits.
std::string LeastCommonMultipleText(std::span<const double> numbers);

}  // namespace numerello
