#include "worksheet/mark_rows.h"

#include <algorithm>

#include "typeset/slack.h"

namespace numerello {

std::vector<std::vector<TextMark>> RowsOfTexts(std::vector<TextMark> texts) {
    constexpr double kSameRow = 5;
    std::stable_sort(texts.begin(), texts.end(), [](const TextMark& upper, const TextMark& lower) {
        return upper.y < lower.y;
    });
    std::vector<std::vector<TextMark>> rows;
    for (auto first = texts.begin(); first != texts.end();) {
        const auto next = std::find_if(first, texts.end(), [first](const TextMark& each) {
            return IsBefore(first->y + kSameRow, each.y);
        });
        rows.emplace_back(first, next);
        first = next;
    }
    return rows;
}

}  // namespace numerello
