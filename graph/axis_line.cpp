#include "graph/axis_line.h"

namespace numerello {

namespace {

using Side = std::vector<GraphTerm>;

std::optional<char> LoneLetter(const Side& side) {
    const bool lone = side.size() == 1 && side[0].letter != '\0' && side[0].coefficient == 1 &&
                      side[0].power == 1;
    return lone ? std::optional(side[0].letter) : std::nullopt;
}

/// What came to 0 was left out of the equation.
std::optional<double> LoneNumber(const Side& side) {
    if (side.empty()) {
        return 0;
    }
    const bool lone = side.size() == 1 && side[0].letter == '\0';
    return lone ? std::optional(side[0].coefficient) : std::nullopt;
}

std::optional<AxisLine> Line(const Side& variable, const Side& number) {
    const std::optional<char> letter = LoneLetter(variable);
    const std::optional<double> value = LoneNumber(number);
    return letter && value ? std::optional(AxisLine{*letter, *value}) : std::nullopt;
}

}  // namespace

std::optional<AxisLine> AxisLineOf(const GraphTerms& terms) {
    const std::optional<AxisLine> line = Line(terms.left, terms.right);
    return line ? line : Line(terms.right, terms.left);
}

}  // namespace numerello
