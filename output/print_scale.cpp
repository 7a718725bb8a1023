#include "output/print_scale.h"

#include <algorithm>

#include "typeset/variants.h"

namespace numerello {

namespace {

constexpr double kMargin = 10;
constexpr double kPixelsPerMillimetre = 96 / 25.4;

PrintScale ScaleOf(PaperSize paper, double zoom) {
    const double pixels = kPixelsPerMillimetre * zoom;
    // Labels and the like would have no room left within such margins.
    const double margin = std::min({kMargin, paper.width / 4, paper.height / 4});
    return {.pageWidth = paper.width * pixels,
            .pageHeight = paper.height * pixels,
            .margin = margin * pixels,
            .across = PrintScale::kWidth / ((paper.width - 2 * margin) * pixels),
            .down = PrintScale::kHeight / ((paper.height - 2 * margin) * pixels)};
}

/// Reasons are never black; in a heading, which is, these are characters like others.
bool IsRootSignOfReason(const TextMark& mark) {
    return (mark.text == "~" || mark.text == "&") && mark.color != kBlack;
}

class InPixels {
  public:
    explicit InPixels(const PrintScale& scale) : scale(scale) {}

    Mark operator()(TextMark mark) const {
        if (IsRootSignOfReason(mark)) {
            mark.font.name = kSheetFace;
        }
        mark.x = X(mark.x);
        mark.y = Y(mark.y);
        return mark;
    }
    Mark operator()(const StrokeMark& mark) const {
        return StrokeMark{X(mark.x1), Y(mark.y1), X(mark.x2), Y(mark.y2), mark.width, mark.color};
    }
    Mark operator()(ImageMark mark) const {
        mark.x = X(mark.x);
        mark.y = Y(mark.y);
        return mark;
    }

  private:
    double X(double units) const { return scale.margin + units / scale.across; }
    double Y(double units) const { return scale.margin + units / scale.down; }

    const PrintScale& scale;
};

}  // namespace

double PrintScale::SquareAt(double x, double y) const {
    return std::max(0.0, std::min(pageWidth - margin - x, pageHeight - margin - y));
}

PrintScale ScaleOfPrint(PaperSize paper) {
    return ScaleOf(paper, 1);
}

PrintScale ScaleOfPreview(PaperSize paper) {
    return ScaleOf(paper, kPreviewScale);
}

std::vector<Mark> MarksInPixels(std::span<const Mark> marks, const PrintScale& scale) {
    std::vector<Mark> placed;
    placed.reserve(marks.size());
    for (const Mark& mark : marks) {
        placed.push_back(std::visit(InPixels(scale), mark));
    }
    return placed;
}

std::vector<std::span<const Mark>> PrintedPages(const Surface& Printer) {
    std::vector<std::span<const Mark>> pages;
    for (int page = 0; page < Printer.PageCount(); ++page) {
        if (!Printer.PageMarks(page).empty()) {
            pages.push_back(Printer.PageMarks(page));
        }
    }
    return pages;
}

}  // namespace numerello
