#pragma once

#include <string_view>

#include "core/problem.h"

/// Triangles by their sides. A side of 0 or less is refused in words; a text that is no number
/// fails (Failure) where it is first computed with, with the lines before it written.
namespace numerello {

/// The first empty one of legs a, b and longest side c is the unknown; with none empty the work
/// ends at the substitution.
void PythagoreanTheorem(Problem& problem, std::string_view a, std::string_view b,
                        std::string_view c);

/// The first side of the second triangle that is not empty gives the proportion, by which the empty
/// ones are worked. The proportion is rounded before it is used.
void SimilarTriangles(Problem& problem, std::string_view a1, std::string_view b1,
                      std::string_view c1, std::string_view a2, std::string_view b2,
                      std::string_view c2);

}  // namespace numerello
