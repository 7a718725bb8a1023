#pragma once

#include <string>
#include <string_view>

#include "core/problem.h"

/// The filter that every key of the paper line passes. So far it knows the grammar of one number:
/// digits and a decimal point.
namespace numerello {

inline constexpr std::string_view kBackspace = "\b";

/// Whether the grammar of the topic's line stands; until then the line takes no key. The box topics
/// count: theirs never does.
bool GrammarStands(const TopicChoice& topic);

/// A key on the form: a character or kBackspace. Judges it, sets the light and enables Solve.
void Form_KeyPress(Problem& problem, std::string_view key);

/// Judges one key, stores an accepted one and sets out the DisplayLine anew.
void FormFilter(Problem& problem, std::string_view key);

/// The grammar: true to accept the character behind what is typed; else InputError says why not.
bool CheckKey(Problem& problem, std::string_view character);

/// Rebuilds ExprCells from ExprChars.
void ChunkChars(TypedProblem& typed);

/// Sets the marks into ExprCells; returns the line as text.
std::string FormatForDisplay(TypedProblem& typed);

/// Whether the typed line is a problem that somebody finished.
bool LineIsComplete(const Problem& problem);

}  // namespace numerello
