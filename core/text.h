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

inline bool IsDigit(std::string_view character) {
    return character.size() == 1 && character[0] >= '0' && character[0] <= '9';
}

/// True for "A".."Z" and "a".."z".
inline bool IsLetter(std::string_view character) {
    return character.size() == 1 && ((character[0] >= 'A' && character[0] <= 'Z') ||
                                     (character[0] >= 'a' && character[0] <= 'z'));
}

}  // namespace numerello
