#pragma once

#include <string>
#include <string_view>

namespace numerello {

/// Math text in plain characters, for a terminal: "#1/2#+x^2^" is "1/2+x²". A mark without a
/// partner stays as it is.
std::string TerminalText(std::string_view line);

/// The same for a refusal, which speaks of the marks themselves: those in quotes stay. Its control
/// characters are those of VisibleText.
std::string TerminalRefusal(std::string_view text);

/// The text with a picture for each control character, which a terminal would obey, and "\uFFFD"
/// for one without a picture and for bytes that are no character.
std::string VisibleText(std::string_view text);

}  // namespace numerello
