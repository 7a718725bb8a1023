#include "cli/column_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "typeset/variants.h"
#include "worksheet/mark_rows.h"

namespace numerello {

namespace {

constexpr double kCell = 20;
constexpr std::size_t kUsualCharacters = 2;  ///< to a cell
/// A rule lies so close to the row below it that it needs a place between the rows.
constexpr double kRuleUp = 8;
constexpr double kThinnestRule = 2;

/// What of the marks is written in characters.
struct Drawing {
    std::vector<TextMark> texts;
    std::vector<StrokeMark> rules;
};

Drawing WrittenMarks(std::span<const Mark> marks) {
    Drawing drawing;
    for (const Mark& mark : marks) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            drawing.texts.push_back(*text);
        } else if (const auto* const rule = std::get_if<StrokeMark>(&mark);
                   rule != nullptr && rule->width >= kThinnestRule) {
            drawing.rules.push_back(*rule);
        }
    }
    return drawing;
}

/// How many characters a cell needs, so that no number of several digits touches the next one.
std::size_t CharactersToCell(const std::vector<TextMark>& texts) {
    std::size_t characters = kUsualCharacters;
    for (std::vector<TextMark> row : RowsOfTexts(texts)) {
        std::sort(row.begin(), row.end(),
                  [](const TextMark& left, const TextMark& right) { return left.x < right.x; });
        for (std::size_t i = 1; i < row.size(); ++i) {
            const std::size_t length = row[i - 1].text.size();
            if (length > 1 && row[i].x - row[i - 1].x < kCell * 1.5) {
                characters = std::max(characters, length + 1);
            }
        }
    }
    return characters;
}

/// Puts marks into lines of characters, so many to a cell.
class Picture {
  public:
    explicit Picture(std::size_t characters)
        : characterWidth(kCell / static_cast<double>(characters)) {}

    /// A rule as a text of hyphens.
    TextMark Hyphens(const StrokeMark& rule) const {
        const std::size_t length = Place(rule.x2) - Place(rule.x1) + 1;
        return {std::string(length, '-'), rule.x1, rule.y1 - kRuleUp, SheetFont(), rule.color};
    }

    std::string LineOf(const std::vector<TextMark>& row) const {
        std::string line;
        for (const TextMark& mark : row) {
            const std::size_t place = Place(mark.x);
            line.resize(std::max(line.size(), place + mark.text.size()), ' ');
            line.replace(place, mark.text.size(), mark.text);
        }
        return line;
    }

  private:
    std::size_t Place(double x) const {
        return static_cast<std::size_t>(std::max(0L, std::lround(x / characterWidth)));
    }

    double characterWidth;
};

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
    Drawing drawing = WrittenMarks(marks);
    const Picture picture(CharactersToCell(drawing.texts));
    for (const StrokeMark& rule : drawing.rules) {
        drawing.texts.push_back(picture.Hyphens(rule));
    }
    std::vector<std::string> lines;
    for (const std::vector<TextMark>& row : RowsOfTexts(std::move(drawing.texts))) {
        lines.push_back(picture.LineOf(row));
    }
    return WithoutMargin(std::move(lines));
}

}  // namespace numerello
