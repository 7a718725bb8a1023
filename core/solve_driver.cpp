#include "core/solve_driver.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace numerello {

namespace {

/// Without a message a failure ends the solve in silence.
struct TrapMessage {
    FailureKind kind;
    std::string_view title;
    std::string_view text;
};

constexpr std::array kTrapMessages{
    TrapMessage{
        FailureKind::Overflow, "Overflow!",
        "The entered problem caused a data overflow.  Click the 'Erase' button and try again."},
    TrapMessage{
        FailureKind::DivisionByZero, "Division by 0!",
        "The problem entered caused division by 0 (which is not mathematically possible).  Click "
        "the 'Erase' button and try again."},
    TrapMessage{
        FailureKind::Format, "",
        "The format of the entered problem was not recognized.  Click the 'Erase' button and try "
        "again."},
};

void TellFailure(FailureKind kind, Learner& learner) {
    for (const TrapMessage& message : kTrapMessages) {
        if (message.kind == kind) {
            learner.MessageBox(message.title, message.text);
        }
    }
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
    // The notes stay until they are overwritten, but this one may still hold the instruction, and a
    // log of one line does not overwrite it.
    problem.log.StepNote[2].clear();
    problem.playback.ShownStep = problem.settings.mnuShowStep ? 2 : 0;
    problem.playback.ShowAllSteps = problem.settings.mnuShowStep ? 0 : -1;
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

void Work(Problem& problem, const Solvers& solvers, Learner& learner, Stage& stage) {
    PrepareSheet(problem, stage);
    ClearStepLines(problem);
    Dispatch(problem, solvers, learner);
    // Thinned before the first line is shown, so that what is played is what stays.
    ThinSteps(problem.log, problem.settings.DetailLevel);
    if (problem.columns.Any()) {
        stage.DrawColumns();
    } else if (problem.log.StepCount > 1) {
        stage.ShowNextStep();
    }
}

std::optional<FailureKind> FailureOf(const std::function<void()>& part) {
    try {
        part();
        return std::nullopt;
    } catch (const Failure& failure) {
        return failure.Kind();
    } catch (const std::exception&) {
        // Whatever else a library throws, the learner keeps the sheet.
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
    const std::optional<FailureKind> failure =
        Trapped(problem, learner, [&] { Work(problem, solvers, learner, stage); });
    problem.controls.SolveEnabled = false;
    return failure;
}

std::optional<FailureKind> Trapped(Problem& problem, Learner& learner,
                                   const std::function<void()>& part) {
    const std::optional<FailureKind> failure = FailureOf(part);
    if (failure) {
        FailSolve(problem, *failure, learner);
    }
    return failure;
}

void FailSolve(Problem& problem, FailureKind kind, Learner& learner) {
    TellFailure(kind, learner);
    DropRequests(problem);
    problem.controls.GraphEnabled = false;
    problem.playback.ShownStep = 0;
    // A column problem that draws itself at once has written its reason there.
    problem.log.StepNote[0] = problem.topic.InstructionText;
}

}  // namespace numerello
