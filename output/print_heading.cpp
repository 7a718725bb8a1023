#include "output/print_heading.h"

#include <algorithm>
#include <string_view>

#include "core/number.h"
#include "core/text.h"
#include "output/print_scale.h"

namespace numerello {

namespace {

constexpr int kEmptyLines = 3;
constexpr std::string_view kIndent = "   ";

/// What the sheets' face draws as parts of mathematics: a heading means the characters themselves.
constexpr std::string_view kDrawnOtherwise = "&~$\\{`";

/// Calls `print` with the pieces of a heading line, each in a face that has its characters.
template <class Print>
void InReadableFaces(std::string_view line, Surface& Printer, Print print) {
    while (!line.empty()) {
        const bool otherwise = kDrawnOtherwise.find(line.front()) != std::string_view::npos;
        const std::size_t end = std::min(otherwise ? line.find_first_not_of(kDrawnOtherwise)
                                                   : line.find_first_of(kDrawnOtherwise),
                                         line.size());
        Printer.SetFontName(otherwise ? kExplanationFace : kSheetFace);
        print(line.substr(0, end));
        line.remove_prefix(end);
    }
    Printer.SetFontName(kSheetFace);
}

double HeadingWidth(std::string_view line, Surface& Printer) {
    double width = 0;
    InReadableFaces(line, Printer,
                    [&](std::string_view piece) { width += Printer.TextWidth(piece); });
    return width;
}

std::string TwoDigits(int number) {
    const std::string digits = WholeText(number);
    return digits.size() < 2 ? Text("0", digits) : digits;
}

}  // namespace

HeadingLines HeadingAtOpening(std::string_view subject, const Date& today) {
    return {"Vantrel Numerello", std::string(subject), DateText(today)};
}

std::string DateText(const Date& date) {
    return Text(TwoDigits(date.month), "/", TwoDigits(date.day), "/", WholeText(date.year));
}

bool NeedsOtherFace(std::string_view line) {
    return line.find_first_of(kDrawnOtherwise) != std::string_view::npos;
}

void PrintHeading(const HeadingLines& heading, Surface& Printer) {
    const double size = Printer.FontSize();
    Printer.ForeColor = kBlack;
    for (int i = 0; i < kEmptyLines; ++i) {
        PrintEmptyLine(Printer);
    }
    for (const std::string& line : heading) {
        const std::string text = Text(kIndent, line);
        const double width = HeadingWidth(text, Printer);
        if (width > PrintScale::kWidth) {
            Printer.SetFontSize(size * PrintScale::kWidth / width);
        }
        const double top = Printer.CurrentY;
        InReadableFaces(text, Printer, [&](std::string_view piece) { Printer.Print(piece); });
        Printer.SetFontSize(size);
        Printer.CurrentY = top;
        PrintEmptyLine(Printer);
    }
}

void PrintEmptyLine(Surface& Printer) {
    Printer.Print("", Surface::LineEnd::Break);
}

}  // namespace numerello
