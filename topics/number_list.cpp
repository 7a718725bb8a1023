#include "topics/number_list.h"

#include <algorithm>

#include "core/failure.h"
#include "core/number.h"

namespace numerello {

std::vector<std::string> SplitList(std::string_view ListText) {
    std::vector<std::string> entries;
    for (;;) {
        const std::size_t comma = ListText.find(',');
        entries.emplace_back(ListText.substr(0, comma));
        if (comma == std::string_view::npos) {
            return entries;
        }
        ListText.remove_prefix(comma + 1);
    }
}

double EntryValue(std::string_view entry) {
    if (entry.empty()) {
        throw Failure(FailureKind::Format);
    }
    return ToNumber(entry);
}

std::vector<ListEntry> ReadList(std::string_view ListText) {
    std::vector<ListEntry> entries;
    for (std::string& text : SplitList(ListText)) {
        const double value = EntryValue(text);
        entries.push_back({std::move(text), value});
    }
    return entries;
}

int MostDecimals(const std::vector<ListEntry>& entries) {
    int most = 0;
    for (const ListEntry& entry : entries) {
        most = std::max(most, DecimalPlaces(entry.text));
    }
    return most;
}

bool SmallerValue(const ListEntry& one, const ListEntry& other) {
    return one.value < other.value;
}

}  // namespace numerello
