#pragma once

#include <string_view>
#include <vector>

namespace numerello {

/// The lines of a text, without their ends; views into it.
std::vector<std::string_view> LinesOf(std::string_view file);

}  // namespace numerello
