#include "columns/column_rows.h"

#include <algorithm>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr double kRuleWidth = 2;
constexpr double kRulePerCell = 19;

void FillDecimals(std::string& number, int places) {
    const int missing = places - DecimalPlaces(number);
    if (missing > 0 && number.find('.') == std::string::npos) {
        number += '.';
    }
    number.append(static_cast<std::size_t>(missing), '0');
    if (number.starts_with('.')) {
        number.insert(0, "0");
    }
}

}  // namespace

void AlignDecimals(std::string& Top, std::string& Bottom) {
    const int places = std::max(DecimalPlaces(Top), DecimalPlaces(Bottom));
    FillDecimals(Top, places);
    FillDecimals(Bottom, places);
}

int PadToColumns(std::string& Top, std::string& Bottom, char sign) {
    const std::size_t length = std::max(Top.size(), Bottom.size());
    Top.insert(0, length - Top.size(), ' ');
    Bottom.insert(0, length - Bottom.size(), ' ');
    Top.insert(0, 1, ' ');
    Bottom.insert(0, 1, sign);
    return static_cast<int>(length) + 1;
}

ColumnCells SplitColumns(std::string_view text) {
    ColumnCells cells;
    int index = 0;
    for (const std::string& character : Characters(text)) {
        cells[index++] = character;
    }
    return cells;
}

int DigitAt(const ColumnCells& cells, int index) {
    const std::string& cell = cells[index];
    return IsDigit(cell) ? cell.front() - '0' : 0;
}

void PrintCells(ColumnPen& pen, const ColumnCells& cells, int last) {
    for (int i = 0; i <= last; ++i) {
        pen.PrintCell(cells[i]);
    }
}

double PrintRow(ColumnPen& pen, double left, const ColumnCells& cells, int length) {
    pen.X = left;
    PrintCells(pen, cells, length - 1);
    const double end = pen.X;
    pen.EndLine();
    return end;
}

void DrawRule(ColumnPen& pen, double left, int length) {
    pen.X = left;
    pen.SetDrawWidth(kRuleWidth);
    pen.LineTo(left + length * kRulePerCell, pen.Y);
}

int NextReveal(Playback& playback, int length) {
    int& counter = playback.ShowAllSteps;
    counter = counter != 0 ? counter - 1 : length;
    return counter;
}

}  // namespace numerello
