#include "output/preview_pages.h"

#include "core/bounds.h"
#include "output/print_line.h"
#include "typeset/variants.h"

namespace numerello {

PreviewPages::PreviewPages(const TextMetrics& metrics) : metrics(metrics) {
    AddPage();
}

void PreviewPages::Build(const HeadingLines& heading, std::span<const std::string> TestLines,
                         Learner& learner) {
    pages.clear();
    AddPage();
    PrintHeading(heading, Current());
    PrintEmptyLine(Current());
    std::string_view above;
    for (const std::string& line : TestLines) {
        PartFractions(above, line, Current());
        above = line;
        DrawnPage& before = pages.back();
        const std::size_t marks = before.surface.Marks().size();
        PreviewWholeLine(line, *this, false, learner);
        const bool began = before.surface.Marks().size() > marks;
        (began ? before : pages.back()).lines.push_back(line);
    }
}

Surface& PreviewPages::Current() {
    return pages.back().surface;
}

void PreviewPages::Turn() {
    AddPage();
}

const Surface& PreviewPages::Page(int page) const {
    CheckIndex(page, PreviewPageCount());
    return pages[static_cast<std::size_t>(page)].surface;
}

const std::vector<std::string>& PreviewPages::LinesOn(int page) const {
    CheckIndex(page, PreviewPageCount());
    return pages[static_cast<std::size_t>(page)].lines;
}

void PreviewPages::AddPage() {
    const Font font{std::string(kPreviewVariant.face), kPreviewVariant.fontSize};
    pages.push_back({Surface(metrics, font), {}});
}

}  // namespace numerello
