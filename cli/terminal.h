#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace numerello {

/// What somebody presses.
struct KeyPress {
    enum class Kind {
        Character,
        Enter,
        Backspace,
        Example,  ///< Ctrl+E
        Topic,    ///< Ctrl+T
        Leave,    ///< Ctrl+C, Ctrl+D, and the end of the input
    };

    Kind kind = Kind::Character;
    std::string text;  ///< of a character
};

/// Keys in and text out. On a terminal every key comes at once and the line that is being entered
/// is drawn anew; from anything else keys come as the characters of its lines, and a line is
/// written when it is finished. The terminal gets its settings back when this goes, and when a
/// signal ends the program.
class Terminal {
  public:
    /// `out` has to outlive this, and to be what standard output is.
    explicit Terminal(std::ostream& out);
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Bytes that are no character in UTF-8 come as "\uFFFD".
    KeyPress Read();

    /// In lines of input, what is left of the present one is no more keys.
    void SkipLine();

    /// Writes a line, above the one that is being entered.
    void Say(std::string_view text);

    /// The line that is being entered, in place of the one shown before.
    void Show(std::string text);

    /// The shown line is finished.
    void Keep();

    /// The shown line goes without a trace.
    void Drop();

  private:
    int NextByte();
    int NextUnreadByte();
    void Unread(int byte);
    std::string CharacterFrom(int lead);
    bool ByteWaits() const;
    void SkipEscape();
    void EraseShown();

    std::ostream& out;
    bool raw = false;
    bool prompts = false;    ///< somebody types lines
    bool lineBegins = true;  ///< the last byte read ended a line
    std::optional<int> unread;
    std::string shown;
};

}  // namespace numerello
