#pragma once

#include <string>

#include "core/clock.h"
#include "core/random_source.h"

namespace numerello {

/// What a learner is told to enter for a topic. The codes without a sentence of their own ask for
/// one number and end in `exampleNumber`.
std::string InstructionFor(int ProblemType, int exampleNumber);

/// As InstructionFor, with an example number drawn now, where the sentence shows one: the sum of
/// two draws of RandInt, 2 to 18.
std::string DrawInstruction(int ProblemType, const Clock& clock, RandomSource& random);

}  // namespace numerello
