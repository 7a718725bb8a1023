#pragma once

#include <string_view>

#include "core/problem.h"

/// Scientific notation. Bases and powers are repeated as typed; an empty one is 0. A text that is
/// no number fails (Failure) at the first line that computes, with the lines before it written, as
/// does a value beyond the range of a Double.
namespace numerello {

void ScientificToRegular(Problem& problem, std::string_view Base, std::string_view Power);

void RegularToScientific(Problem& problem, std::string_view Value);

void MultiplyScientific(Problem& problem, std::string_view Base1, std::string_view Power1,
                        std::string_view Base2, std::string_view Power2);

/// A second base of 0 is refused in words.
void DivideScientific(Problem& problem, std::string_view Base1, std::string_view Power1,
                      std::string_view Base2, std::string_view Power2);

}  // namespace numerello
