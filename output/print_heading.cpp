#include "output/print_heading.h"

#include "core/number.h"
#include "core/text.h"
#include "output/print_scale.h"

namespace numerello {

namespace {

constexpr int kEmptyLines = 3;
constexpr std::string_view kIndent = "   ";

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

void PrintHeading(const HeadingLines& heading, Surface& Printer) {
    const double size = Printer.FontSize();
    Printer.ForeColor = kBlack;
    for (int i = 0; i < kEmptyLines; ++i) {
        PrintEmptyLine(Printer);
    }
    for (const std::string& line : heading) {
        const std::string text = Text(kIndent, line);
        const double width = Printer.TextWidth(text);
        if (width > PrintScale::kWidth) {
            Printer.SetFontSize(size * PrintScale::kWidth / width);
        }
        const double top = Printer.CurrentY;
        Printer.Print(text);
        Printer.SetFontSize(size);
        Printer.CurrentY = top;
        PrintEmptyLine(Printer);
    }
}

void PrintEmptyLine(Surface& Printer) {
    Printer.Print("", Surface::LineEnd::Break);
}

}  // namespace numerello
