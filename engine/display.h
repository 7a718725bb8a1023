#pragma once

#include <string>

#include "engine/tokens.h"

namespace numerello {

/// The line as the learner sees it: a leading "+" and coefficients of 1 hidden, with the marks of
/// the notation around fractions, exponents and roots.
std::string DisplayText(const Tokens& tokens, int ProblemType);

}  // namespace numerello
