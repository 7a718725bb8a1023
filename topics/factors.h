#pragma once

#include <string>
#include <string_view>

#include "core/problem.h"

/// Factors, multiples and primes of one whole number. A text that is no number fails (Failure) at
/// the first line that computes, with the lines before it written.
namespace numerello {

/// Eleven rows, 0 * v to 10 * v.
void ListMultiples(Problem& problem, std::string_view ValueText);

/// The factor pairs of a number, and the list of its factors; `ValueText` becomes the text of its
/// whole value. A value below 1 has no lines. Without `Standalone` there is no problem line.
/// True when there is exactly one pair: the number is 1 or prime.
bool ListFactors(Problem& problem, std::string& ValueText, bool Standalone);

/// A value below 1 leaves the problem line alone.
void PrimeOrComposite(Problem& problem, std::string_view ValueText);

/// A line for each prime factor taken out. A value with decimals has none.
void PrimeFactorization(Problem& problem, std::string_view ValueText);

}  // namespace numerello
