#include "core/problem.h"

#include "core/text.h"
#include "core/topic_codes.h"

namespace numerello {

namespace {

/// CollectVariables and the reset clear these cells only; the cells above keep what they held.
constexpr int kTopClearedVariable = 20;

/// The cell of a control's number, which counts from 1.
template <class Cells>
auto& CellOf(Cells& cells, int number) {
    CheckIndex(number - 1, static_cast<int>(cells.size()) - 1);
    return cells[static_cast<std::size_t>(number) - 1];
}

}  // namespace

std::string& EntryBoxes::Box(int number) {
    return CellOf(Text, number);
}

const std::string& EntryBoxes::Box(int number) const {
    return CellOf(Text, number);
}

int& EntryBoxes::List(int number) {
    return CellOf(ListIndex, number);
}

int EntryBoxes::List(int number) const {
    return CellOf(ListIndex, number);
}

bool ColumnRequest::Any() const {
    return ColumnAdd || ColumnSubtract || ColumnMultiply || ColumnDivide;
}

void ColumnRequest::ClearFlags() {
    ColumnAdd = ColumnSubtract = ColumnMultiply = ColumnDivide = false;
}

bool IsTypedOnLine(int ProblemType) {
    return ProblemType > kLastBoxTopic && !IsColumnTopic(ProblemType);
}

void ResetProblem(Problem& problem, bool ClearSteps) {
    TypedProblem& typed = problem.typed;
    typed.ExprChars.Clear();
    typed.ExprCells.Clear();
    typed.ExprVariants.Clear();

    problem.log.FreshProblem = true;
    typed.ExprCharCount = typed.ExprCellCount = typed.VarCount = 0;
    typed.ProblemText.clear();
    typed.DisplayLine.clear();
    problem.input = InputState();

    typed.VarNames.Clear(0, kTopClearedVariable);

    if (ClearSteps) {
        problem.log.StepCount = 1;
        problem.log.StepText.Clear();
        problem.log.StepNote.Clear();
        problem.log.StepLevels.Clear();
        // Else a problem that begins as the last one ended would lose its first line.
        problem.log.LastStepLine.clear();
        problem.log.StepReason.clear();
        problem.log.StepUnchanged = false;
    }
}

void DropRequests(Problem& problem) {
    problem.columns.ClearFlags();
    problem.graph.GraphMode = kNoGraph;
    problem.playback.DrawingRow.reset();
    problem.playback.NumberLine.reset();
}

void CollectVariables(TypedProblem& typed) {
    typed.VarCount = 1;
    typed.VarNames.Clear(0, kTopClearedVariable);
    for (int i = 0; i < typed.ExprCharCount; ++i) {
        const std::string& cell = typed.ExprChars.Get(i);
        if (IsLetter(cell) && FindVariable(typed, cell) == 0) {
            typed.VarNames[typed.VarCount++] = cell;
        }
    }
}

int FindVariable(const TypedProblem& typed, std::string_view letter) {
    for (int i = 1; i < typed.VarCount; ++i) {
        if (typed.VarNames[i] == letter) {
            return i;
        }
    }
    return 0;
}

}  // namespace numerello
