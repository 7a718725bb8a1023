#pragma once

#include <string>
#include <string_view>

#include "engine/number_forms.h"
#include "engine/term_tables.h"

/// What a term is, and how it is written.
namespace numerello {

bool IsRoot(const Term& term);

/// Whether a term is a number, without letters and roots.
bool IsConstant(const Term& term);

/// Whether a number holds a decimal point; a power of ten is none.
bool HasPoint(std::string_view number);

/// The numbers over and under the line as written, without the sign, their exponents worked out; a
/// negative one changes the side. Throws Failure(DivisionByZero) for 0 without a positive exponent.
Ratio NumbersOf(const Term& term);

/// The same with the sign, without exponents.
Ratio SignedRatio(const Term& term);

/// A term: sign, coefficient "a" or "a/b", letters over and under the line.
std::string TermText(std::string_view sign, std::string_view coefficient, std::string_view NumText,
                     std::string_view DenText);

/// "a/b" of two numbers.
std::string RatioText(double over, double under);

/// A term without its sign, its numbers in plain digits.
std::string MagnitudeText(const Term& term);

/// What a reason calls a term: without a "+", a bare minus with its 1.
std::string NameOf(const Term& term);

/// The term upside down, without its sign.
std::string Flipped(const Term& term);

}  // namespace numerello
