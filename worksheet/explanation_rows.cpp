#include "worksheet/explanation_rows.h"

#include <algorithm>
#include <string_view>

#include "core/text.h"
#include "typeset/fraction_parts.h"
#include "typeset/notation_walk.h"
#include "typeset/slack.h"

namespace numerello {

namespace {

constexpr std::string_view kRootSign = "iii";

std::string Joined(TextRow::const_iterator first, TextRow::const_iterator last) {
    std::string text;
    for (; first != last; ++first) {
        text += *first;
    }
    return text;
}

std::string MeasuredFraction(std::string_view body) {
    const FractionParts parts = SplitFraction(body);
    std::string copy;
    copy.resize(std::max(Characters(parts.numerator).size(), Characters(parts.denominator).size()),
                'i');
    return copy;
}

/// What a row cannot be cut in: a character, or a construct with its marks.
struct Unit {
    TextRow::const_iterator first;
    TextRow::const_iterator last;  ///< behind its last character
    std::string measured;
};

/// The unit that begins here. A mark without partner takes all that is left with it.
Unit UnitAt(TextRow::const_iterator first, TextRow::const_iterator end);

std::string Measured(TextRow::const_iterator first, TextRow::const_iterator end) {
    std::string copy;
    while (first != end) {
        const Unit unit = UnitAt(first, end);
        copy += unit.measured;
        first = unit.last;
    }
    return copy;
}

std::string MeasuredCharacter(const std::string& character) {
    return character == kQuotedRoot ? Text("'", kRootSign, "'") : character;
}

Unit UnitAt(TextRow::const_iterator first, TextRow::const_iterator end) {
    const std::string& mark = *first;
    if (mark != "#" && mark != "~" && mark != "^") {
        return {first, first + 1, MeasuredCharacter(mark)};
    }
    const auto partner = std::find(first + 1, end, mark);
    if (partner == end) {
        return {first, end, Joined(first, end)};
    }
    if (mark == "#") {
        return {first, partner + 1, MeasuredFraction(Joined(first + 1, partner))};
    }
    if (mark == "~") {
        return {first, partner + 1, Text(kRootSign, Measured(first + 1, partner))};
    }
    return {first, partner + 1, Joined(first, partner + 1)};
}

std::vector<Unit> UnitsOf(const TextRow& characters) {
    std::vector<Unit> units;
    for (auto at = characters.begin(); at != characters.end(); at = units.back().last) {
        units.push_back(UnitAt(at, characters.end()));
    }
    return units;
}

using UnitIterator = std::vector<Unit>::const_iterator;

bool IsBlank(const Unit& unit) {
    return unit.measured == " ";
}

}  // namespace

std::vector<TextRow> ExplanationRows(const std::vector<std::string>& characters, double width,
                                     const TextMetrics& metrics, const Font& font) {
    const std::vector<Unit> units = UnitsOf(characters);
    const auto rowEnd = [&](UnitIterator first) {
        double end = 0;
        auto cut = first;  // the last blank that the row may end before
        for (auto at = first; at != units.end(); ++at) {
            if (IsBlank(*at)) {
                cut = at;
            }
            end += metrics.Width(at->measured, font);
            if (IsPast(end, width)) {
                return cut != first ? cut : std::max(at, first + 1);
            }
        }
        return units.end();
    };

    std::vector<TextRow> rows;
    for (auto first = units.begin(); first != units.end();) {
        const auto last = rowEnd(first);
        rows.emplace_back(first->first, (last - 1)->last);
        first = std::find_if_not(last, units.end(), IsBlank);
    }
    return rows;
}

}  // namespace numerello
