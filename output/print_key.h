#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/learner.h"
#include "output/answer_key.h"
#include "output/print_heading.h"

namespace numerello {

/// Prints what a practice test's problems come to: each with its number, its worked lines below it.
/// A problem that fits a page is not torn. `Printer` is an empty print surface in the sheets' face
/// at 12 points. Gives the page, from 0, that each problem begins on.
std::vector<int> PrintAnswerKey(const HeadingLines& heading,
                                std::span<const WorkedProblem> problems, Surface& Printer,
                                Learner& learner);

/// The lines that the key prints below a problem: the worked ones, without a first one that only
/// says again what the test asks, unless that is the answer. Points and lines that are only drawn
/// are told in words. None for a column problem, which is drawn.
std::vector<std::string> KeyLines(const WorkedProblem& worked);

}  // namespace numerello
