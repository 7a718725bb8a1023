#pragma once

/// What kind of step is recorded. It is kept with the step and steers nothing: whether a step has
/// one at all tells the logs of the recorder from those that are not thinned.
namespace numerello {

inline constexpr int kOpeningStep = 0;
inline constexpr int kLightStep = 1;
inline constexpr int kOrdinaryStep = 2;
inline constexpr int kFineStep = 3;

}  // namespace numerello
