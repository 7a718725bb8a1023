#pragma once

#include "catalogue/entering.h"
#include "catalogue/examples/example.h"
#include "core/stage.h"

namespace numerello {

/// Enters an example as if typed, and solves it.
void ExampleChop(const Example& example, Problem& problem, FillingForm& form);

/// Example Problem: wipes problem and sheets, makes up a problem of the present topic, as complex
/// as the setting wants it, and enters it.
void example_Click(Problem& problem, Stage& stage, FillingForm& form, ExampleDraws& draws);

}  // namespace numerello
