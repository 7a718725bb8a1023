#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// Writes a number digit by digit in words. The text is repeated as typed, the digits are those of
/// its value; a digit beyond the tenth from the right has no words and is passed over. Fails
/// (Failure) behind the problem line for a text that is no number.
void ExpandedNotation(Problem& problem, std::string_view ValueText);

}  // namespace numerello
