#pragma once

/// The detail class of a recorded step.
namespace numerello {

inline constexpr int kOpeningStep = 0;
inline constexpr int kLightStep = 1;
inline constexpr int kOrdinaryStep = 2;
inline constexpr int kFineStep = 3;

}  // namespace numerello
