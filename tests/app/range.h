#pragma once

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace numerello {

/// Where a number may lie that came from rounded ones.
struct Range {
    long double low = 0;
    long double high = 0;

    Range operator-() const { return {-high, -low}; }
    friend Range operator+(const Range& a, const Range& b) {
        return {a.low + b.low, a.high + b.high};
    }
    friend Range operator*(const Range& a, const Range& b) {
        const auto [low, high] =
            std::minmax({a.low * b.low, a.low * b.high, a.high * b.low, a.high * b.high});
        return {low, high};
    }
    /// Throws std::overflow_error when the divisor may be 0.
    friend Range operator/(const Range& a, const Range& b) {
        if (b.low <= 0 && b.high >= 0) {
            throw std::overflow_error("the divisor may be 0");
        }
        return a * Range{1 / b.high, 1 / b.low};
    }

    /// But for what calculating with long doubles loses.
    bool Holds(long double number) const {
        const long double slack = 1e-9L * std::max(1.0L, std::fabs(number));
        return low - slack <= number && number <= high + slack;
    }
};

}  // namespace numerello
