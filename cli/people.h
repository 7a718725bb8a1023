#pragma once

#include <iosfwd>
#include <string>

#include "cli/json.h"

/// Answers written for people instead of programs. Each returns the exit status.
namespace numerello {

inline constexpr int kWorked = 0;
inline constexpr int kNotWorked = 1;  ///< or failed
inline constexpr int kUnusable = 2;   ///< the arguments

/// How mathematics is written: with the marks of math text, or as TerminalText has it.
enum class Writing { Marks, Readable };

/// The working on `out`; what was refused or went wrong on `err`.
int PrintSolved(const Json& answer, Writing writing, std::ostream& out, std::ostream& err);
/// The same with the whole answer on `out`, as one line of JSON.
int PrintSolvedJson(const Json& answer, std::ostream& out, std::ostream& err);
/// The reason of every step of a column problem, and the finished working drawn in characters.
int PrintWorkedColumns(const Json& answer, Writing writing, std::ostream& out, std::ostream& err);
int PrintTyped(const Json& answer, std::ostream& out, std::ostream& err);
/// What the example asks for, in one line.
int PrintExample(const Json& answer, std::ostream& out, std::ostream& err);
int PrintTopics(const Json& answer, std::ostream& out, std::ostream& err);

/// Which topics may have been meant by a caption that none has, and where all are listed.
void TellNearTopics(const std::string& caption, std::ostream& err);

/// The answer as one line of JSON, with the same exit status.
int PrintJson(const Json& answer, std::ostream& out);

}  // namespace numerello
