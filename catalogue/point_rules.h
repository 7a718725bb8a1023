#pragma once

#include <string>

#include "notation/typing_point.h"

/// The grammar of the topics whose line is not an expression: two numbers to compare, and points.
namespace numerello {

/// Whether the line of this topic obeys these rules alone.
bool HasPointRules(int ProblemType);

/// Why the key may not stand behind what is typed, in words where {c} stands for the key, {P} for
/// the character before it and {T} for the topic; empty when it may.
std::string PointKeyRefusal(const Problem& problem, const TypingPoint& point, char key);

}  // namespace numerello
