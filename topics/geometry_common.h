#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "core/problem.h"

/// What the solvers of shapes share. Measures are repeated as typed; an empty one counts as 0, and
/// any other text that is no number fails (Failure) where it is first computed with.
namespace numerello {

inline constexpr double kPi = 3.1415926;  ///< the tutor's own, in lines and in arithmetic

/// The number text of a value, rounded to the learner's places.
std::string RoundedResult(const Problem& problem, double value);

/// Whether all measures are above 0.
bool AllPositive(std::initializer_list<std::string_view> measures);

// Refusals that areas and volumes share.
void RefuseSides(StepLog& log);
void RefuseRadius(StepLog& log);

}  // namespace numerello
