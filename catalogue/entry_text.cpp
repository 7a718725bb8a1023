#include "catalogue/entry_text.h"

#include "core/text.h"
#include "topics/conversions.h"

namespace numerello {

namespace {

constexpr int kRoundingNumber = 3;

EntryListRows UnitRows(int number, std::string_view name, int UnitKind) {
    EntryListRows rows{number, name, {}};
    for (int row = 0; row < kMetricItems; ++row) {
        rows.rows.push_back(MetricItem(row, UnitKind));
    }
    return rows;
}

std::string BoxText(const EntryBoxLayout& box, const EntryBoxes& boxes) {
    const std::string& text = boxes.Box(box.number);
    return Text(PlainName(box), " = ", text.empty() ? "?" : text);
}

std::string ListText(const EntryListRows& list, const EntryBoxes& boxes) {
    const int row = boxes.List(list.number);
    const bool isChosen = row >= 0 && row < static_cast<int>(list.rows.size());
    const std::string_view choice = isChosen ? list.rows[static_cast<std::size_t>(row)] : "?";
    // A rounding says itself what it is.
    return list.number == kRoundingNumber ? std::string(choice) : Text(list.name, " ", choice);
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
            return {UnitRows(1, "From", kLengthUnits), UnitRows(2, "To", kLengthUnits)};
        case EntryLists::Masses:
            return {UnitRows(1, "From", kMassUnits), UnitRows(2, "To", kMassUnits)};
        case EntryLists::Roundings:
            return {{kRoundingNumber, "Rounding", {RoundingRows().begin(), RoundingRows().end()}}};
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
