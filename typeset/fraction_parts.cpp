#include "typeset/fraction_parts.h"

#include "typeset/notation_walk.h"

namespace numerello {

namespace {

/// Signs and markers count as taking no room.
constexpr std::string_view kUncounted = " .[]^+-*~";

int CountedWidth(std::string_view part, std::size_t limit) {
    int count = 0;
    for (NotationWalk walk = NotationWalk::Bounded(part, limit); !walk.AtEnd(); walk.Step()) {
        if (kUncounted.find(walk.Here()) == std::string_view::npos) {
            ++count;
        }
    }
    return count;
}

}  // namespace

FractionParts SplitFraction(std::string_view body) {
    FractionParts parts;
    int depth = 0;
    for (std::size_t i = 0; i < body.size(); ++i) {
        if (body[i] == '(') {
            ++depth;
        } else if (body[i] == ')') {
            --depth;
        } else if (body[i] == '/' && depth == 0) {
            parts = {body.substr(0, i), body.substr(i + 1)};
        }
    }
    return parts;
}

FractionLayout LayOutFraction(const FractionParts& parts, std::size_t limit) {
    const int above = CountedWidth(parts.numerator, limit);
    const int below = CountedWidth(parts.denominator, limit);
    if (above == below) {
        return {.longest = parts.numerator};
    }
    if (above > below) {
        return {.denominatorPadding = 2 * (above - below - 1), .longest = parts.numerator};
    }
    return {.numeratorPadding = 2 * (below - above - 1), .longest = parts.denominator};
}

}  // namespace numerello
