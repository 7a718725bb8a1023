#include "core/solve_driver.h"

#include <algorithm>
#include <string_view>

namespace numerello {

namespace {

struct TrapMessage {
    std::string_view title;
    std::string_view text;
};

constexpr TrapMessage kOverflow{
    "Overflow!",
    "The entered problem caused a data overflow.  Click the 'Erase' button and try again."};
constexpr TrapMessage kDivisionByZero{
    "Division by 0!",
    "The problem entered caused division by 0 (which is not mathematically possible).  Click the "
    "'Erase' button and try again."};
constexpr TrapMessage kFormat{
    "",
    "The format of the entered problem was not recognized.  Click the 'Erase' button and try "
    "again."};

void TellFailure(FailureKind kind, Learner& learner) {
    switch (kind) {
        case FailureKind::Overflow:
            return learner.MessageBox(kOverflow.title, kOverflow.text);
        case FailureKind::DivisionByZero:
            return learner.MessageBox(kDivisionByZero.title, kDivisionByZero.text);
        case FailureKind::Format:
            return learner.MessageBox(kFormat.title, kFormat.text);
        case FailureKind::Unanswered:
            return;
    }
}

/// The requests of an earlier problem must not reach into the next one.
void DropRequests(Problem& problem) {
    problem.columns.ClearFlags();
    problem.graph.GraphMode = 0;
    problem.playback.DrawingRow.reset();
}

void PrepareSheet(Problem& problem, Stage& stage) {
    EntryControls& controls = problem.controls;
    controls.PrintEnabled = true;
    controls.SaveEnabled = true;
    controls.Light = EntryControls::LightPicture::Neutral;
    controls.LightToolTip.clear();
    controls.Pencil = EntryControls::PencilPicture::Pencil;
    problem.playback.TypingEnabled = false;
    stage.CloseGraph();
    DropRequests(problem);
}

void ClearStepLines(Problem& problem) {
    problem.log.StepCount = 1;
    problem.log.StepText.Clear(1, StepLog::kTopIndex);
    problem.playback.ShownStep = problem.settings.mnuShowStep ? 2 : 0;
    problem.playback.ShowAllSteps = !problem.settings.mnuShowStep;
}

void Dispatch(Problem& problem, const Solvers& solvers, Learner& learner) {
    const int code = problem.topic.ProblemType;
    const Solver solve = solvers.Find(code);
    if (solve == nullptr) {
        return;
    }
    if (IsTypedOnLine(code) && !solvers.lineIsComplete(problem)) {
        throw Failure(FailureKind::Format);
    }
    SolveRun run{problem, learner};
    solve(run);
}

/// The state that a failed problem is left in until it is erased: the note is the instruction, and
/// nothing of the log is shown.
void EndFailed(Problem& problem) {
    DropRequests(problem);
    problem.controls.GraphEnabled = false;
    problem.playback.ShownStep = 0;
}

std::optional<FailureKind> TrappedDispatch(Problem& problem, const Solvers& solvers,
                                           Learner& learner) {
    try {
        Dispatch(problem, solvers, learner);
        return std::nullopt;
    } catch (const Failure& failure) {
        return failure.Kind();
    } catch (const std::exception&) {
        return FailureKind::Format;
    }
}

}  // namespace

Solver Solvers::Find(int ProblemType) const {
    const auto row = std::find_if(rows.begin(), rows.end(), [ProblemType](const SolverRow& each) {
        return each.ProblemType == ProblemType;
    });
    return row == rows.end() ? nullptr : row->solve;
}

std::optional<FailureKind> compute_Click(Problem& problem, const Solvers& solvers, Learner& learner,
                                         Stage& stage) {
    PrepareSheet(problem, stage);
    ClearStepLines(problem);
    const std::optional<FailureKind> failure = TrappedDispatch(problem, solvers, learner);
    if (failure) {
        TellFailure(*failure, learner);
        EndFailed(problem);
    } else {
        // Thinned before the first line is shown, so that what is played is what stays.
        ThinSteps(problem.log, problem.settings.DetailLevel);
        stage.ShowNextStep();
    }
    problem.controls.SolveEnabled = false;
    return failure;
}

void EraseProblem(Problem& problem, Stage& stage) {
    ResetProblem(problem, true);
    DropRequests(problem);
    stage.CloseExplanation();

    problem.controls = EntryControls();
    problem.controls.LightToolTip = "Click the red light for incorrect input details.";

    problem.boxes = EntryBoxes();
    problem.playback.LineEndX = 0;
    problem.playback.LineEndY = 0;
    stage.BlankSheets();
    problem.playback.CurrentPage = 0;

    problem.playback.TypingEnabled = true;
    problem.log.StepNote[problem.playback.ShownStep] = problem.topic.InstructionText;
    problem.log.StepNote[0] = problem.topic.InstructionText;
}

bool clear_Click(Problem& problem, Learner& learner, Stage& stage) {
    if (!learner.Confirm("Clear Problem", "This will erase your entire problem.")) {
        return false;
    }
    EraseProblem(problem, stage);
    return true;
}

}  // namespace numerello
