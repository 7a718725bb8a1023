#include "output/print_line.h"

#include "typeset/lines.h"
#include "typeset/slack.h"
#include "typeset/variants.h"

namespace numerello {

namespace {

constexpr std::string_view kColors = "[]";
constexpr std::string_view kConstructs = "#^~";

bool BeginsWithConstruct(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kColors);
    return first != std::string_view::npos &&
           kConstructs.find(text[first]) != std::string_view::npos;
}

bool IsTooLow(std::string_view text, const Surface& page, const TypesetVariant& variant) {
    const double baseY = page.CurrentY + variant.startDrop.At(page.FontSize());
    return BeginsWithConstruct(text) && IsPast(baseY, variant.page->limit);
}

/// Where the line's base will be that of a turned page.
void BeginAtTop(Surface& page, const TypesetVariant& variant) {
    page.CurrentX = 0;
    page.CurrentY = variant.page->baseY - variant.startDrop.At(page.FontSize());
}

bool HasFraction(std::string_view text) {
    return text.find('#') != std::string_view::npos;
}

/// What two such lines lack, and a little more to tell them apart.
constexpr double kFractionRoom = 3;

}  // namespace

void PrintWholeLine(std::string_view Text, Surface& Printer, bool Blue, Learner& learner) {
    if (IsTooLow(Text, Printer, kPrintVariant)) {
        Printer.NewPage();
        BeginAtTop(Printer, kPrintVariant);
    }
    PrintLine(Text, Printer, Blue, learner);
}

void PreviewWholeLine(std::string_view Text, Sheets& Pages, bool Blue, Learner& learner) {
    if (IsTooLow(Text, Pages.Current(), kPreviewVariant)) {
        Pages.Turn();
        BeginAtTop(Pages.Current(), kPreviewVariant);
    }
    PreviewLine(Text, Pages, Blue, learner);
}

void PartFractions(std::string_view above, std::string_view below, Surface& page) {
    if (HasFraction(above) && HasFraction(below)) {
        page.CurrentY += kFractionRoom;
    }
}

}  // namespace numerello
