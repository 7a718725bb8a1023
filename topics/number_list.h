#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace numerello {

/// The entries of a list typed with commas; an empty one stands where two commas meet.
std::vector<std::string> SplitList(std::string_view ListText);

/// The value of an entry. Failure(Format) for one that is no number, an empty one included: a 0
/// that nobody typed would be wrong.
double EntryValue(std::string_view entry);

/// An entry as typed, with its value.
struct ListEntry {
    std::string text;
    double value;
};

/// All entries of a list; throws as EntryValue.
std::vector<ListEntry> ReadList(std::string_view ListText);

bool SmallerValue(const ListEntry& one, const ListEntry& other);

/// The most digits that an entry has behind its point.
int MostDecimals(const std::vector<ListEntry>& entries);

}  // namespace numerello
