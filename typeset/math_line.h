#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/learner.h"
#include "typeset/sheets.h"
#include "typeset/variants.h"

namespace numerello {

/// A line holds at most so many characters; the rest of a longer one is not drawn.
inline constexpr std::size_t kLineLimit = 3000;

struct PenPosition {
    double x;
    double y;
};

/// Draws the characters of a text as the next line, turning pages as its variant says, and leaves
/// the pen at the start of the line after it. A piece of several characters is printed as it
/// stands, never obeyed. Gives the place where the text ended, on the page then in use.
///
/// Guards the whole run, no Failure leaves it: what cannot be drawn is left out, with one message
/// each. When a page is missing the rest of the line is given up, and nothing returned.
std::optional<PenPosition> DrawMathLine(std::vector<std::string> characters,
                                        const TypesetVariant& variant, bool blue, Sheets& sheets,
                                        Learner& learner);

}  // namespace numerello
