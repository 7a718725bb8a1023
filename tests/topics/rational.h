#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace numerello {

__extension__ typedef __int128 Int128;

/// An exact number: a fraction in lowest terms, its denominator above 0. Throws std::overflow_error
/// beyond 128 bits and std::domain_error for a denominator 0.
class Rational {
  public:
    Rational(std::int64_t whole) : numerator(whole) {}

    Rational(Int128 top, Int128 bottom) : numerator(top), denominator(bottom) {
        if (bottom == 0) {
            throw std::domain_error("a denominator 0");
        }
        Int128 divisor = top < 0 ? -top : top;
        for (Int128 rest = bottom < 0 ? -bottom : bottom; rest != 0;) {
            divisor = std::exchange(rest, divisor % rest);
        }
        divisor = bottom < 0 ? -divisor : divisor;
        numerator /= divisor;
        denominator /= divisor;
    }

    /// Of an optional "-" and digits with at most one point.
    static Rational Of(std::string_view text) {
        const bool negative = text.starts_with('-');
        Int128 digits = 0;
        Int128 scale = 1;
        bool behindPoint = false;
        for (const char c : text.substr(negative ? 1 : 0)) {
            if (c == '.') {
                behindPoint = true;
                continue;
            }
            if (c < '0' || c > '9') {
                throw std::domain_error("no digit in " + std::string(text));
            }
            digits = Times(digits, 10) + (c - '0');
            scale = behindPoint ? Times(scale, 10) : scale;
        }
        return {negative ? -digits : digits, scale};
    }

    Int128 Numerator() const { return numerator; }
    Int128 Denominator() const { return denominator; }

    friend Rational operator+(const Rational& a, const Rational& b) {
        return {Plus(Times(a.numerator, b.denominator), Times(b.numerator, a.denominator)),
                Times(a.denominator, b.denominator)};
    }
    friend Rational operator-(const Rational& a, const Rational& b) { return a + b * -1; }
    friend Rational operator*(const Rational& a, const Rational& b) {
        return {Times(a.numerator, b.numerator), Times(a.denominator, b.denominator)};
    }
    friend Rational operator/(const Rational& a, const Rational& b) {
        return {Times(a.numerator, b.denominator), Times(a.denominator, b.numerator)};
    }
    friend bool operator==(const Rational& a, const Rational& b) {
        return a.numerator == b.numerator && a.denominator == b.denominator;
    }
    friend bool operator<(const Rational& a, const Rational& b) { return (a - b).numerator < 0; }
    friend bool operator<=(const Rational& a, const Rational& b) { return !(b < a); }

  private:
    static Int128 Times(Int128 a, Int128 b) {
        Int128 product = 0;
        if (__builtin_mul_overflow(a, b, &product)) {
            throw std::overflow_error("beyond 128 bits");
        }
        return product;
    }
    static Int128 Plus(Int128 a, Int128 b) {
        Int128 sum = 0;
        if (__builtin_add_overflow(a, b, &sum)) {
            throw std::overflow_error("beyond 128 bits");
        }
        return sum;
    }

    Int128 numerator;
    Int128 denominator = 1;
};

inline std::string DigitsOf(Int128 count) {
    std::string digits;
    do {
        digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(count % 10)));
        count /= 10;
    } while (count != 0);
    return digits;
}

/// A number between its neighbours with so many places, by long division.
struct Neighbours {
    std::string lower;  ///< of magnitude
    std::string upper;
    Int128 units = 0;      ///< of the last place, of the lower
    long double rest = 0;  ///< behind it, 0 to 1 such units

    bool IsExact() const { return rest == 0; }
};

/// count / 10^places without zeros at the end.
inline std::string DecimalText(Int128 count, int places, bool negative) {
    std::string digits = DigitsOf(count);
    const auto behind = static_cast<std::size_t>(places);
    if (digits.size() <= behind) {
        digits.insert(0, behind + 1 - digits.size(), '0');
    }
    std::string text =
        digits.substr(0, digits.size() - behind) + "." + digits.substr(digits.size() - behind);
    text.erase(text.find_last_not_of('0') + 1);
    text.erase(text.find_last_not_of('.') + 1);
    return (negative && count != 0 ? "-" : "") + text;
}

inline Neighbours NeighboursOf(const Rational& value, int places) {
    const bool negative = value.Numerator() < 0;
    const Int128 top = negative ? -value.Numerator() : value.Numerator();
    Neighbours result;
    result.units = top / value.Denominator();
    Int128 remainder = top % value.Denominator();
    for (int i = 0; i < places; ++i) {
        remainder *= 10;
        result.units = result.units * 10 + remainder / value.Denominator();
        remainder %= value.Denominator();
    }
    result.lower = DecimalText(result.units, places, negative);
    result.upper = DecimalText(result.units + 1, places, negative);
    result.rest =
        static_cast<long double>(remainder) / static_cast<long double>(value.Denominator());
    return result;
}

/// The number in full; it has to end within 30 places.
inline std::string TextOf(const Rational& value) {
    const Neighbours neighbours = NeighboursOf(value, 30);
    EXPECT_TRUE(neighbours.IsExact()) << neighbours.lower;
    return neighbours.lower;
}

/// That the text is the nearer neighbour, or either one where the number stands no further than
/// `slack` from the middle between them.
inline void ExpectNearer(std::string_view shown, const Neighbours& neighbours, long double slack) {
    const long double toMiddle = neighbours.rest - 0.5L;
    if (!neighbours.IsExact() && (toMiddle < 0 ? -toMiddle : toMiddle) <= slack) {
        EXPECT_TRUE(shown == neighbours.lower || shown == neighbours.upper)
            << shown << " is neither " << neighbours.lower << " nor " << neighbours.upper;
        return;
    }
    EXPECT_EQ(shown, toMiddle < 0 ? neighbours.lower : neighbours.upper);
}

/// That the text is the number rounded to so many places; at a tie, which Doubles need not hit,
/// either way.
inline void ExpectRounded(std::string_view shown, const Rational& value, int places) {
    constexpr long double kTie = 1e-9L;
    ExpectNearer(shown, NeighboursOf(value, places), kTie);
}

/// That the text is the number with 15 significant digits, as far as a few operations on Doubles
/// can tell; a number that needs no more digits is shown in full. For magnitudes of 1E-14 to 1E+15.
inline void ExpectFifteenDigits(std::string_view shown, const Rational& value) {
    constexpr int kDigits = 15;
    if (value == 0) {
        EXPECT_EQ(shown, "0");
        return;
    }
    int places = kDigits - 1;
    while (DigitsOf(NeighboursOf(value, places).units).size() > kDigits) {
        --places;
        ASSERT_GE(places, 0) << shown;
    }
    while (DigitsOf(NeighboursOf(value, places).units).size() < kDigits) {
        ++places;
        ASSERT_LE(places, 2 * kDigits) << shown;
    }
    const Neighbours neighbours = NeighboursOf(value, places);
    ExpectNearer(shown, neighbours, static_cast<long double>(neighbours.units) * 0x1p-51L);
}

/// The last line of a fraction that was simplified.
inline std::string SimplifiedLine(const Rational& value, const std::string& fraction) {
    const std::string top =
        (value.Numerator() < 0 ? "-" : "") +
        DigitsOf(value.Numerator() < 0 ? -value.Numerator() : value.Numerator());
    if (value.Denominator() == 1) {
        return top;
    }
    const std::string text = top + "/" + DigitsOf(value.Denominator());
    return text == fraction ? "Already simplified." : "#" + text + "#";
}

}  // namespace numerello
