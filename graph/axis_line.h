#pragma once

#include <optional>

#include "graph/graph_terms.h"

namespace numerello {

/// A line along one axis: "x=3" is vertical, "y=-1/2" horizontal.
struct AxisLine {
    char letter;
    double value;
};

/// The equation as such a line: a lone number on one side, a lone letter on the other. Nothing for
/// any other equation.
std::optional<AxisLine> AxisLineOf(const GraphTerms& terms);

}  // namespace numerello
