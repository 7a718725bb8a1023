#include "catalogue/entering.h"

#include "catalogue/box_keys.h"

namespace numerello {

void EnterAndSolve(const EnteredProblem& entered, Problem& problem, FillingForm& form) {
    problem.boxes = entered.boxes;
    CheckBoxesReady(problem);
    form.ShowEntry();

    if (IsTypedOnLine(problem.topic.ProblemType)) {
        for (const std::string& key : entered.keys) {
            form.Form_KeyPress(key);
        }
    }
    if (problem.controls.SolveEnabled) {
        form.compute_Click();
    }
}

}  // namespace numerello
