#pragma once

#include <algorithm>
#include <cmath>

namespace numerello {

/// Whether something that was moved so far across and down was dragged. A hand that shakes while it
/// presses a button does not mean to move anything for good.
inline bool IsDrag(double across, double down) {
    constexpr double kThreshold = 10;
    return std::max(std::abs(across), std::abs(down)) >= kThreshold;
}

}  // namespace numerello
