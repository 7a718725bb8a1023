#include "root_sum.h"

namespace numerello {

SquareFactors SquareFactorsOf(std::int64_t number) {
    SquareFactors factors{1, number};
    for (std::int64_t d = 2; d * d <= factors.inside; ++d) {
        while (factors.inside % (d * d) == 0) {
            factors.inside /= d * d;
            factors.outside *= d;
        }
    }
    return factors;
}

RootSum RootSum::Root(std::int64_t radicand) {
    RootSum root(0);
    if (radicand != 0) {
        const SquareFactors factors = SquareFactorsOf(radicand);
        root.AddRoot(factors.inside, factors.outside);
    }
    return root;
}

void RootSum::AddRoot(std::int64_t radicand, const Rational& count) {
    if (radicand == 1) {
        plain = plain + count;
        return;
    }
    const auto place = roots.try_emplace(radicand, 0).first;
    place->second = place->second + count;
    if (place->second == 0) {
        roots.erase(place);
    }
}

RootSum operator+(RootSum a, const RootSum& b) {
    a.plain = a.plain + b.plain;
    for (const auto& [radicand, count] : b.roots) {
        a.AddRoot(radicand, count);
    }
    return a;
}

RootSum operator*(const RootSum& a, const RootSum& b) {
    RootSum product(a.plain * b.plain);
    for (const auto& [radicand, count] : a.roots) {
        product.AddRoot(radicand, count * b.plain);
        for (const auto& [other, times] : b.roots) {
            const SquareFactors factors = SquareFactorsOf(radicand * other);
            product.AddRoot(factors.inside, count * times * factors.outside);
        }
    }
    for (const auto& [radicand, count] : b.roots) {
        product.AddRoot(radicand, count * a.plain);
    }
    return product;
}

RootSum operator/(const RootSum& a, const RootSum& b) {
    if (!b.IsPlain()) {
        throw std::overflow_error("a division by a root");
    }
    return a * RootSum(Rational(1) / b.plain);
}

}  // namespace numerello
