#pragma once

#include <cstdint>
#include <map>

#include "tests/topics/rational.h"

namespace numerello {

/// An exact number with square roots: a rational part and multiples of the roots of square-free
/// numbers. Throws std::domain_error for a division by 0, and std::overflow_error for what it
/// cannot tell: numbers beyond 128 bits, a division by a root.
class RootSum {
  public:
    RootSum(const Rational& plain) : plain(plain) {}
    RootSum(std::int64_t whole) : plain(whole) {}

    /// The square root of a whole number from 0.
    static RootSum Root(std::int64_t radicand);

    const Rational& Plain() const { return plain; }
    bool IsPlain() const { return roots.empty(); }

    RootSum operator-() const { return *this * RootSum(-1); }
    friend RootSum operator+(RootSum a, const RootSum& b);
    friend RootSum operator*(const RootSum& a, const RootSum& b);
    friend RootSum operator/(const RootSum& a, const RootSum& b);
    friend bool operator==(const RootSum& a, const RootSum& b) {
        return a.plain == b.plain && a.roots == b.roots;
    }

  private:
    void AddRoot(std::int64_t radicand, const Rational& count);

    Rational plain;
    std::map<std::int64_t, Rational> roots;  ///< how many of each; never 0
};

/// What a whole number above 0 is: outside * outside * inside, with no square left inside.
struct SquareFactors {
    std::int64_t outside = 1;
    std::int64_t inside = 1;
};
SquareFactors SquareFactorsOf(std::int64_t number);

}  // namespace numerello
