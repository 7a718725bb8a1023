#pragma once

#include <string>
#include <string_view>

#include "cli/json.h"

namespace numerello {

/// Arrays and objects may stand this deep inside each other, the request itself included.
inline constexpr int kDeepestNesting = 256;

/// An object may have this many keys.
inline constexpr std::size_t kMostKeys = 1000;

// Moving JSON throws nothing, though its library does not say so.
// NOLINTNEXTLINE(bugprone-exception-escape)
struct RequestLine {
    Json request;
    Json id;              ///< null when it has none
    std::string trouble;  ///< why it is no request, with the id as far as it could be read
};

/// Reads one line as a request object. It is none when it is no JSON (invalid UTF-8 included), no
/// object, beyond the limits above, or gives a key twice.
RequestLine ReadRequestLine(std::string_view line);

}  // namespace numerello
