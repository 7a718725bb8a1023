#pragma once

#include <string>

namespace numerello {

/// A number with its decimal point moved by whole places, exactly.
struct MovedPoint {
    std::string text;
    int places = 0;  ///< to the right when positive
};

/// To the right until nothing stands behind the point.
MovedPoint MoveToWhole(double value);

/// Until one digit other than 0 stands before the point; 0 stays.
MovedPoint MoveBehindFirstDigit(double value);

}  // namespace numerello
