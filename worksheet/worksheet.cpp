#include "worksheet/worksheet.h"

#include <algorithm>

#include "typeset/lines.h"
#include "worksheet/entry_rows.h"

namespace numerello {

namespace {

constexpr int kTopSheet = Worksheet::kSheetCount - 1;

}  // namespace

Worksheet::Worksheet(Problem& problem, const TextMetrics& metrics, Learner& learner)
    : problem(problem), learner(learner), stack(metrics), assistant(problem) {}

void Worksheet::Open(int viewWidth) {
    problem.playback.CurrentPage = 0;
    problem.playback.LineEndX = 0;
    problem.playback.LineEndY = 0;
    ClearTo(kTopSheet);
    stack.Entitle(problem.topic.TopicTitle);
    stack[0].top = 0;
    assistant.Load();
    Centre(viewWidth);
}

int Worksheet::CentredLeft(int viewWidth) {
    // Halves of a pixel would blur the paper.
    return std::max(0, (viewWidth - SheetStack::kWidth) / 2);
}

void Worksheet::Centre(int viewWidth) {
    lastViewWidth = viewWidth;
    if (!sheetsDragged) {
        stack.MoveTo(CentredLeft(viewWidth));
    }
    Changed();
}

void Worksheet::RaiseCurrentSheet() {
    stack.Raise(problem.playback.CurrentPage);
    Changed();
}

void Worksheet::DrawTypedLine() {
    const int code = problem.topic.ProblemType;
    if (!IsTypedOnLine(code) || !problem.playback.TypingEnabled) {
        return;
    }
    Surface& surface = stack[0].surface;
    surface.Cls();
    surface.CurrentY = EntryRow(code).value_or(0);
    stack[0].lines.clear();
    if (!problem.typed.DisplayLine.empty()) {
        stack[0].lines.push_back(problem.typed.DisplayLine);
    }
    FPrintLine(problem.typed.DisplayLine, false, *this, problem.playback, learner);
    Changed();
}

void Worksheet::MovePencil(bool motion) {
    if (problem.input.KeyAccepted) {
        motion ? pencil.KeyAccepted() : pencil.KeyAcceptedAtRest();
    }
    pencil.Follow(problem.playback.LineEndX);
    Changed();
}

void Worksheet::Timer1_Timer() {
    pencil.Timer1_Timer();
    Changed();
}

void Worksheet::BlankSheets() {
    ClearTo(problem.playback.CurrentPage);
    Centre(lastViewWidth);
}

Surface& Worksheet::Current() {
    return CurrentSheet().surface;
}

void Worksheet::Turn() {
    if (problem.playback.CurrentPage >= kTopSheet) {
        outOfSheets = true;
        // The message that follows should stand over what was drawn until now.
        Changed();
        throw Failure(FailureKind::Format);
    }
    stack.Turn(problem.playback.CurrentPage);
    ++problem.playback.CurrentPage;
}

bool Worksheet::ArrowVisible() const {
    return stack[problem.playback.CurrentPage].arrowVisible;
}

void Worksheet::ClearTo(int lastSheet) {
    stack.Blank(lastSheet);
    if (IsTypedOnLine(problem.topic.ProblemType)) {
        pencil.Erase();
    } else {
        pencil.LieInMargin();
    }
    stack[0].surface.CurrentY = EntryRow(problem.topic.ProblemType).value_or(0);
    assistant.RestartWork();
    timer2Enabled = false;
    arrowFrame = false;
    outOfSheets = false;
    movedSincePress = false;
    sheetsDragged = false;
}

Sheet& Worksheet::CurrentSheet() {
    return stack[problem.playback.CurrentPage];
}

void Worksheet::Changed() {
    if (onChange) {
        onChange();
    }
}

}  // namespace numerello
