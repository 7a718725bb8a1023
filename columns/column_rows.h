#pragma once

#include <string>
#include <string_view>

#include "columns/column_pen.h"
#include "columns/column_run.h"
#include "core/bounds.h"

/// What the procedures of this room share: numbers as rows of one-character cells.
namespace numerello {

/// The cells of a row. Index 0 is the sign's, digits follow from index 1.
using ColumnCells = BoundedArray<std::string, 25>;

/// Makes both texts end in the same number of decimals: a point and zeros go behind the shorter
/// one, and a text that then begins with its point gets a 0 before it. Changes nothing as long as
/// the boxes of columns take no point.
void AlignDecimals(std::string& Top, std::string& Bottom);

/// Pads the shorter text with blanks in front until both are equally long, then puts a blank before
/// Top and the sign before Bottom. Returns the length that both have then.
int PadToColumns(std::string& Top, std::string& Bottom, char sign);

/// The text's characters, one a cell from index 0. Failure(Format) for a text longer than a row.
ColumnCells SplitColumns(std::string_view text);

/// What a cell counts; a blank counts 0.
int DigitAt(const ColumnCells& cells, int index);

/// Prints the cells 0 to `last` from the pen on.
void PrintCells(ColumnPen& pen, const ColumnCells& cells, int last);

/// Prints a whole row from `left` on, an empty cell behind it, and ends the line. Gives the X
/// behind the last digit's cell.
double PrintRow(ColumnPen& pen, double left, const ColumnCells& cells, int length);

/// Draws the rule below rows of this length and leaves the pen at its end.
void DrawRule(ColumnPen& pen, double left, int length);

/// Lets a counter that falls with every drawing go on, from `length` at the first one; in
/// all-at-once mode it is below 0. Returns it.
int NextReveal(Playback& playback, int length);

/// Goes on with a sum or a difference in rows of this length: its numbers, and from the right the
/// columns that are revealed by now.
template <class Sheet>
void WorkColumns(Sheet& sheet, int length, ColumnRun& run) {
    const int counter = NextReveal(run.playback, length);
    sheet.PrintNumbers();
    for (int i = length - 1; i >= counter && i > 0; --i) {
        sheet.WorkColumn(i);
    }
    if (!run.mnuShowStep || counter == 1) {
        run.Finish();
    }
}

}  // namespace numerello
