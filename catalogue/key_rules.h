#pragma once

#include <string>

#include "notation/typing_point.h"

/// The grammar of the typed line, one rule for each class of key.
namespace numerello {

/// Why the key may not stand behind what is typed, in words where {c} stands for the key, {P} for
/// the character before it and {T} for the topic; empty when it may. A letter comes in lower case,
/// with the letters of the line in VarNames.
std::string KeyRefusal(const Problem& problem, const TypingPoint& point, char key);

}  // namespace numerello
