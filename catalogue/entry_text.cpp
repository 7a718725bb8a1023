#include "catalogue/entry_text.h"

#include "core/text.h"
#include "topics/conversions.h"

namespace numerello {

namespace {

constexpr std::size_t kRoundingIndex = 2;

EntryListRows UnitRows(std::size_t list, std::string_view name, int UnitKind) {
    EntryListRows rows{list, name, {}};
    for (int row = 0; row < kMetricItems; ++row) {
        rows.rows.push_back(MetricItem(row, UnitKind));
    }
    return rows;
}

std::string BoxText(const EntryBoxLayout& box, const EntryBoxes& boxes) {
    const std::string& text = boxes.Text[static_cast<std::size_t>(box.number) - 1];
    return Text(PlainName(box), " = ", text.empty() ? "?" : text);
}

std::string ListText(const EntryListRows& list, const EntryBoxes& boxes) {
    const int row = boxes.ListIndex[list.list];
    const bool isChosen = row >= 0 && row < static_cast<int>(list.rows.size());
    const std::string_view choice = isChosen ? list.rows[static_cast<std::size_t>(row)] : "?";
    // A rounding says itself what it is.
    return list.list == kRoundingIndex ? std::string(choice) : Text(list.name, " ", choice);
}

}  // namespace

std::string_view PlainName(const EntryBoxLayout& box) {
    std::string_view name = box.name;
    if (name.starts_with('=')) {
        name.remove_prefix(1);
    }
    if (name.ends_with('=')) {
        name.remove_suffix(1);
    }
    return name;
}

std::vector<EntryListRows> ListsOf(int ProblemType) {
    const EntryLayout* layout = FindEntryLayout(ProblemType);
    switch (layout == nullptr ? EntryLists::None : layout->lists) {
        case EntryLists::Lengths:
            return {UnitRows(0, "From", 1), UnitRows(1, "To", 1)};
        case EntryLists::Masses:
            return {UnitRows(0, "From", 2), UnitRows(1, "To", 2)};
        case EntryLists::Roundings:
            return {{kRoundingIndex, "Rounding", {RoundingRows().begin(), RoundingRows().end()}}};
        case EntryLists::None:
            break;
    }
    return {};
}

std::string EntryText(int ProblemType, std::string_view line, const EntryBoxes& boxes) {
    std::string text(line);
    const auto add = [&text](const std::string& piece) {
        text += Text(text.empty() ? "" : ", ", piece);
    };
    if (const EntryLayout* layout = FindEntryLayout(ProblemType)) {
        for (const EntryBoxLayout& box : layout->boxes) {
            add(BoxText(box, boxes));
        }
    }
    for (const EntryListRows& list : ListsOf(ProblemType)) {
        add(ListText(list, boxes));
    }
    return text;
}

}  // namespace numerello
