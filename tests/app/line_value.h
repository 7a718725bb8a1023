#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "range.h"
#include "root_sum.h"

namespace numerello {

/// A value for each letter.
using Point = std::map<char, Rational>;

/// The number that a line of a step log stands for, or one side of it. Throws std::domain_error for
/// a division by 0, std::overflow_error for what cannot be told, and std::invalid_argument for a
/// text that is none of the notation.
RootSum ValueOf(std::string_view line, const Point& letters = {});

/// By how much a number with these digits may be off.
using SlackOf = std::function<long double(std::string_view digits)>;

/// The same where numbers may be off.
Range RangeOf(std::string_view line, const Point& letters, const SlackOf& slackOf);

/// What typed characters stand for, worked from the left: "8/2(3)" is 12, "8/2x" is 8/(2x). In code
/// 76 a slash behind a fraction divides two fractions. Throws as ValueOf does.
RootSum TypedValueOf(int code, std::string_view typed, const Point& letters = {});

}  // namespace numerello
