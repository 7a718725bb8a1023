#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// All conversions between text and number, and the arithmetic that raises the trapped failures.
/// Numbers are Doubles unless a name says Single. No procedure returns a NaN or an infinity.
namespace numerello {

/// The number that a text stands for: an optional sign, digits with at most one point, an optional
/// power of ten ("1.5E+15"); blanks around it are ignored and an empty text is 0.
/// Throws Failure(Format) for any other text, Failure(Overflow) beyond the range of a Double.
double ToNumber(std::string_view text);

/// The number that a text stands for, nothing for a text that is none or lies beyond
/// the range of a Double. An empty text is none.
std::optional<double> ReadNumber(std::string_view text);

/// The whole number that a text spells in decimal digits, with an optional sign; blanks around it
/// are ignored. Nothing for any other text and beyond the 16-bit range.
std::optional<std::int16_t> ReadInteger16(std::string_view text);

/// As ReadInteger16, whatever stands behind the digits.
std::optional<std::int16_t> LeadingInteger16(std::string_view text);

/// At most 15 significant digits, no trailing zeros, a 0 before the point. From 1E+15 up, and when
/// the first significant digit stands beyond the fifteenth place after the point, exponent form
/// with at least two digits of exponent: "1E+15", "1.5E-16". Minus zero is "0".
std::string NumberText(double value);

/// As NumberText, with 7 significant digits.
std::string SingleText(float value);

/// The digits behind the point of a typed number. Sums and differences of such numbers have no more
/// than the longest of them: rounded to that, they are rid of the noise of Doubles.
int DecimalPlaces(std::string_view number);

/// A whole number in decimal digits.
std::string WholeText(std::int64_t value);

/// Half to even at `places` (0 or more) decimal places, on the value scaled by the power of ten.
/// Failure(Overflow) for a value that is no finite number.
double Round(double value, int places);

/// `value`, or Failure(Overflow) when it is no finite number.
double Checked(double value);

inline bool IsWhole(double value) {
    return value == std::trunc(value);
}

/// Whether it is whole and so small that its neighbours are Doubles too.
bool IsExactWhole(double value);

/// Failure(DivisionByZero) for a divisor 0, also of 0; Failure(Overflow) beyond the range.
double Divide(double dividend, double divisor);

/// Half to even, then Failure(Overflow) outside the 16-bit range.
std::int16_t ToInteger16(double value);

/// Half to even, then Failure(Overflow) outside the 32-bit range.
std::int32_t ToInteger32(double value);

/// The smallest number that both divide, without a sign; 0 beside a 0. Failure(Overflow) beyond the
/// 32-bit range.
std::int32_t LeastCommonMultiple(std::int32_t one, std::int32_t other);

/// The nearest Single; Failure(Overflow) beyond the largest one.
float ToSingle(double value);

}  // namespace numerello
