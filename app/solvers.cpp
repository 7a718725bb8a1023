#include "app/solvers.h"

#include <vector>

#include "app/box_solvers.h"
#include "app/column_solvers.h"
#include "app/engine_solvers.h"
#include "app/line_solvers.h"
#include "catalogue/complete_line.h"

namespace numerello {

namespace {

std::vector<SolverRow> AllRows() {
    std::vector<SolverRow> rows(LineSolvers().begin(), LineSolvers().end());
    rows.insert(rows.end(), EngineSolvers().begin(), EngineSolvers().end());
    rows.insert(rows.end(), BoxSolvers().begin(), BoxSolvers().end());
    rows.insert(rows.end(), ColumnSolvers().begin(), ColumnSolvers().end());
    return rows;
}

}  // namespace

const Solvers& AllSolvers() {
    static const std::vector<SolverRow> kRows = AllRows();
    static const Solvers kSolvers{kRows, LineIsComplete};
    return kSolvers;
}

}  // namespace numerello
