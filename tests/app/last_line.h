#pragma once

#include <string>
#include <string_view>

namespace numerello {

enum class Digits { Fractions, Decimals };

/// Each tells what is left to do on a last line, nothing when it is worked out.

/// A whole number or a fraction in lowest terms, or a decimal number where those are asked for.
std::string LeftInNumber(std::string_view line, Digits digits = Digits::Fractions);

/// A product of powers of primes, the primes in order.
std::string LeftInPrimePowers(std::string_view line);

/// A sum of unlike roots of numbers without squares, and one number at most.
std::string LeftInRoots(std::string_view line);

/// A sum of unlike terms in decreasing order. Brackets may stay at a fraction line, and with a
/// negative power, when they hold several terms.
std::string LeftInPolynomial(std::string_view line, Digits digits = Digits::Fractions);

/// The right side of a line that is solved for a letter: unlike terms in any order.
std::string LeftInSum(std::string_view line, Digits digits = Digits::Fractions);

}  // namespace numerello
