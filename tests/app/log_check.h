#pragma once

#include <string>
#include <vector>

#include "line_value.h"
#include "solved_problem.h"

namespace numerello {

/// What a solved problem came to: nothing wrong, something wrong, or numbers for which exactness
/// is not promised.
struct Verdict {
    bool skipped = false;
    std::string wrong;
};

/// What is wrong with any log, whatever its topic: too long, too slow, an empty line, a line that
/// repeats the one before.
std::string WrongInForm(const SolvedProblem& worked);

/// A failure that the problem does not explain. `dividesByZero`: its value does not exist.
Verdict JudgeFailure(const SolvedProblem& worked, bool dividesByZero);

/// The points at which an expression is compared.
std::vector<Point> PointsFor(const SolvedProblem& worked);

/// Whether every line has the value of the problem and the last one is worked out.
Verdict JudgeExactLines(const SolvedProblem& worked);

/// Whether every line has the value of the one before but for the rounding of its new numbers.
Verdict JudgeRoundedLines(const SolvedProblem& worked);

}  // namespace numerello
