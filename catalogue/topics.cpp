#include "catalogue/topics.h"

#include <algorithm>
#include <vector>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

bool SameLetter(char a, char b) {
    return LowerCase(a) == LowerCase(b);
}

bool StandsBefore(std::string_view a, std::string_view b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return LowerCase(x) < LowerCase(y); });
}

bool BeginsWith(std::string_view row, std::string_view start) {
    return start.size() <= row.size() &&
           std::equal(start.begin(), start.end(), row.begin(), SameLetter);
}

std::vector<std::string_view> SortedCaptions() {
    std::vector<std::string_view> captions;
    for (const Topic& topic : TreeTopics()) {
        captions.push_back(topic.caption);
    }
    std::sort(captions.begin(), captions.end(), StandsBefore);
    return captions;
}

template <class Condition>
const Topic* FirstTopic(Condition condition) {
    const std::span<const Topic> topics = Topics();
    const auto found = std::find_if(topics.begin(), topics.end(), condition);
    return found == topics.end() ? nullptr : &*found;
}

}  // namespace

const Topic* FindTopic(std::string_view caption) {
    return FirstTopic([caption](const Topic& topic) { return topic.caption == caption; });
}

const Topic* FindTopicByCode(int code) {
    return FirstTopic([code](const Topic& topic) { return topic.code == code; });
}

std::int16_t BinaryFlagValue(std::string_view mask) {
    double value = 0;
    for (const char flag : mask) {
        value = value * 2 + (flag == '1' ? 1 : 0);
    }
    return ToInteger16(value);
}

std::span<const std::string_view> IndexRows() {
    static const std::vector<std::string_view> rows = SortedCaptions();
    return rows;
}

std::optional<int> FindIndexRow(std::string_view start) {
    const std::span<const std::string_view> rows = IndexRows();
    const auto found = std::find_if(
        rows.begin(), rows.end(), [start](std::string_view row) { return BeginsWith(row, start); });
    if (found == rows.end()) {
        return std::nullopt;
    }
    return static_cast<int>(found - rows.begin());
}

}  // namespace numerello
