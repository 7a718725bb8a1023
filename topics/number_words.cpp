#include "topics/number_words.h"

#include <array>
#include <cmath>
#include <string>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

/// By the places left, the digit itself included, from 1.
constexpr std::array<std::string_view, 10> kPlaceWords{
    " one",      " ten",          " hundred",
    " thousand", " ten thousand", " hundred thousand",
    " million",  " ten million",  " hundred million",
    " billion"};

constexpr int kFirstListLength = 61;
constexpr std::size_t kBreakingPlaces = 5;

std::string DigitInWords(char digit, std::size_t placesLeft) {
    return Text(std::string_view(&digit, 1), kPlaceWords[placesLeft - 1], digit == '1' ? "" : "s",
                placesLeft > 1 ? ", " : "");
}

}  // namespace

void ExpandedNotation(Problem& problem, std::string_view ValueText) {
    const std::string_view v = ValueText;
    StepLog& log = problem.log;
    log.Write(std::string(v), "");

    const std::string digits = NumberText(std::fabs(ToNumber(v)));
    std::string first;
    std::string second;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const std::size_t placesLeft = digits.size() - i;
        if (placesLeft > kPlaceWords.size()) {
            continue;
        }
        const bool full = placesLeft <= kBreakingPlaces && first.size() >= kFirstListLength;
        (full ? second : first) += DigitInWords(digits[i], placesLeft);
    }

    // A first line that goes on in a second one keeps its comma and blank.
    log.Write(first, Text(v, " in expanded notation."));
    if (!second.empty()) {
        log.Write(second, Text(v, " in expanded notation."));
    }
}

}  // namespace numerello
