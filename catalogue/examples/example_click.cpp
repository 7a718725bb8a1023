#include "catalogue/examples/example_click.h"

#include "core/erasing.h"
#include "core/text.h"

namespace numerello {

void ExampleChop(const Example& example, Problem& problem, FillingForm& form) {
    EnterAndSolve({Characters(example.keys), example.boxes}, problem, form);
}

void example_Click(Problem& problem, Stage& stage, FillingForm& form, ExampleDraws& draws) {
    EraseProblem(problem, stage);
    ExampleChop(GenerateExample(problem.topic, false, problem.settings.ComplexEx, draws), problem,
                form);
}

}  // namespace numerello
