#pragma once

#include <initializer_list>
#include <string_view>

/// What the solvers of shapes share. Measures are repeated as typed; an empty one counts as 0, and
/// any other text that is no number fails (Failure) where it is first computed with.
namespace numerello {

inline constexpr double kPi = 3.1415926;  ///< the tutor's own, in lines and in arithmetic

/// Whether all measures are above 0.
bool AllPositive(std::initializer_list<std::string_view> measures);

}  // namespace numerello
