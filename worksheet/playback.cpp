#include <algorithm>
#include <utility>

#include "core/topic_codes.h"
#include "typeset/lines.h"
#include "worksheet/number_line.h"
#include "worksheet/sheet_rows.h"
#include "worksheet/worksheet.h"

namespace numerello {

namespace {

/// From the end of the line to the top left corner of a mark behind it.
struct MarkOffset {
    double right;
    double up;
};

constexpr MarkOffset kArrowOffset{10, 13};
constexpr MarkOffset kCheckOffset{5, 15};

/// A mark further right would reach over the edge of the sheet.
constexpr double kRightmostMark = 760;

/// Divisions with the longest quotients need one row of paper more than a sheet has.
constexpr double kBelowLowestText = 20;

double MarkLeft(const Playback& playback, MarkOffset offset) {
    return std::min(playback.LineEndX + offset.right, kRightmostMark);
}

double MarkTop(const Playback& playback, MarkOffset offset) {
    return std::max(playback.LineEndY - offset.up, 0.0);
}

}  // namespace

void Worksheet::ShowNextStep() {
    TakeRequests();
    const Playback& playback = problem.playback;
    if (playback.ShownStep == 0) {
        ShowAllLines();
    } else if (playback.ShownStep < problem.log.StepCount - 1) {
        PrintStep(playback.ShownStep, true);
    } else {
        ShowLastLine();
    }
    Changed();
}

void Worksheet::TakeRequests() {
    Surface& first = stack[0].surface;
    if (const auto row = std::exchange(problem.playback.DrawingRow, std::nullopt)) {
        first.CurrentY = *row;
    }
    if (const auto line = std::exchange(problem.playback.NumberLine, std::nullopt)) {
        DrawNumberLine(first, line->A, line->B);
    }
}

void Worksheet::ShowAllLines() {
    for (int i = 2; i < problem.log.StepCount; ++i) {
        PrintStep(i, false);
        problem.playback.ShownStep = i;
    }
    FinishWork();
}

void Worksheet::ShowLastLine() {
    const int shown = problem.playback.ShownStep;
    if (!problem.log.StepText.Get(shown).empty()) {
        PrintStep(shown, false);
    }
    FinishWork();

    // An equation without a solution leaves nothing to draw.
    const int code = problem.topic.ProblemType;
    const bool equation = code == kGraphingAnEquation && !problem.typed.ExprVariants.Get(0).empty();
    if (equation || code == kPointsQuadrant) {
        problem.graph.GraphMode = equation ? kEquationGraph : kOnePointGraph;
        OpenGraph();
    }
}

void Worksheet::PrintStep(int index, bool showBlinker) {
    // The learner was told once that the sheets are used up.
    if (outOfSheets) {
        return;
    }
    const std::string& line = problem.log.StepText.Get(index);
    FPrintLine(line, showBlinker, *this, problem.playback, learner);
    if (!outOfSheets) {
        CurrentSheet().lines.push_back(line);
    }
}

/// A solution that was not drawn to its end gets no check mark.
void Worksheet::FinishWork() {
    if (!outOfSheets) {
        DrawCheckMark();
    }
}

void Worksheet::DrawCheckMark() {
    HideArrow();
    assistant.EndWork();
    const Playback& playback = problem.playback;
    Current().PaintPicture("check", MarkLeft(playback, kCheckOffset),
                           MarkTop(playback, kCheckOffset));
    problem.columns.ClearFlags();
    Changed();
}

void Worksheet::PlaceBlinker() {
    Sheet& sheet = CurrentSheet();
    sheet.arrowLeft = MarkLeft(problem.playback, kArrowOffset);
    sheet.arrowTop = MarkTop(problem.playback, kArrowOffset);
    // A column problem that draws itself at once shows no arrow.
    if (!problem.columns.Any() || problem.settings.mnuShowStep) {
        sheet.arrowVisible = true;
        timer2Enabled = true;
        assistant.Notify();
    }
    Changed();
}

void Worksheet::blinker_Click() {
    if (!ArrowVisible()) {
        return;
    }
    HideArrow();
    assistant.StopNotice();
    Changed();
    // The rest stays unseen until the problem is solved again: kept as it is.
    if (!problem.settings.mnuShowStep) {
        return;
    }
    ++problem.playback.ShownStep;
    if (!problem.columns.Any()) {
        ShowNextStep();
        return;
    }
    Trapped(problem, learner, [this] { DrawColumns(); });
    Changed();
}

void Worksheet::DrawColumns() {
    StepColumns();
    stack.Lengthen(problem.playback.CurrentPage, LowestText(Current()) + kBelowLowestText);
    if (problem.columns.Any()) {
        PlaceBlinker();
    }
}

void Worksheet::mnuShowStep_Click(bool ticked) {
    problem.settings.mnuShowStep = ticked;
    problem.playback.ShowAllSteps = ticked ? 0 : -1;
    if (!ArrowVisible()) {
        return;
    }
    // Ticked again, playback starts from the second line, whatever was shown: kept as it is.
    int& shown = problem.playback.ShownStep;
    if (!ticked) {
        shown = 0;
    } else if (shown == 0) {
        shown = 2;
    }
}

void Worksheet::Timer2_Timer() {
    if (timer2Enabled) {
        arrowFrame = !arrowFrame;
        Changed();
    }
}

void Worksheet::HideArrow() {
    timer2Enabled = false;
    CurrentSheet().arrowVisible = false;
}

}  // namespace numerello
