#include "cli/column_stage.h"

#include "columns/multiplication.h"
#include "columns/steps.h"
#include "core/solve_driver.h"

namespace numerello {

ColumnStage::ColumnStage(Problem& problem, Learner& learner) : problem(problem), learner(learner) {}

void ColumnStage::DrawColumns() {
    ++drawings;
    finished = false;
    StepColumns(problem, page, learner, [this] {
        finished = true;
        problem.columns.ClearFlags();
    });
}

bool ColumnStage::HasNext() const {
    return problem.columns.Any() && drawings <= kMostCells;
}

std::optional<FailureKind> ColumnStage::NextStep() {
    ++problem.playback.ShownStep;
    return Trapped(problem, learner, [this] { DrawColumns(); });
}

}  // namespace numerello
