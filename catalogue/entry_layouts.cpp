#include "catalogue/entry_layouts.h"

#include <algorithm>
#include <array>

namespace numerello {

namespace {

constexpr std::size_t kNarrowLength = 3;
constexpr int kCharacterStep = 12;
constexpr int kLabelGap = 4;

constexpr std::array<std::string_view, 7> kRoundingRows{
    "Rounded to the nearest thousand",  "Rounded to the nearest hundred",
    "Rounded to the nearest ten",       "Rounded to the nearest whole number",
    "Rounded to the nearest tenth",     "Rounded to the nearest hundredth",
    "Rounded to the nearest thousandth"};

/// How far a box is wider than a narrow one.
int Growth(const EntryBoxLayout& box, const EntryBoxes& entered) {
    return EntryBoxWidth(entered.Box(box.number).size()) - kNarrowBox;
}

int ColumnGrowth(const EntryLayout& layout, const EntryBoxes& entered, int column) {
    int widest = 0;
    for (const EntryBoxLayout& box : layout.boxes) {
        if (box.column == column && column != kFree) {
            widest = std::max(widest, Growth(box, entered));
        }
    }
    return widest;
}

/// How far the columns to the left push this one along.
int Shift(const EntryLayout& layout, const EntryBoxes& entered, int column) {
    int shift = 0;
    for (int left = 0; left < column; ++left) {
        shift += ColumnGrowth(layout, entered, left);
    }
    return shift;
}

EntryRect PlaceBox(const EntryLayout& layout, const EntryBoxes& entered,
                   const EntryBoxLayout& box) {
    const int growth = Growth(box, entered);
    const int room = ColumnGrowth(layout, entered, box.column) - growth;
    EntryRect place{box.x + Shift(layout, entered, box.column), box.y, kNarrowBox + growth,
                    kBoxHeight};
    if (box.anchor == Anchor::Right) {
        place.x += room;
    } else if (box.anchor == Anchor::Middle) {
        place.x += room / 2;
    }
    return place;
}

EntryRect PlaceBoxLabel(const EntryBoxLayout& box, const EntryRect& place) {
    switch (box.side) {
        case NameSide::Left:
            return {place.x - kLabelGap - box.labelWidth, box.y, box.labelWidth, kBoxHeight};
        case NameSide::Right:
            return {place.x + place.width + kLabelGap, box.y, box.labelWidth, kBoxHeight};
        case NameSide::Hidden:
            break;
    }
    return {};
}

}  // namespace

const EntryLayout* FindEntryLayout(int code) {
    const std::span<const EntryLayout> layouts = EntryLayouts();
    const auto found = std::find_if(layouts.begin(), layouts.end(),
                                    [code](const auto& layout) { return layout.code == code; });
    return found == layouts.end() ? nullptr : &*found;
}

int EntryBoxWidth(std::size_t characters) {
    return characters <= kNarrowLength
               ? kNarrowBox
               : kNarrowBox + static_cast<int>(characters - kNarrowLength) * kCharacterStep;
}

PlacedEntry PlaceEntry(const EntryLayout& layout, const EntryBoxes& entered) {
    PlacedEntry placed;
    for (const EntryBoxLayout& box : layout.boxes) {
        placed.boxes.push_back(PlaceBox(layout, entered, box));
        placed.boxLabels.push_back(PlaceBoxLabel(box, placed.boxes.back()));
    }
    for (const EntryLabel& label : layout.labels) {
        placed.labels.push_back(
            {label.x + Shift(layout, entered, label.column), label.y, label.width, label.height});
    }
    for (const EntryRule& rule : layout.rules) {
        placed.rules.push_back({rule.x + Shift(layout, entered, rule.column), rule.y,
                                rule.width + ColumnGrowth(layout, entered, rule.column),
                                kRuleHeight});
    }
    return placed;
}

std::span<const std::string_view> RoundingRows() {
    return kRoundingRows;
}

}  // namespace numerello
