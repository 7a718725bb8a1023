#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/entry_layouts.h"

/// Entry forms in words, for faces that have none.
namespace numerello {

/// The box's name without the sign that leads to the box: "height", "First number".
std::string_view PlainName(const EntryBoxLayout& box);

/// One of Combo1 to Combo3 with the rows that it offers.
struct EntryListRows {
    int number = 1;
    std::string_view name;
    std::vector<std::string_view> rows;
};

/// The lists that a topic shows, in the order of the Tab key.
std::vector<EntryListRows> ListsOf(int ProblemType);

/// What is entered: the typed line, then "height = 4, radius = ?" and "From m (1 meter)", as far as
/// the topic has boxes and lists.
std::string EntryText(int ProblemType, std::string_view line, const EntryBoxes& boxes);

}  // namespace numerello
