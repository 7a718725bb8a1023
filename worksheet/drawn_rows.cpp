#include "worksheet/drawn_rows.h"

#include <algorithm>

#include "typeset/slack.h"

namespace numerello {

namespace {

/// Digits of one number stand a cell of 20 apart, the marks beside it a little more.
constexpr double kNextCell = 25;
/// The bracket of a division stands a little above its row.
constexpr double kSameRow = 5;

bool IsRowAbove(const TextMark& mark, const TextMark& other) {
    return mark.y + kSameRow < other.y;
}

/// By row, then by place.
std::vector<TextMark> ReadingOrder(const Surface& sheet) {
    std::vector<TextMark> marks;
    for (const Mark& mark : sheet.Marks()) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            marks.push_back(*text);
        }
    }
    std::stable_sort(marks.begin(), marks.end(), [](const TextMark& left, const TextMark& right) {
        const bool sameRow = !IsRowAbove(left, right) && !IsRowAbove(right, left);
        return sameRow ? IsBefore(left.x, right.x) : left.y < right.y;
    });
    return marks;
}

}  // namespace

std::vector<std::string> DrawnRows(const Surface& sheet) {
    std::vector<std::string> rows;
    const TextMark* last = nullptr;
    const std::vector<TextMark> marks = ReadingOrder(sheet);
    for (const TextMark& mark : marks) {
        if (last == nullptr || IsRowAbove(*last, mark)) {
            rows.push_back(mark.text);
        } else if (IsBefore(last->x, mark.x)) {
            rows.back() += IsBefore(last->x + kNextCell, mark.x) ? " " : "";
            rows.back() += mark.text;
        }
        last = &mark;
    }
    return rows;
}

}  // namespace numerello
