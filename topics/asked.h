#pragma once

#include <string_view>

namespace numerello {

/// What a problem line shows for a part: "?" for the unknown, which holds its word.
inline std::string_view OrAsked(std::string_view part, std::string_view word) {
    return part == word ? "?" : part;
}

}  // namespace numerello
