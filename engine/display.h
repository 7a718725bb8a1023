#pragma once

#include <string>
#include <string_view>

#include "engine/tokens.h"

namespace numerello {

/// The line as the learner sees it: a leading "+" and coefficients of 1 hidden, with the marks of
/// the notation around fractions, exponents and roots.
std::string DisplayText(const Tokens& tokens, int ProblemType);

/// A piece of a line, such as a term, as the learner sees it.
std::string ShownText(std::string_view text, int ProblemType);

}  // namespace numerello
