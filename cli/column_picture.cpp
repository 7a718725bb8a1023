#include "cli/column_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "typeset/variants.h"
#include "worksheet/mark_rows.h"

namespace numerello {

namespace {

constexpr double kCharacterWidth = 10;
/// A rule lies so close to the row below it that it needs a place between the rows.
constexpr double kRuleUp = 8;
constexpr double kThinnestRule = 2;

std::size_t Place(double x) {
    return static_cast<std::size_t>(std::max(0L, std::lround(x / kCharacterWidth)));
}

/// A rule as a text of hyphens.
TextMark Hyphens(const StrokeMark& rule) {
    const std::size_t length = Place(rule.x2) - Place(rule.x1) + 1;
    return {std::string(length, '-'), rule.x1, rule.y1 - kRuleUp, SheetFont(), rule.color};
}

/// What of the marks is written in characters.
std::vector<TextMark> WrittenMarks(std::span<const Mark> marks) {
    std::vector<TextMark> written;
    for (const Mark& mark : marks) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            written.push_back(*text);
        } else if (const auto* const rule = std::get_if<StrokeMark>(&mark);
                   rule != nullptr && rule->width >= kThinnestRule) {
            written.push_back(Hyphens(*rule));
        }
    }
    return written;
}

std::string LineOf(const std::vector<TextMark>& row) {
    std::string line;
    for (const TextMark& mark : row) {
        const std::size_t place = Place(mark.x);
        line.resize(std::max(line.size(), place + mark.text.size()), ' ');
        line.replace(place, mark.text.size(), mark.text);
    }
    return line;
}

/// All lines begin where the leftmost one does.
std::vector<std::string> WithoutMargin(std::vector<std::string> lines) {
    std::size_t margin = std::string::npos;
    for (const std::string& line : lines) {
        margin = std::min(margin, line.find_first_not_of(' '));
    }
    for (std::string& line : lines) {
        line.erase(0, margin);
    }
    return lines;
}

}  // namespace

std::vector<std::string> ColumnPicture(std::span<const Mark> marks) {
    std::vector<std::string> lines;
    for (const std::vector<TextMark>& row : RowsOfTexts(WrittenMarks(marks))) {
        lines.push_back(LineOf(row));
    }
    return WithoutMargin(std::move(lines));
}

}  // namespace numerello
