#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/problem.h"

/// An expression in working form: one token an element, without closing marks. Every term carries
/// its sign.
namespace numerello {

using Tokens = std::vector<std::string>;

/// Whether the token is this character alone.
inline bool IsMark(std::string_view token, char mark) {
    return token.size() == 1 && token[0] == mark;
}

inline bool IsSign(std::string_view token) {
    return IsMark(token, '+') || IsMark(token, '-');
}

inline bool IsOperator(std::string_view token) {
    return IsSign(token) || IsMark(token, '*') || IsMark(token, '/');
}

/// Whether the token stands right behind a "^": a sign there belongs to the exponent.
bool IsExponentSign(const Tokens& tokens, std::size_t at);

/// Whether a "/" stands right behind a digit of the token; a lone operator is none.
bool IsFraction(std::string_view token);

/// Whether the token begins a number: a digit, a point, or a root.
bool IsNumberToken(std::string_view token);

/// One character a token, without the blanks.
Tokens TextToTokens(std::string_view text);

std::string TokensToText(const Tokens& tokens);

/// The tokens from `begin` to before `end` as text.
std::string TextBetween(const Tokens& tokens, std::size_t begin, std::size_t end);

/// The text without "[" and "]".
std::string WithoutEmphasis(std::string text);

/// The characters of numbers put together: 12.5, the fraction 3/4, the root 2~5 with its
/// coefficient, 1.5E+10. A "/" joins two numbers only when nothing binds the second one more
/// tightly: 3/4x and 3/4^2 keep it apart, and so does a number that is an exponent or holds a "/"
/// or a "~" already. What is put together stays so.
Tokens MergeNumberTokens(const Tokens& tokens, int ProblemType);

/// The tokens that the cells of the typed line stand for. Throws Failure(DivisionByZero) when the
/// line divides by a literal 0.
Tokens CellsToTokens(TypedProblem& typed);

}  // namespace numerello
