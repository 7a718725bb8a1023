#include "core/erasing.h"

#include <algorithm>

namespace numerello {

namespace {

constexpr int kTopSheet = 9;

}  // namespace

void EraseProblem(Problem& problem, Stage& stage) {
    ResetProblem(problem, true);
    DropRequests(problem);
    stage.CloseExplanation();

    problem.controls = EntryControls();
    problem.controls.LightToolTip = "Click the red light for incorrect input details.";

    problem.boxes = EntryBoxes();
    problem.playback.LineEndX = 0;
    problem.playback.LineEndY = 0;
    problem.playback.CurrentPage = std::min(problem.playback.CurrentPage, kTopSheet);
    stage.BlankSheets();
    problem.playback.CurrentPage = 0;

    problem.playback.TypingEnabled = true;
    // A long product is played on behind the last step that has a note.
    if (problem.playback.ShownStep <= StepLog::kTopIndex) {
        problem.log.StepNote[problem.playback.ShownStep] = problem.topic.InstructionText;
    }
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
