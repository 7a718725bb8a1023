#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "solved_problem.h"

namespace numerello {

/// Whole numbers up to here are exact in single precision.
constexpr long long kSinglesLimit = 1 << 24;

enum class Place { Anywhere, Denominator };

/// The numbers of a line as they are written.
std::vector<std::string> NumbersOf(std::string_view line, Place place = Place::Anywhere);

/// The greatest of a log by its digits, wherever its point stands; kSinglesLimit for what is far
/// beyond it.
long long GreatestIn(const SolvedProblem& worked, Place place);

/// Whether a number of the log, or one on the way to it, is past what a single holds exactly.
bool IsBeyondSingles(const SolvedProblem& worked);

}  // namespace numerello
