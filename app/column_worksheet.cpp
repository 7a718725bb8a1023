#include "app/column_worksheet.h"

#include "columns/steps.h"

namespace numerello {

ColumnWorksheet::ColumnWorksheet(Problem& problem, const TextMetrics& metrics, Learner& learner)
    : Worksheet(problem, metrics, learner), problem(problem), learner(learner) {}

void ColumnWorksheet::StepColumns() {
    numerello::StepColumns(problem, Current(), learner, [this] { DrawCheckMark(); });
}

}  // namespace numerello
