#include "columns/addition.h"

#include "columns/column_rows.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr double kLeft = 80;
constexpr double kTop = 300;
constexpr double kLineEndBelowTop = 39;
constexpr double kAnswerBelowRule = 4;

// From behind the newest digit of the answer.
constexpr double kCarryUp = 55;
constexpr double kCarryBack = 41;

struct SumRows {
    ColumnCells TopDigits;
    ColumnCells BottomDigits;
    ColumnCells ResultDigits = ColumnCells(" ");
};

/// One sum on its page: what is written in it, and what is still in hand.
class AdditionSheet {
  public:
    AdditionSheet(ColumnRun& run, const std::string& Top, const std::string& Bottom)
        : run(run),
          length(static_cast<int>(Bottom.size())),
          rows{SplitColumns(Top), SplitColumns(Bottom)} {}

    void PrintNumbers() {
        ColumnPen& pen = run.pen;
        pen.Y = kTop;
        run.playback.LineEndX = PrintRow(pen, kLeft, rows.TopDigits, length);
        run.playback.LineEndY = kTop + kLineEndBelowTop;
        PrintRow(pen, kLeft, rows.BottomDigits, length);
        DrawRule(pen, kLeft, length);
        pen.Y += kAnswerBelowRule;
    }

    void WorkColumn(int i) {
        const int a = DigitAt(rows.TopDigits, i);
        const int b = DigitAt(rows.BottomDigits, i);
        const int carried = carry;
        const int sum = a + b + carried;
        rows.ResultDigits[i] = WholeText(sum % 10);
        carry = sum / 10;
        if (i == 1 && carry > 0) {
            rows.ResultDigits[0] = WholeText(carry);
            carry = 0;
        }
        run.log.StepNote[run.playback.ShownStep] = Note(i, a, b, carried);
        PrintAnswer(i);
    }

  private:
    std::string Note(int i, int a, int b, int carried) const {
        const std::string sum = WholeText(a + b + carried);
        const std::string added =
            Text("Add ", WholeText(a), " and ", WholeText(b), " (", WholeText(a + b), ")");
        const std::string suffix =
            carried == 0 ? "."
                         : Text(", then add the carried remainder of 1 to the total (", sum, ").");
        if (carry > 0) {
            return Text(added, " ", suffix, "  Since ", sum,
                        " has more than one place value, carry the number in the tens place (1) "
                        "to the next column.");
        }
        // The blank stands behind the last column as well, where nothing is carried any more.
        return i == 1 ? Text(added, " ", suffix) : Text(added, suffix);
    }

    void PrintAnswer(int i) {
        ColumnPen& pen = run.pen;
        pen.X = kLeft;
        PrintCells(pen, rows.ResultDigits, i);
        if (carry > 0) {
            const double row = pen.Y;
            pen.MoveTo(pen.X - kCarryBack, row - kCarryUp);
            pen.SetFontSize(ColumnPen::kMarkSize);
            pen.Print(WholeText(carry));
            pen.SetFontSize(ColumnPen::kDigitSize);
            pen.Y = row;
        }
    }

    ColumnRun& run;
    int length;
    SumRows rows;
    int carry = 0;
};

}  // namespace

void ColumnAddition(std::string Top, std::string Bottom, ColumnRun& run) {
    run.log.StepNote[run.playback.ShownStep] = Text("Add ", Top, " and ", Bottom, ".");
    AlignDecimals(Top, Bottom);
    const int length = PadToColumns(Top, Bottom, '+');
    AdditionSheet sheet(run, Top, Bottom);
    WorkColumns(sheet, length, run);
}

}  // namespace numerello
