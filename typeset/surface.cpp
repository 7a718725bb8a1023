#include "typeset/surface.h"

#include <utility>

#include "core/bounds.h"

namespace numerello {

Surface::Surface(const TextMetrics& metrics, Font font)
    : metrics(&metrics), font(std::move(font)) {}

void Surface::Print(std::string_view text, LineEnd end) {
    if (text.find_first_not_of(' ') != std::string_view::npos) {
        marks.emplace_back(TextMark{std::string(text), CurrentX, CurrentY, font, ForeColor});
    }
    CurrentX += TextWidth(text);
    if (end == LineEnd::Break) {
        CurrentX = 0;
        CurrentY += LineHeight(font.size);
    }
}

double Surface::TextWidth(std::string_view text) const {
    return metrics->Width(text, font);
}

double Surface::LineHeight(double points) const {
    return metrics->LineHeight({font.name, points});
}

Surface Surface::Blank() const {
    Surface blank(*metrics, font);
    blank.CurrentX = CurrentX;
    blank.CurrentY = CurrentY;
    blank.ForeColor = ForeColor;
    blank.DrawWidth = DrawWidth;
    return blank;
}

void Surface::Line(double x1, double y1, double x2, double y2) {
    marks.emplace_back(StrokeMark{x1, y1, x2, y2, DrawWidth, ForeColor});
    CurrentX = x2;
    CurrentY = y2;
}

void Surface::PaintPicture(std::string_view key, double x, double y) {
    marks.emplace_back(ImageMark{std::string(key), x, y});
}

void Surface::Cls() {
    marks.clear();
    ++clearings;
    pageStarts.assign(1, 0);
    CurrentX = 0;
    CurrentY = 0;
}

void Surface::NewPage() {
    pageStarts.push_back(marks.size());
    CurrentX = 0;
    CurrentY = 0;
}

std::span<const Mark> Surface::PageMarks(int page) const {
    CheckIndex(page, PageCount() - 1);
    const std::size_t first = pageStarts[static_cast<std::size_t>(page)];
    const std::size_t next =
        page + 1 < PageCount() ? pageStarts[static_cast<std::size_t>(page) + 1] : marks.size();
    return std::span(marks).subspan(first, next - first);
}

}  // namespace numerello
