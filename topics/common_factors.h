#pragma once

#include <string>
#include <string_view>

#include "core/problem.h"

/// What whole numbers of a list have in common. An entry that is no number fails (Failure) behind
/// the two heading lines.
namespace numerello {

/// The greatest common factor. A smallest entry beyond 32767 fails (Overflow).
void FindGCF(Problem& problem, std::string_view ListText);

/// The least common multiple. One beyond 2147483647 fails (Overflow).
void FindLCM(Problem& problem, std::string_view ListText);

/// The least common multiple as text; "0" when an entry is "0". Another entry without a value
/// fails (DivisionByZero).
std::string ComputeLCM(std::string_view ListText);

}  // namespace numerello
