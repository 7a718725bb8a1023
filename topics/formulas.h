#pragma once

#include <string_view>

#include "core/problem.h"

/// A product of two measures: the unknown one of the three holds its word. A text that is no number
/// fails (Failure) at the first line that computes, with the lines before it written; a division by
/// 0 has words of its own.
namespace numerello {

/// "work", "rate" or "time" is asked for.
void WorkRateTime(Problem& problem, std::string_view Work, std::string_view Rate,
                  std::string_view Time);

/// "distance", "speed" or "time" is asked for.
void DistanceSpeedTime(Problem& problem, std::string_view Distance, std::string_view Speed,
                       std::string_view Time);

}  // namespace numerello
