#pragma once

#include <string_view>

#include "core/problem.h"

/// The filter that every key of the paper line passes.
namespace numerello {

inline constexpr std::string_view kBackspace = "\b";

/// The most characters that a line holds; past that only a Backspace goes on.
inline constexpr int kLongestLine = 480;
static_assert(kLongestLine * TypedProblem::kCellPitch + 2 <= TypedProblem::kTopCell,
              "a line is set out with two marks behind its last token");

/// Whether a key on the form is judged at all: the topic is typed on the line, typing is open, and
/// the line has room. Any other key is dropped without a word.
bool IsJudged(const Problem& problem, std::string_view key);

/// A key on the form: a character or kBackspace. Judges it, sets the light and enables Solve.
void Form_KeyPress(Problem& problem, std::string_view key);

/// Judges one key, stores an accepted one (a letter in lower case) as the last of ExprChars and
/// sets out the DisplayLine anew. InputError says why a key was refused, and is empty behind an
/// accepted one. For a line of at most kLongestLine characters.
void FormFilter(Problem& problem, std::string_view key);

/// Stores a digit as an accepted one without judging it. Throws Failure(Format) for anything else.
void StoreDigitUnjudged(Problem& problem, std::string_view digit);

/// The grammar: true to accept the character, a letter in lower case, behind ProblemText, whose
/// letters stand in VarNames; else InputError says why not.
bool CheckKey(Problem& problem, std::string_view character);

}  // namespace numerello
