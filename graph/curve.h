#pragma once

#include <optional>
#include <vector>

#include "graph/graph_terms.h"

namespace numerello {

/// An equation solved for y: y = root of (the terms in x, divided by the coefficient of y).
class Curve {
  public:
    /// Throws Failure: DivisionByZero without a term in y or with a power 0 of it, Format for
    /// different powers of y.
    explicit Curve(const GraphTerms& terms);

    /// Whether y has an even power, and so a second branch below the first, at -y.
    bool HasTwoBranches() const;

    /// Whether it is a straight line.
    bool IsStraight() const;

    /// y, or the upper one of two; nothing where a negative number has no real root.
    /// Throws Failure for what has no value or one that is too large.
    std::optional<double> YAt(double x) const;

  private:
    void Take(const std::vector<GraphTerm>& side, double sign);

    double yCoefficient = 0;
    std::optional<double> yPower;
    std::vector<GraphTerm> others;  ///< as they stand on the side that has no y
};

}  // namespace numerello
