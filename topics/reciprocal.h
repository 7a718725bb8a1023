#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// Turns a whole number or a fraction over. It works on the text: nothing is reduced, a 0 is not
/// treated apart, and nothing fails.
void FindReciprocal(Problem& problem, std::string_view ValueText);

}  // namespace numerello
