#include "columns/subtraction.h"

#include <utility>

#include "columns/column_rows.h"
#include "core/bounds.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr double kLeft = 80;
constexpr double kTop = 300;
constexpr int kMarkRows = 2;
constexpr double kLineEndBelowBottom = 21;
constexpr double kAnswerBelowRule = 4;
constexpr double kStrikeWidth = 1;

/// From the place of a mark: the stroke through what it replaces.
struct Strike {
    double fromX, fromY;
    double toX, toY;
};

constexpr Strike kStrike{-3, 30, 13, 20};
constexpr Strike kUpperStrike{-3, 25, 13, 15};

struct DifferenceRows {
    using Numbers = BoundedArray<int, 25>;

    Numbers TopDigits;  ///< as they stand after the borrows until now
    Numbers BottomDigits;
    ColumnCells ResultDigits = ColumnCells(" ");
    ColumnCells BorrowMarks;       ///< what a top digit became first
    ColumnCells BorrowMarksUpper;  ///< and then
};

/// One difference on its page.
class SubtractionSheet {
  public:
    SubtractionSheet(ColumnRun& run, const std::string& Top, const std::string& Bottom)
        : run(run),
          length(static_cast<int>(Bottom.size())),
          topCells(SplitColumns(Top)),
          bottomCells(SplitColumns(Bottom)) {
        for (int i = 0; i < length; ++i) {
            rows.TopDigits[i] = DigitAt(topCells, i);
            rows.BottomDigits[i] = DigitAt(bottomCells, i);
        }
    }

    void PrintNumbers() {
        ColumnPen& pen = run.pen;
        pen.Y = kTop;
        for (int i = 0; i < kMarkRows; ++i) {
            pen.EndLine();
        }
        PrintRow(pen, kLeft, topCells, length);
        const double bottomRow = pen.Y;
        run.playback.LineEndX = PrintRow(pen, kLeft, bottomCells, length);
        run.playback.LineEndY = bottomRow + kLineEndBelowBottom;
        DrawRule(pen, kLeft, length);
        pen.Y += kAnswerBelowRule;
    }

    void WorkColumn(int i) {
        std::string note;
        // A cell that a shorter top number leaves blank counts as 0.
        if (rows.TopDigits[i] < rows.BottomDigits[i]) {
            note = Borrow(i);
            const double answerRow = run.pen.Y;
            DrawBorrowMarks(i);
            run.pen.Y = answerRow;
        }
        const std::string difference = WholeText(rows.TopDigits[i] - rows.BottomDigits[i]);
        rows.ResultDigits[i] = difference;
        run.log.StepNote[run.playback.ShownStep] =
            Text(note, "Subtract ", WholeText(rows.BottomDigits[i]), " from ",
                 WholeText(rows.TopDigits[i]), " (", difference, ").");
        run.pen.X = kLeft;
        PrintCells(run.pen, rows.ResultDigits, i);
    }

  private:
    /// Makes column i large enough. Returns what is said of it.
    std::string Borrow(int i) {
        const std::string t = WholeText(rows.TopDigits[i]);
        std::string note = Text("Since ", t, " is less than ", WholeText(rows.BottomDigits[i]),
                                ", borrow 1 from the number to the left (",
                                WholeText(rows.TopDigits[i - 1]), ") and add 10 to ", t, ".  ");
        rows.TopDigits[i] += 10;
        --rows.TopDigits[i - 1];
        Mark(i);
        Mark(i - 1);
        const int k = BorrowAcrossZeros(i);
        if (k > 1) {
            const std::string n = WholeText(rows.TopDigits[i - k] + 1);
            note += Text(
                "Since the number to the left is 0, keep moving left until you reach a number "
                "greater than 0 (",
                n, ").  Borrow 1 from ", n,
                " then add 10 to the next number.  Keep borrowing 1 and adding 10 to the next "
                "number until you reach the numbers you want to subtract.  ");
        }
        return note;
    }

    /// A 0 has nothing to lend until it has borrowed itself. Returns how far left of column i the
    /// number was found that could.
    int BorrowAcrossZeros(int i) {
        int k = 1;
        for (; rows.BorrowMarks[i - k] == "-1"; ++k) {
            rows.BorrowMarks[i - k] = "10";
            rows.BorrowMarksUpper[i - k] = "9";
            rows.TopDigits[i - k] = 9;
            --rows.TopDigits[i - k - 1];
            rows.BorrowMarks[i - k - 1] = WholeText(rows.TopDigits[i - k - 1]);
        }
        return k;
    }

    void Mark(int i) {
        std::string& lower = rows.BorrowMarks[i];
        (lower.empty() ? lower : rows.BorrowMarksUpper[i]) = WholeText(rows.TopDigits[i]);
    }

    /// Draws the marks of the columns 0 to `Column`, those of an earlier borrow once more.
    void DrawBorrowMarks(int Column) {
        ColumnPen& pen = run.pen;
        pen.SetFontSize(ColumnPen::kMarkSize);
        pen.MoveTo(kLeft, kTop);
        for (int i = 0; i <= Column; ++i) {
            StrikeUpperMark(i);
            pen.PrintCell(rows.BorrowMarksUpper[i]);
        }
        pen.EndLine();
        pen.X = kLeft;
        for (int i = 0; i <= Column; ++i) {
            StrikeMark(i);
            pen.PrintCell(rows.BorrowMarks[i]);
        }
        pen.SetFontSize(ColumnPen::kDigitSize);
    }

    /// Crosses out the digit below the mark that comes next.
    void StrikeMark(int i) {
        if (!rows.BorrowMarks[i].empty()) {
            DrawStrike(kStrike);
        }
    }

    /// Crosses out the mark below the upper one that comes next.
    void StrikeUpperMark(int i) {
        if (!rows.BorrowMarksUpper[i].empty()) {
            DrawStrike(kUpperStrike);
        }
    }

    void DrawStrike(const Strike& strike) {
        ColumnPen& pen = run.pen;
        const double x = pen.X;
        const double y = pen.Y;
        pen.SetDrawWidth(kStrikeWidth);
        pen.MoveTo(x + strike.fromX, y + strike.fromY);
        pen.LineTo(x + strike.toX, y + strike.toY);
        pen.MoveTo(x, y);
    }

    ColumnRun& run;
    int length;
    ColumnCells topCells;  ///< as typed
    ColumnCells bottomCells;
    DifferenceRows rows;
};

}  // namespace

void ColumnSubtraction(std::string Top, std::string Bottom, ColumnRun& run) {
    AlignDecimals(Top, Bottom);
    if (ToNumber(Bottom) > ToNumber(Top)) {
        std::swap(Top, Bottom);
    }
    run.log.StepNote[run.playback.ShownStep] = Text("Subtract ", Bottom, " from ", Top, ".");
    const int length = PadToColumns(Top, Bottom, '-');
    SubtractionSheet sheet(run, Top, Bottom);
    WorkColumns(sheet, length, run);
}

}  // namespace numerello
