#include "worksheet/sheet_rows.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "typeset/slack.h"
#include "worksheet/mark_rows.h"

namespace numerello {

namespace {

/// Digits of one number stand a cell of 20 apart, the marks beside it a little more.
constexpr double kNextCell = 25;

/// What is drawn in columns and reads otherwise.
struct DrawnSign {
    std::string_view drawn;
    std::string_view text;
};

constexpr std::array kDrawnSigns{
    DrawnSign{"x", "*"},
    DrawnSign{")", " into "},
};

using Pieces = std::vector<TextMark>;

Pieces PiecesOf(const Surface& surface) {
    Pieces pieces;
    for (const Mark& mark : surface.Marks()) {
        if (const auto* piece = std::get_if<TextMark>(&mark)) {
            pieces.push_back(*piece);
        }
    }
    return pieces;
}

std::string_view TextOf(const TextMark& piece) {
    const auto* const sign =
        std::find_if(kDrawnSigns.begin(), kDrawnSigns.end(),
                     [&piece](const DrawnSign& each) { return each.drawn == piece.text; });
    return sign == kDrawnSigns.end() ? std::string_view(piece.text) : sign->text;
}

bool IsNumber(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Whether two neighbours would run together into another number, or a cell is empty between them.
bool StandApart(const TextMark& left, const TextMark& right) {
    const bool severalDigits = left.text.size() > 1 || right.text.size() > 1;
    return IsBefore(left.x + kNextCell, right.x) ||
           (severalDigits && IsNumber(left.text) && IsNumber(right.text));
}

/// The pieces of one row, from left to right.
std::string RowOf(Pieces pieces) {
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const TextMark& left, const TextMark& right) { return left.x < right.x; });
    std::string row;
    const TextMark* last = nullptr;
    for (const TextMark& piece : pieces) {
        if (last != nullptr && !IsBefore(last->x, piece.x)) {
            continue;
        }
        if (last != nullptr && StandApart(*last, piece)) {
            row += ' ';
        }
        row += TextOf(piece);
        last = &piece;
    }
    return row;
}

}  // namespace

std::vector<std::string> SheetRows(const Sheet& sheet) {
    if (!sheet.lines.empty()) {
        return sheet.lines;
    }
    std::vector<std::string> rows;
    for (const Pieces& row : RowsOfTexts(PiecesOf(sheet.surface))) {
        rows.push_back(RowOf(row));
    }
    return rows;
}

double LowestText(const Surface& surface) {
    double lowest = 0;
    for (const Mark& mark : surface.Marks()) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            lowest = std::max(lowest, text->y);
        }
    }
    return lowest;
}

}  // namespace numerello
