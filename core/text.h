#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace numerello {

/// Joins its pieces: Text(v, " inches = ", r, " feet"). A number becomes text first, by NumberText.
template <class... Pieces>
std::string Text(const Pieces&... pieces) {
    std::string joined;
    joined.reserve((std::string_view(pieces).size() + ... + 0));
    (joined.append(std::string_view(pieces)), ...);
    return joined;
}

/// The characters of a UTF-8 text, one string each. A byte that begins no valid character stands
/// alone.
std::vector<std::string> Characters(std::string_view text);

/// The text with every occurrence of `from` (not empty) replaced by `to`, from left to right.
std::string Replace(std::string_view text, std::string_view from, std::string_view to);

/// The text less the blanks at its ends.
std::string_view Trimmed(std::string_view text);

// Digits and letters are those of ASCII, whatever the language of the desktop.

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

constexpr bool IsLetter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

constexpr bool IsDigit(std::string_view character) {
    return character.size() == 1 && IsDigit(character.front());
}

constexpr bool IsLetter(std::string_view character) {
    return character.size() == 1 && IsLetter(character.front());
}

/// A letter of "A".."Z" as that of "a".."z"; everything else stays.
constexpr char LowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

std::string LowerCase(std::string_view text);

}  // namespace numerello
