#pragma once

#include <iosfwd>

#include "cli/json.h"

/// Answers written for people instead of programs. Each returns the exit status: 0 worked, 1 not
/// worked or failed, 2 unusable arguments.
namespace numerello {

/// The working on `out`, as text or as JSON; what was refused or went wrong on `err`.
int PrintSolved(const Json& answer, bool asJson, std::ostream& out, std::ostream& err);
/// The reason of every step of a column problem, and the finished working drawn in characters.
int PrintWorkedColumns(const Json& answer, std::ostream& out, std::ostream& err);
int PrintTyped(const Json& answer, std::ostream& out, std::ostream& err);
/// What the example asks for, in one line.
int PrintExample(const Json& answer, std::ostream& out, std::ostream& err);
int PrintTopics(const Json& answer, std::ostream& out, std::ostream& err);

/// The answer as one line of JSON, with the same exit status.
int PrintJson(const Json& answer, std::ostream& out);

}  // namespace numerello
