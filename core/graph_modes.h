#pragma once

/// What a GraphMode asks for; 0 asks for nothing.
namespace numerello {

inline constexpr int kOnePointGraph = 1;
inline constexpr int kTwoPointsGraph = 2;
inline constexpr int kEquationGraph = 3;

}  // namespace numerello
