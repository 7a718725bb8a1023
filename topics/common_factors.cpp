#include "topics/common_factors.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "topics/number_list.h"

namespace numerello {

namespace {

/// The largest whole number up to the smallest entry that divides all of them; empty when the
/// smallest is 0 or an entry is not whole.
std::string LargestCommonDivisor(const std::vector<ListEntry>& entries) {
    const auto smallest = std::min_element(entries.begin(), entries.end(), SmallerValue);
    if (ToInteger16(std::fabs(smallest->value)) == 0) {
        return "";
    }
    std::int64_t divisor = 0;
    for (const ListEntry& entry : entries) {
        if (!IsWhole(entry.value)) {
            return "";
        }
        divisor = std::gcd(divisor, std::int64_t{ToInteger32(entry.value)});
    }
    return WholeText(divisor);
}

/// Told by the spelling; a 0 at the head of a list is none of these and leaves the result empty:
/// kept as it is.
bool EndsOrGoesOnWithZero(std::string_view ListText) {
    return ListText == "0" || ListText.ends_with(",0") ||
           ListText.find(",0,") != std::string_view::npos;
}

}  // namespace

void FindGCF(Problem& problem, std::string_view ListText) {
    const std::string_view v = ListText;
    StepLog& log = problem.log;
    log.Write(std::string(v), "");
    log.Write(Text("The GCF of ", v, " is:"),
              "The greatest number that divides evenly into a group of numbers is the greatest "
              "common factor (GCF).");
    std::string divisor = LargestCommonDivisor(ReadList(v));
    if (EndsOrGoesOnWithZero(v)) {
        divisor = "0";
    }
    log.Write(divisor, Text(divisor, " is the GCF of ", v, "."));
}

void FindLCM(Problem& problem, std::string_view ListText) {
    const std::string_view v = ListText;
    StepLog& log = problem.log;
    log.Write(std::string(v), "");
    log.Write(Text("The LCM of ", v, " is:"),
              "The smallest number that a group of numbers divides into evenly is the least common "
              "multiple (LCM).");
    const std::string r = ComputeLCM(v);
    log.Write(r, Text(r, " is the LCM of ", v, "."));
}

std::string ComputeLCM(std::string_view ListText) {
    std::vector<ListEntry> entries = ReadList(ListText);
    if (entries.size() == 1 && entries.front().value == 0) {
        return "0";
    }
    std::stable_sort(
        entries.begin(), entries.end(),
        [](const ListEntry& one, const ListEntry& other) { return SmallerValue(other, one); });

    std::int32_t multiple = LeastCommonMultiple(1, ToInteger32(entries.front().value));
    for (auto entry = entries.begin() + 1; entry != entries.end(); ++entry) {
        if (entry->text == "0" || entries.front().text == "0") {
            return "0";
        }
        if (ToInteger32(entry->value) == 0) {
            throw Failure(FailureKind::DivisionByZero);
        }
    }
    for (auto entry = entries.begin() + 1; entry != entries.end(); ++entry) {
        multiple = LeastCommonMultiple(multiple, ToInteger32(entry->value));
    }
    return WholeText(multiple);
}

}  // namespace numerello
