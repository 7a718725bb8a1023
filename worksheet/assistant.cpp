#include "worksheet/assistant.h"

#include <algorithm>

#include "worksheet/drag.h"
#include "worksheet/shown_note.h"

namespace numerello {

namespace {

constexpr int kRightOfSheet = 816;  ///< from the left edge of the sheet
constexpr double kFirstTop = 160;

// Once those of the window's frame and caption; now the figure's distance from the edges.
constexpr int kRightEdge = 8;
constexpr int kLowerEdge = 27;

constexpr double kSmallest = 10;
constexpr double kScaleStep = 0.5;

std::string_view FigureOf(int whichAssistant) {
    switch (whichAssistant) {
        case 1:
            return "wiz1";
        case 2:
            return "wiz2";
        default:
            return "wiz3";
    }
}

/// The place nearest to the wanted one at which the figure is seen whole.
double OnForm(double wanted, double room) {
    return std::max(0.0, std::min(wanted, room));
}

}  // namespace

Assistant::Assistant(const Problem& problem) : problem(problem) {}

void Assistant::Load() {
    wizImage = FigureOf(problem.settings.whichAssistant);
    wizScale = 1;
    Vanish();
    growing = false;
    shrinking = false;
    pressed = false;
    dragged = false;
    formWidth = 0;
    RestartWork();
}

void Assistant::PlaceBeside(int sheetLeft, int width, int height) {
    const bool newPlace = width != formWidth || sheetLeft != besideSheet;
    formWidth = width;
    formHeight = height;
    besideSheet = sheetLeft;
    if (newPlace && !dragged && !pressed) {
        left = FirstLeft(sheetLeft, formWidth);
        top = kFirstTop;
    }
}

int Assistant::FirstLeft(int sheetLeft, int formWidth) {
    return std::min(sheetLeft + kRightOfSheet, formWidth - kWidth - kRightEdge);
}

void Assistant::ChooseFigure() {
    wizImage = FigureOf(problem.settings.whichAssistant);
}

void Assistant::ClickNotifyChanged() {
    StopNotice();
    Notify();
    clickVisible = clickMe;
}

void Assistant::mnuHideWiz_Click(bool ticked) {
    growing = ticked;
    shrinking = !ticked;
    wizScale = ticked ? kSmallest : 1;
    if (ticked) {
        painted = false;
    }
}

void Assistant::wizIn_Timer() {
    if (!growing) {
        return;
    }
    Size();
    visible = true;
    wizScale -= kScaleStep;
    if (wizScale < 1) {
        growing = false;
        Notify();
    }
}

void Assistant::WizOut_Timer() {
    if (!shrinking) {
        return;
    }
    StopNotice();
    Size();
    wizScale += kScaleStep;
    if (wizScale > kSmallest) {
        Vanish();
        shrinking = false;
    }
}

void Assistant::EndMotion() {
    while (growing) {
        wizIn_Timer();
    }
    while (shrinking) {
        WizOut_Timer();
    }
}

void Assistant::Size() {
    width = kWidth / wizScale;
    height = kHeight / wizScale;
    painted = true;
}

void Assistant::Vanish() {
    visible = false;
    painted = false;
}

double Assistant::Left() const {
    return pressed ? left : OnForm(left, formWidth - kWidth - kRightEdge);
}

double Assistant::Top() const {
    return pressed ? top : OnForm(top, formHeight - kHeight - kLowerEdge);
}

void Assistant::Wizard_MouseDown(int X, int Y) {
    left = Left();
    top = Top();
    pressed = true;
    pressX = X;
    pressY = Y;
    pressLeft = left;
    pressTop = top;
}

void Assistant::Wizard_MouseMove(int X, int Y) {
    if (pressed) {
        left += X - pressX;
        top += Y - pressY;
    }
}

bool Assistant::Wizard_MouseUp() {
    if (!pressed) {
        return false;
    }
    // Measured before the edges push the figure back: a drag against an edge is no click.
    const bool isDrag = IsDrag(left - pressLeft, top - pressTop);
    pressed = false;
    dragged = dragged || isDrag;
    left = Left();
    top = Top();
    return !isDrag && !ShownNote(problem).empty();
}

bool Assistant::MayNotify() const {
    return visible && !growing && !shrinking && !workEnded && problem.settings.ClickNotify &&
           !ShownNote(problem).empty();
}

void Assistant::Notify() {
    if (MayNotify()) {
        clickMe = true;
    } else {
        StopNotice();
    }
}

void Assistant::StopNotice() {
    clickMe = false;
    clickVisible = false;
}

void Assistant::EndWork() {
    StopNotice();
    workEnded = true;
}

void Assistant::RestartWork() {
    StopNotice();
    workEnded = false;
}

void Assistant::clickMe_Timer() {
    if (!MayNotify()) {
        StopNotice();
    }
    if (clickMe) {
        clickVisible = !clickVisible;
    }
}

}  // namespace numerello
