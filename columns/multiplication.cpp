#include "columns/multiplication.h"

#include <utility>

#include "columns/column_rows.h"
#include "columns/product_cells.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr double kLeft = 150;
constexpr double kTop = 350;
constexpr double kFirstRowBelowRule = 5;
constexpr double kNextRow = 18;
constexpr double kSumRuleBelowRow = 18;
constexpr double kSumRuleBeforeEnd = 3;
constexpr double kSumsBelowRule = 4;

// A carry stands above the next digit of the top number, those of each partial product above those
// of the one before: row r starts at the cells r further left, r rows lower.
constexpr double kCarryUp = 55;
constexpr double kCarryUpPerRow = 30;
constexpr double kCarryBack = 19;
constexpr double kCarryOnPerRow = 20;

constexpr int kOpeningNote = 2;

/// The counter is 100 and the number of cells to draw. All of them at once is 200.
constexpr int kNoCell = 100;
constexpr int kAllCells = kNoCell + kMostCells;
constexpr int kAllAtOnce = -1;

/// How many cells the next drawing shows.
int NextCellCount(Playback& playback) {
    int& counter = playback.ShowAllSteps;
    if (counter == 0) {
        counter = kNoCell;
    } else if (counter == kAllAtOnce || counter >= kAllCells) {
        counter = kAllCells;
    } else {
        ++counter;
    }
    return counter - kNoCell;
}

class MultiplicationSheet {
  public:
    explicit MultiplicationSheet(ColumnRun& run) : run(run), pen(run.pen) {}

    void PrintNumbers(const ColumnCells& top, const ColumnCells& bottom, int length) {
        pen.Y = kTop;
        topEnd = PrintRow(pen, kLeft, top, length);
        run.playback.LineEndX = topEnd;
        PrintRow(pen, kLeft, bottom, length);
        DrawRule(pen, kLeft, length);
        pen.Y += kFirstRowBelowRule;
        BeginRow();
    }

    void DrawCell(const ProductCell& cell) {
        if (cell.marker == ProductCell::Marker::PartialProduct) {
            pen.Y += kNextRow;
            BeginRow();
            ++rowsPassed;
        } else if (cell.marker == ProductCell::Marker::LastPartialProduct) {
            BeginSums();
        }
        if (!cell.Carry.empty()) {
            DrawCarry(cell.Carry);
        }
        pen.PrintCellLeftward(cell.Digit);
    }

  private:
    void BeginRow() { pen.X = topEnd - ColumnPen::kCell; }

    void BeginSums() {
        const double x = pen.X;
        const double y = pen.Y + kSumRuleBelowRow;
        pen.Print("+");
        pen.MoveTo(x, y);
        pen.LineTo(topEnd - kSumRuleBeforeEnd, y);
        pen.Y += kSumsBelowRule;
        BeginRow();
    }

    void DrawCarry(const std::string& carry) {
        const double x = pen.X;
        const double y = pen.Y;
        pen.MoveTo(x - kCarryBack + kCarryOnPerRow * rowsPassed,
                   y - kCarryUp - kCarryUpPerRow * rowsPassed);
        pen.SetFontSize(ColumnPen::kMarkSize);
        pen.Print(carry);
        pen.SetFontSize(ColumnPen::kDigitSize);
        pen.MoveTo(x, y);
    }

    ColumnRun& run;
    ColumnPen& pen;
    double topEnd = 0;
    int rowsPassed = 0;
};

}  // namespace

void ColumnMultiplication(std::string Top, std::string Bottom, ColumnRun& run) {
    if (Top.size() < Bottom.size()) {
        std::swap(Top, Bottom);
    }
    run.log.StepNote[kOpeningNote] = Text("Multiply ", Top, " by ", Bottom, ".");
    const ProductCells cells = WorkProduct(Top, Bottom, run.log);
    const int length = PadToColumns(Top, Bottom, 'x');
    const int drawn = NextCellCount(run.playback);

    MultiplicationSheet sheet(run);
    sheet.PrintNumbers(SplitColumns(Top), SplitColumns(Bottom), length);
    for (int k = 0; k < drawn; ++k) {
        sheet.DrawCell(cells[k]);
    }
    run.playback.LineEndY = run.pen.Y;
    if (cells[drawn].Digit == " " || !run.mnuShowStep) {
        run.Finish();
    }
}

}  // namespace numerello
