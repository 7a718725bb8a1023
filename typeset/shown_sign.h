#pragma once

#include <string_view>

namespace numerello {

/// The sign that a character of math text stands for, where no keyboard has it: "{" is a division
/// sign, "`" pi, "\\" plus or minus, "$" not equal. Any other character stands for itself.
std::string_view ShownSign(std::string_view character);

}  // namespace numerello
