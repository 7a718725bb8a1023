#include <algorithm>
#include <cmath>
#include <cstdint>

#include "core/number.h"
#include "engine/number_forms.h"

namespace numerello {

namespace {

constexpr int kPlaces = 4;
constexpr int kSingleBits = 24;

/// Whether the multiple counts as a whole number.
bool IsNearWhole(double multiple) {
    return static_cast<double>(ToSingle(Round(multiple, kPlaces))) == Round(multiple, 0);
}

/// The least k from 0 up for which low <= step * k mod modulus <= high; 0 <= low <= high < modulus,
/// and there is one. A Euclidean descent: whether the steps meet the interval is asked of the
/// remainders that `modulus` leaves among the steps.
std::int64_t FirstInside(std::int64_t step, std::int64_t modulus, std::int64_t low,
                         std::int64_t high) {
    if (low == 0) {
        return 0;
    }
    const std::int64_t direct = (low + step - 1) / step;
    if (step * direct <= high) {
        return direct;
    }
    const std::int64_t turnedLow = (step - high % step) % step;
    const std::int64_t turnedHigh = (step - low % step) % step;
    const std::int64_t turns = FirstInside(modulus % step, step, turnedLow, turnedHigh);
    return (low + modulus * turns + step - 1) / step;
}

/// The fractional part of a Single's multiples, in whole steps of its last bit.
class Multiples {
  public:
    explicit Multiples(float value) {
        int exponent = 0;
        const float mantissa = std::frexp(value, &exponent);
        units = static_cast<std::int64_t>(std::ldexp(mantissa, kSingleBits));
        one = std::int64_t{1} << std::max(kSingleBits - exponent, 0);
    }

    /// The first factor from `from` up whose multiple lies within `tolerance` of a whole number.
    std::int64_t FirstNear(std::int64_t from, double tolerance) const {
        const auto slack =
            static_cast<std::int64_t>(std::floor(tolerance * static_cast<double>(one)));
        if (2 * slack >= one) {
            return from;
        }
        const std::int64_t step = units % one;
        const std::int64_t low = (one - (from % one * step + slack) % one) % one;
        const std::int64_t high = low + 2 * slack;
        if (high >= one) {
            return from;
        }
        return from + FirstInside(step, one, low, high);
    }

  private:
    std::int64_t units;
    std::int64_t one;
};

/// How far from a whole number a multiple with this power of two may lie and still round to it:
/// half a place, and the places that a Single of that size does not tell apart. A little too wide
/// rather than too narrow.
double Tolerance(int exponent) {
    constexpr double kPlace = 0.0001;
    constexpr double kMargin = 1e-9;
    const double halfStep = std::ldexp(1.0, exponent - kSingleBits);
    return kPlace / 2 + kPlace * std::floor(halfStep / kPlace + kMargin) + kMargin;
}

}  // namespace

int FirstDenominator(float value) {
    const auto exact = static_cast<double>(value);
    if (IsNearWhole(exact)) {
        return 1;
    }
    const Multiples multiples(value);
    std::int64_t d = 2;
    while (true) {
        const int exponent = std::ilogb(exact * static_cast<double>(d));
        const double octaveEnd = std::ldexp(1.0, exponent + 1) / exact;
        const std::int64_t next = multiples.FirstNear(d, Tolerance(exponent));
        if (static_cast<double>(next) >= octaveEnd) {
            d = static_cast<std::int64_t>(std::ceil(octaveEnd));
        } else if (IsNearWhole(exact * static_cast<double>(next))) {
            return static_cast<int>(next);
        } else {
            d = next + 1;
        }
    }
}

}  // namespace numerello
