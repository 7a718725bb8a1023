#include "columns/division.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "columns/column_rows.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr double kLeft = 80;
constexpr double kTop = 300;
constexpr double kBracketUp = 3;
constexpr double kBehindBracket = 5;
constexpr double kQuotientUp = 20;
constexpr double kNextProduct = 38;
constexpr double kFirstProductBack = 18;
constexpr double kRuleBelowProduct = 16;
constexpr double kRuleBeyondDigits = 5;
constexpr double kDifferenceBelowRule = 3;
constexpr double kBarUp = 3;
constexpr double kBarWidth = 2;
constexpr double kLineEndUp = 20;

/// Behind the dividend stand "r" and the remainder.
constexpr int kCellsBehindDigits = 2;

/// The number of empty cells before the first that is not, less 1.
int FirstQuotientIndex(const ColumnCells& QuotientCells) {
    int empty = 0;
    while (QuotientCells[empty].empty()) {
        ++empty;
    }
    return empty - 1;
}

void PrintLeftward(ColumnPen& pen, const std::string& digits) {
    std::for_each(digits.rbegin(), digits.rend(),
                  [&pen](char digit) { pen.PrintCellLeftward(std::string(1, digit)); });
}

struct Partial {
    std::string PartialDividend;  ///< the number that is divided next
    bool PartialStarted = false;
};

/// One division on its page.
class DivisionSheet {
  public:
    DivisionSheet(ColumnRun& run, const std::string& Divisor, const std::string& Dividend)
        : run(run),
          pen(run.pen),
          divisorText(Divisor),
          dividendText(Dividend),
          divisor(ToNumber(Divisor)),
          length(static_cast<int>(Dividend.size())),
          dividendDigits(SplitColumns(Dividend)) {}

    /// Empty cells show the frame alone.
    void DrawDivision(const ColumnCells& QuotientCells) {
        Playback& playback = run.playback;
        playback.LineEndX = playback.LineEndY = 0;
        pen.MoveTo(kLeft, kTop);
        PrintCells(pen, SplitColumns(divisorText), static_cast<int>(divisorText.size()) - 1);
        const double BarX = pen.X;
        const double BarY = pen.Y;
        PrintBracket();
        for (int i = 0; i < length + kCellsBehindDigits; ++i) {
            const double X0 = pen.X;
            pen.Print(dividendDigits[i]);
            DrawQuotientCell(QuotientCells, i, X0);
            pen.MoveTo(X0 + ColumnPen::kCell, BarY);
        }
        pen.SetDrawWidth(kBarWidth);
        pen.MoveTo(BarX, BarY - kBarUp);
        pen.LineTo(BarX + length * ColumnPen::kCell + kRuleBeyondDigits, pen.Y);
        if (playback.LineEndX == 0) {
            playback.LineEndX = pen.X;
        }
        playback.LineEndY = pen.Y - kLineEndUp;
    }

  private:
    void PrintBracket() {
        const double row = pen.Y;
        pen.Y = row - kBracketUp;
        pen.SetFontSize(ColumnPen::kBracketSize);
        pen.Print(")");
        pen.SetFontSize(ColumnPen::kDigitSize);
        pen.MoveTo(pen.X + kBehindBracket, row);
    }

    void DrawQuotientCell(const ColumnCells& QuotientCells, int i, double X0) {
        const std::string& cell = QuotientCells[i];
        const double row = pen.Y;
        pen.MoveTo(X0, row - kQuotientUp);
        pen.Print(cell);
        if (!cell.empty()) {
            run.playback.LineEndX = pen.X;
        }
        if (!cell.empty() && cell != " " && i < length) {
            const int passed = i - FirstQuotientIndex(QuotientCells);
            pen.MoveTo(X0, row + passed * kNextProduct - kFirstProductBack);
            DrawProduct(ToNumber(cell), i);
        }
    }

    /// The pen stands at the product's last digit, below digit i of the dividend.
    void DrawProduct(double q, int i) {
        const double X0 = pen.X;
        const std::string product = NumberText(divisor * q);
        PrintLeftward(pen, product);
        pen.Print("-");
        const auto digits = static_cast<double>(product.size());
        pen.SetDrawWidth(kBarWidth);
        pen.Y += kRuleBelowProduct;
        pen.LineTo(pen.X + digits * ColumnPen::kCell + kRuleBeyondDigits, pen.Y);
        pen.MoveTo(X0, pen.Y + kDifferenceBelowRule);

        if (!partial.PartialStarted) {
            partial.PartialDividend = dividendText.substr(0, static_cast<std::size_t>(i) + 1);
            partial.PartialStarted = true;
        }
        Subtract(NumberText(q), product, i);
    }

    void Subtract(const std::string& q, const std::string& product, int i) {
        const std::string P = NumberText(ToNumber(partial.PartialDividend));
        const std::string difference = NumberText(ToNumber(P) - ToNumber(product));
        partial.PartialDividend = difference + dividendDigits[i + 1];
        const bool noDigitLeft = i >= length - 1;
        run.log.StepNote[run.playback.ShownStep] =
            Text(q, " is the largest number that when multiplied by the divisor (", divisorText,
                 ") produces a product less than or equal to ", P, ".  Subtract ", product,
                 " from ", P, " (", difference, ")",
                 noDigitLeft ? Ending(difference) : BroughtDown(dividendDigits[i + 1]));
        if (!noDigitLeft) {
            PrintBroughtDown(dividendDigits[i + 1]);
        }
        PrintLeftward(pen, difference);
    }

    std::string Ending(const std::string& difference) const {
        if (difference == "0") {
            return ".  There is no remainder.";
        }
        if (divisor == 0) {
            return ".  Since any number divided by 0 equals 0, the remainder isn't necessary.";
        }
        return Text(".  Since there are no more numbers to bring down, ", difference,
                    "  is the remainder.");
    }

    static std::string BroughtDown(const std::string& digit) {
        return Text(", then bring down the ", digit, ".");
    }

    void PrintBroughtDown(const std::string& digit) {
        const double x = pen.X;
        pen.X += ColumnPen::kCell;
        pen.SetColor(kRed);
        pen.Print(digit);
        pen.SetColor(kBlack);
        pen.X = x;
    }

    ColumnRun& run;
    ColumnPen& pen;
    const std::string& divisorText;
    const std::string& dividendText;
    double divisor;
    int length;  ///< of the dividend
    ColumnCells dividendDigits;
    Partial partial;
};

/// The quotient with "r" and the remainder, each digit above the one that produces it.
struct Quotient {
    std::string digits;
    std::string remainder;
    int start = 0;  ///< index of its first digit
};

Quotient Divided(const std::string& Dividend, const std::string& Divisor) {
    Quotient quotient{"0", "0"};
    if (ToNumber(Divisor) != 0) {
        const std::int32_t dividend = ToInteger32(ToNumber(Dividend));
        const std::int32_t divisor = ToInteger32(ToNumber(Divisor));
        quotient.digits = WholeText(dividend / divisor);
        quotient.remainder = WholeText(dividend % divisor);
    }
    quotient.start = static_cast<int>(Dividend.size()) - static_cast<int>(quotient.digits.size());
    return quotient;
}

/// The first `digits` cells, and with `remainder` the two behind them.
ColumnCells RevealedCells(const Quotient& quotient, int digits, bool remainder) {
    ColumnCells cells;
    int index = quotient.start;
    for (int i = 0; i < digits; ++i) {
        cells[index++] = quotient.digits.substr(static_cast<std::size_t>(i), 1);
    }
    if (remainder) {
        cells[index++] = "r";
        cells[index] = quotient.remainder;
    }
    return cells;
}

}  // namespace

void LongDivision(std::string Dividend, std::string Divisor, ColumnRun& run) {
    if (ToNumber(Dividend) < ToNumber(Divisor)) {
        std::swap(Dividend, Divisor);
    }
    run.log.StepNote[run.playback.ShownStep] = Text("Divide ", Dividend, " by ", Divisor, ".");
    const bool bothZero = ToNumber(Dividend) == 0;
    if (bothZero) {
        run.learner.MessageBox("", "Division by 0 is mathematically impossible.");
    }
    const Quotient quotient = Divided(Dividend, Divisor);
    const int length = static_cast<int>(quotient.digits.size());
    const int counter = NextReveal(run.playback, length);

    DivisionSheet sheet(run, Divisor, Dividend);
    // All at once "r" and the remainder are always there, also of a division without one.
    const bool allAtOnce = counter < 0;
    const bool remainder = allAtOnce || (counter == 0 && quotient.remainder != "0");
    sheet.DrawDivision(RevealedCells(quotient, allAtOnce ? length : length - counter, remainder));
    // With two zeros the run is over at once; the check mark waits until it has its place.
    if (!run.mnuShowStep || counter == 0 || bothZero) {
        run.Finish();
    }
}

}  // namespace numerello
