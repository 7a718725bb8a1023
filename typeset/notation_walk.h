#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace numerello {

/// A root mark that a text quotes: one piece, printed with the root's sign.
inline constexpr std::string_view kQuotedRoot = "'~'";

/// The characters of a text that speaks of the marks themselves: a mark in single quotes is one
/// piece with them and so is printed, not obeyed.
std::vector<std::string> CharactersWithQuotedMarks(std::string_view text);

/// A line or a body of math text, gone through character by character.
class NotationWalk {
  public:
    explicit NotationWalk(std::vector<std::string> characters);

    /// Throws Failure(Format) for a text of more than `limit` characters.
    static NotationWalk Bounded(std::string_view text, std::size_t limit);

    bool AtEnd() const { return at == characters.size(); }

    /// The character to deal with; not to be asked at the end.
    const std::string& Here() const { return characters[at]; }

    void Step() { ++at; }

    /// From an opening marker: what stands between it and the next like character, behind which
    /// the walk goes on. Without such a partner the walk is at its end and Failure(Format) thrown.
    std::string TakeBody();

  private:
    std::vector<std::string> characters;
    std::size_t at = 0;
};

}  // namespace numerello
