#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "notation/typing_point.h"

/// Setting a line of tokens out as mathematics.
namespace numerello {

/// A token with the marks beside it.
struct MarkedToken {
    std::string before;
    std::string text;
    std::string after;
};

/// Goes through the tokens of a line and opens and closes fractions, exponents and roots. "[" and
/// "]" go around what is emphasised and are no tokens. A token has a character at least. Throws
/// Failure(Format) at a ")" that closes nothing and at a fraction bar with nothing before it.
class LineSetter {
  public:
    /// `expected` is about how many tokens will be added.
    explicit LineSetter(int ProblemType, std::size_t expected = 0) : code(ProblemType) {
        line.reserve(expected);
    }

    void Add(const std::string& token);
    void CloseAll();
    const std::vector<MarkedToken>& Line() const { return line; }

  private:
    void AddText(const std::string& token);
    void CloseEmphasis();
    void CloseBefore(const TypingPoint& next);
    void CloseExponent();
    bool IsWithinDenominator() const;
    void OpenFraction(std::size_t numerator);
    std::size_t NumeratorStart() const;
    void NoteStarts(bool behindFractionBar);

    int code;
    TypingPoint point;
    std::vector<MarkedToken> line;
    std::vector<std::size_t> termStarts{0};  ///< by bracket level
    std::vector<std::size_t> openParens;
    std::size_t lastParen = 0;  ///< the "(" of the parentheses closed last
    std::size_t lastBar = 0;    ///< the opening bar last passed
    std::size_t fractionStart = 0;
    std::size_t emphasisStart = 0;
    bool emphasisDue = false;  ///< a "[" waits for its token
    bool emphasisOpen = false;
};

}  // namespace numerello
