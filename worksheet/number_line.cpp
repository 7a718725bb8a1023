#include "worksheet/number_line.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "core/number.h"

namespace numerello {

namespace {

constexpr double kStroke = 2;
constexpr double kAxisY = 150;
constexpr double kAxisLeft = 150;
constexpr double kAxisRight = 550;
constexpr double kArrow = 5;
constexpr double kTickTop = 145;
constexpr double kTickEnd = 155;
constexpr double kLabelY = kTickEnd + 3;
constexpr double kZeroX = 350;
constexpr double kRow = 46;

void DrawAxis(Surface& surface) {
    surface.Line(kAxisLeft, kAxisY, kAxisRight, kAxisY);
    surface.Line(kAxisLeft, kAxisY, kAxisLeft + kArrow, kAxisY + kArrow);
    surface.Line(kAxisLeft, kAxisY, kAxisLeft + kArrow, kAxisY - kArrow);
    surface.Line(kAxisRight, kAxisY, kAxisRight - kArrow, kAxisY - kArrow);
    surface.Line(kAxisRight, kAxisY, kAxisRight - kArrow, kAxisY + kArrow);
}

void PrintLabel(Surface& surface, double x, std::string_view label) {
    surface.CurrentX = x;
    surface.CurrentY = kLabelY;
    surface.Print(label);
}

/// The label is centred by its length; an empty one leaves the tick alone.
void DrawTick(Surface& surface, double x, std::string_view label) {
    surface.Line(x, kTickTop, x, kTickEnd);
    if (!label.empty()) {
        PrintLabel(surface, x + 8 - static_cast<double>(label.size()) * 7, label);
    }
}

std::string LabelIf(bool shown, double value) {
    return shown ? NumberText(value) : "";
}

}  // namespace

void DrawNumberLine(Surface& surface, double A, double B) {
    const double entryX = surface.CurrentX;
    const double entryY = surface.CurrentY;
    const double entryWidth = surface.DrawWidth;
    const double Small = std::min(A, B);
    const double Large = std::max(A, B);

    surface.DrawWidth = kStroke;
    DrawAxis(surface);
    surface.Line(kZeroX, kTickTop, kZeroX, kTickEnd);
    PrintLabel(surface, kZeroX - 5, "0");
    const bool oneOnEachSide = Small < 0 && Large > 0;
    if (oneOnEachSide || Small == 0 || Large == 0 || Small == Large) {
        DrawTick(surface, 250, LabelIf(Small < 0, Small));
        DrawTick(surface, 450, LabelIf(Large > 0, Large));
    } else {
        DrawTick(surface, 217, LabelIf(Small < 0, Small));
        DrawTick(surface, 284, LabelIf(Large < 0, Large));
        DrawTick(surface, 417, LabelIf(Small > 0, Small));
        DrawTick(surface, 484, LabelIf(Large > 0, Large));
    }

    surface.DrawWidth = entryWidth;
    surface.CurrentX = entryX;
    surface.CurrentY = entryY + kRow;
}

}  // namespace numerello
