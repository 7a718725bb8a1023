#pragma once

#include <string_view>

#include "cli/json.h"

namespace numerello {

/// Arrays and objects may stand this deep inside each other, the request itself included.
inline constexpr int kDeepestNesting = 256;

/// An object may have this many keys.
inline constexpr std::size_t kMostKeys = 1000;

/// Reads one line as a request object into `request` and sets `id` to its "id", null when it has
/// none. Throws BadRequest, with `id` set as far as it could be read, for a line that is no JSON
/// (invalid UTF-8 included), no object, beyond the limits above, or that gives a key twice.
void ReadRequestLine(std::string_view line, Json& request, Json& id);

}  // namespace numerello
