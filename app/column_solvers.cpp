#include "app/column_solvers.h"

#include <array>
#include <string_view>

#include "core/number.h"

namespace numerello {

namespace {

template <bool ColumnRequest::*flag>
void InColumns(SolveRun& run) {
    ColumnRequest& columns = run.problem.columns;
    columns.*flag = true;
    columns.ColumnTop = run.problem.boxes.Text[0];
    columns.ColumnBottom = run.problem.boxes.Text[1];
}

/// The drawing itself switches in silence.
void TellSwitch(SolveRun& run, std::string_view message) {
    const auto& boxes = run.problem.boxes.Text;
    if (ToNumber(boxes[1]) > ToNumber(boxes[0])) {
        run.learner.MessageBox("", message);
    }
}

void Subtract(SolveRun& run) {
    TellSwitch(run,
               "The numbers will be switched because the top number must be larger than the bottom "
               "number.  To enter a problem that will produce a negative number, see 'Arithmetic' "
               "in the 'Basic Operations' chapter.");
    InColumns<&ColumnRequest::ColumnSubtract>(run);
}

void Divide(SolveRun& run) {
    TellSwitch(run,
               "The numbers will be switched because the number under the division bar must be "
               "larger than the number outside the division bar.  This type of problem can be "
               "entered in 'Arithmetic' in the 'Basic Operations' chapter.");
    InColumns<&ColumnRequest::ColumnDivide>(run);
}

constexpr auto kRows = std::to_array<SolverRow>({
    {200, InColumns<&ColumnRequest::ColumnAdd>},
    {201, Subtract},
    {202, InColumns<&ColumnRequest::ColumnMultiply>},
    {203, Divide},
});

}  // namespace

std::span<const SolverRow> ColumnSolvers() {
    return kRows;
}

}  // namespace numerello
