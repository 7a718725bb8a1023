#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace numerello {

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
