#include "columns/column_pen.h"

namespace numerello {

ColumnPen::ColumnPen(Surface& surface, const ColumnPlace& place) : surface(surface), place(place) {
    surface.SetFontSize(kDigitSize);
    surface.ForeColor = kBlack;
}

void ColumnPen::MoveTo(double x, double y) {
    X = x;
    Y = y;
}

void ColumnPen::Print(std::string_view text) {
    Apply();
    surface.Print(text);
    Take();
}

void ColumnPen::PrintCell(std::string_view text) {
    const double cell = X;
    Print(text);
    X = cell + kCell;
}

void ColumnPen::PrintCellLeftward(std::string_view text) {
    const double cell = X;
    Print(text);
    X = cell - kCell;
}

void ColumnPen::EndLine() {
    Apply();
    surface.Print("", Surface::LineEnd::Break);
    Take();
    X = 0;
}

void ColumnPen::LineTo(double x, double y) {
    Apply();
    const double fromX = surface.CurrentX;
    const double fromY = surface.CurrentY;
    MoveTo(x, y);
    Apply();
    surface.Line(fromX, fromY, surface.CurrentX, surface.CurrentY);
}

void ColumnPen::Apply() {
    surface.CurrentX = place.left + X * place.xUnit;
    surface.CurrentY = place.top + Y * place.yUnit;
}

void ColumnPen::Take() {
    X = (surface.CurrentX - place.left) / place.xUnit;
    Y = (surface.CurrentY - place.top) / place.yUnit;
}

}  // namespace numerello
