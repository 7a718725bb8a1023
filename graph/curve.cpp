#include "graph/curve.h"

#include <algorithm>
#include <cmath>

#include "core/failure.h"
#include "core/number.h"

namespace numerello {

namespace {

bool HasY(const std::vector<GraphTerm>& side) {
    return std::any_of(side.begin(), side.end(),
                       [](const GraphTerm& term) { return term.letter == 'y'; });
}

double ValueAt(const GraphTerm& term, double x) {
    const double factor = term.letter == '\0' ? 1 : Checked(std::pow(x, term.power));
    return Checked(term.coefficient * factor);
}

}  // namespace

Curve::Curve(const GraphTerms& terms) {
    const bool yIsLeft = HasY(terms.left);
    Take(yIsLeft ? terms.left : terms.right, 1);
    Take(yIsLeft ? terms.right : terms.left, -1);
    if (yCoefficient == 0 || yPower == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
}

/// Terms in y come to the one side, with this sign, and all others to the other one.
void Curve::Take(const std::vector<GraphTerm>& side, double sign) {
    for (GraphTerm term : side) {
        if (term.letter != 'y') {
            term.coefficient *= -sign;
            others.push_back(term);
            continue;
        }
        if (yPower && *yPower != term.power) {
            throw Failure(FailureKind::Format);
        }
        yPower = term.power;
        yCoefficient += sign * term.coefficient;
    }
}

bool Curve::HasTwoBranches() const {
    return std::fmod(*yPower, 2) == 0;
}

bool Curve::IsStraight() const {
    return *yPower == 1 && std::all_of(others.begin(), others.end(), [](const GraphTerm& term) {
        return term.letter == '\0' || term.power == 1 || term.power == 0;
    });
}

std::optional<double> Curve::YAt(double x) const {
    double sum = 0;
    for (const GraphTerm& term : others) {
        sum = Checked(sum + ValueAt(term, x));
    }
    const double value = Divide(sum, yCoefficient);
    if (*yPower == 1) {
        return value;
    }
    const bool isOdd = std::fmod(std::abs(*yPower), 2) == 1;
    if (!isOdd && value < 0) {
        return std::nullopt;
    }
    const double root = Checked(std::pow(isOdd ? std::abs(value) : value, 1 / *yPower));
    return isOdd ? std::copysign(root, value) : root;
}

}  // namespace numerello
