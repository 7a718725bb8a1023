#pragma once

#include <string_view>

#include "core/problem.h"

/// The boxes Text1 to Text6: their own key rule, and when a topic's boxes make a problem.
namespace numerello {

/// A key into box 1 to 6: a digit, ".", "-" or kBackspace; anything else is refused. Boxes that
/// are locked by a solve take no key. Re-runs the box check. True when the key went in.
bool BoxKey(Problem& problem, int box, std::string_view key);

/// Enables Solve when the boxes and lists of a box topic make a problem. A line topic is left
/// alone.
void CheckBoxesReady(Problem& problem);

/// An optional "-", digits with at most one ".", at least one digit.
bool IsNumeric(std::string_view text);

}  // namespace numerello
