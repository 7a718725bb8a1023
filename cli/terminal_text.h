#pragma once

#include <string>
#include <string_view>

namespace numerello {

/// Math text in plain characters, for a terminal: "#1/2#+x^2^" is "1/2+x²". A mark without a
/// partner stays as it is.
std::string TerminalText(std::string_view line);

/// The same for a refusal, which speaks of the marks themselves: those in quotes stay.
std::string TerminalRefusal(std::string_view text);

}  // namespace numerello
