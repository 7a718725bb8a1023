#include <algorithm>
#include <utility>

#include "worksheet/drag.h"
#include "worksheet/worksheet.h"

namespace numerello {

namespace {

/// What is seen of a dragged sheet at least, at its upper edge.
constexpr double kGripWidth = 60;
constexpr double kGripHeight = 40;

double Within(double lowest, double value, double highest) {
    return std::max(lowest, std::min(value, highest));
}

}  // namespace

bool Worksheet::RaiseNeighbour(int direction) {
    const int neighbour = stack.Order().back() + direction;
    if (neighbour < 0 || neighbour >= kSheetCount || !stack[neighbour].visible) {
        return false;
    }
    stack.Raise(neighbour);
    Changed();
    return true;
}

void Worksheet::Paper_MouseDown(int Index, bool leftButton, int X, int Y) {
    if (leftButton) {
        stack.Raise(Index);
    }
    HoldSheet(Index, X, Y);
}

void Worksheet::Picture3_MouseDown(int X, int Y) {
    stack.SendToBack(1);
    HoldSheet(0, X, Y);
}

void Worksheet::HoldSheet(int Index, int X, int Y) {
    dragStartX = X;
    dragStartY = Y;
    heldLeft = stack[Index].left;
    heldTop = stack[Index].top;
    movedSincePress = false;
    Changed();
}

void Worksheet::Paper_MouseMove(int Index, bool leftButton, int X, int Y) {
    // A chooser that a click closed over the sheet must not make it jump.
    if (problem.topic.ClickedOnly) {
        dragStartX = X;
        dragStartY = Y;
        problem.topic.ClickedOnly = false;
    }
    if (!leftButton || (X == dragStartX && Y == dragStartY)) {
        return;
    }
    Sheet& sheet = stack[Index];
    sheet.left += X - dragStartX;
    sheet.top += Y - dragStartY;
    movedSincePress = true;
    sheetsDragged = sheetsDragged || IsDrag(sheet.left - heldLeft, sheet.top - heldTop);
    Changed();
}

void Worksheet::Paper_MouseUp(int Index, const SeenDesk& seen) {
    Sheet& sheet = stack[Index];
    if (std::exchange(movedSincePress, false)) {
        sheet.left = Within(seen.left + kGripWidth - sheet.width, sheet.left,
                            seen.left + seen.width - kGripWidth);
        sheet.top = Within(0, sheet.top, seen.top + seen.height - kGripHeight);
    }
    Changed();
}

}  // namespace numerello
