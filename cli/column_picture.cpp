#include "cli/column_picture.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace numerello {

namespace {

constexpr double kCharacterWidth = 10;
/// Texts whose heights differ by less belong to one row.
constexpr double kSameRow = 5;
/// A rule lies so close to the row below it that it needs a place between the rows.
constexpr double kRuleUp = 8;
constexpr double kThinnestRule = 2;

std::size_t Place(double x) {
    return static_cast<std::size_t>(std::max(0L, std::lround(x / kCharacterWidth)));
}

using Rows = std::map<double, std::string>;

void Put(Rows& rows, double y, double x, const std::string& text) {
    auto row = rows.lower_bound(y - kSameRow);
    if (row == rows.end() || row->first > y + kSameRow) {
        row = rows.emplace(y, "").first;
    }
    std::string& line = row->second;
    const std::size_t place = Place(x);
    line.resize(std::max(line.size(), place + text.size()), ' ');
    line.replace(place, text.size(), text);
}

void PutRule(Rows& rows, const Json& mark) {
    const Json& line = mark.at("line");
    const auto left = line.at(0).get<double>();
    const auto right = line.at(2).get<double>();
    const std::size_t length = Place(right) - Place(left) + 1;
    Put(rows, line.at(1).get<double>() - kRuleUp, left, std::string(length, '-'));
}

/// All rows begin where the leftmost one does.
std::vector<std::string> WithoutMargin(const Rows& rows) {
    std::size_t margin = std::string::npos;
    for (const auto& [y, line] : rows) {
        margin = std::min(margin, line.find_first_not_of(' '));
    }
    std::vector<std::string> lines;
    for (const auto& [y, line] : rows) {
        lines.push_back(line.substr(margin));
    }
    return lines;
}

}  // namespace

std::vector<std::string> ColumnPicture(const Json& marks) {
    Rows rows;
    for (const Json& mark : marks) {
        if (mark.contains("text")) {
            Put(rows, mark.at("y").get<double>(), mark.at("x").get<double>(),
                mark.at("text").get<std::string>());
        } else if (mark.at("width").get<double>() >= kThinnestRule) {
            PutRule(rows, mark);
        }
    }
    return WithoutMargin(rows);
}

}  // namespace numerello
