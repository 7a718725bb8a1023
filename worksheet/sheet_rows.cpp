#include "worksheet/sheet_rows.h"

#include <algorithm>

namespace numerello {

namespace {

/// Rows that are nearer to each other are one: digits of a column lie at least that far apart.
constexpr double kSameRow = 4;

std::vector<TextMark> PiecesOf(const Surface& surface) {
    std::vector<TextMark> pieces;
    for (const Mark& mark : surface.Marks()) {
        if (const auto* piece = std::get_if<TextMark>(&mark)) {
            pieces.push_back(*piece);
        }
    }
    return pieces;
}

}  // namespace

std::vector<std::string> SheetRows(const Sheet& sheet) {
    if (!sheet.lines.empty()) {
        return sheet.lines;
    }
    std::vector<TextMark> pieces = PiecesOf(sheet.surface);
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const TextMark& a, const TextMark& b) { return a.y < b.y; });
    std::vector<std::string> rows;
    for (auto first = pieces.begin(); first != pieces.end();) {
        const auto last = std::find_if(first, pieces.end(), [&](const TextMark& each) {
            return each.y - first->y >= kSameRow;
        });
        std::stable_sort(first, last,
                         [](const TextMark& a, const TextMark& b) { return a.x < b.x; });
        std::string& row = rows.emplace_back();
        std::for_each(first, last, [&row](const TextMark& each) { row += each.text; });
        first = last;
    }
    return rows;
}

}  // namespace numerello
