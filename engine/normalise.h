#pragma once

#include "engine/tokens.h"

namespace numerello {

/// The tokens in the order and with the signs that the passes rely on: every side, parenthesis and
/// pair of bars begins with a sign; no operator stands behind an operator, a minus behind "*" or
/// "/" having turned the sign of its term over; a "*" that stands before a parenthesis goes, but
/// where what is before it would then bind the parenthesis (a power, a fraction, bars).
Tokens NormaliseTokens(const Tokens& tokens);

}  // namespace numerello
