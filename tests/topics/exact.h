#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

#include "tests/topics/typed_topic.h"

namespace numerello {

/// A number as it is typed, with its exact value.
struct TypedNumber {
    std::string text;
    std::int64_t hundredths = 0;
};

/// A whole part of up to `longest` digits, then none, one or two decimals; at times no whole part.
inline TypedNumber DrawNumber(Draws& draws, int longest, bool mayBeNegative) {
    TypedNumber number;
    const int decimals = draws.Below(3);
    if (decimals == 0 || draws.Below(8) != 0) {
        number.text = draws.Digits(longest);
        number.hundredths = 100 * std::stoll(number.text);
    }
    if (decimals > 0) {
        const int tenths = draws.Below(10);
        const int hundredths = decimals > 1 ? draws.Below(10) : 0;
        number.hundredths += 10 * tenths + hundredths;
        number.text += "." + std::to_string(tenths);
        number.text += decimals > 1 ? std::to_string(hundredths) : "";
    }
    if (mayBeNegative && draws.Below(3) == 0) {
        number.text = "-" + number.text;
        number.hundredths = -number.hundredths;
    }
    return number;
}

/// count / 10^places in full, without zeros at the end.
inline std::string ExactText(std::int64_t count, std::size_t places) {
    std::string digits = std::to_string(std::abs(count));
    if (digits.size() <= places) {
        digits.insert(0, places + 1 - digits.size(), '0');
    }
    std::string decimals = digits.substr(digits.size() - places);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    const std::string whole = digits.substr(0, digits.size() - places);
    return (count < 0 ? "-" : "") + whole + (decimals.empty() ? "" : "." + decimals);
}

/// That the line is `before`, count / 1000 and `behind`.
inline void ExpectThousandths(const std::string& line, const std::string& before,
                              std::int64_t count, const std::string& behind) {
    EXPECT_EQ(line, before + ExactText(count, 3) + behind);
}

}  // namespace numerello
