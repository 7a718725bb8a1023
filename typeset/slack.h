#pragma once

namespace numerello {

/// Pen positions are sums of many widths that often meet exactly on paper: two blanks are one
/// character. Comparisons leave this much room, so that rounding never decides.
inline constexpr double kPositionSlack = 0.001;

constexpr bool IsBefore(double position, double goal) {
    return position < goal - kPositionSlack;
}

constexpr bool IsPast(double position, double limit) {
    return position > limit + kPositionSlack;
}

}  // namespace numerello
