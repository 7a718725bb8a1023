#include "graph/print_graph.h"

#include "core/text.h"

namespace numerello {

namespace {

constexpr double kLetterSize = 12;

void PrintEmptyLines(Surface& page, int count) {
    for (int i = 0; i < count; ++i) {
        page.Print("", Surface::LineEnd::Break);
    }
}

}  // namespace

void PrintTheGraph(Surface& page, std::span<const std::string> heading, bool WithHeading) {
    page.SetFontName(kSheetFace);
    page.SetFontSize(kLetterSize);
    PrintEmptyLines(page, 3);
    if (WithHeading) {
        for (const std::string& line : heading) {
            page.Print(Text("   ", line), Surface::LineEnd::Break);
        }
    }
    PrintEmptyLines(page, 2);
    page.PaintPicture(kGraphPicture, page.CurrentX, page.CurrentY);
    page.NewPage();
}

}  // namespace numerello
