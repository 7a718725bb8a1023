#include "cli/column_stage.h"

#include "columns/steps.h"

namespace numerello {

ColumnStage::ColumnStage(Problem& problem, Learner& learner) : problem(problem), learner(learner) {}

void ColumnStage::DrawColumns() {
    finished = false;
    StepColumns(problem, page, learner, [this] {
        finished = true;
        problem.columns.ClearFlags();
    });
}

}  // namespace numerello
