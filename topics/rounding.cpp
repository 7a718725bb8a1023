#include "topics/rounding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr std::string_view kHalfRoundsUp =
    "If a number is 5 or greater, it rounds up.  If it is less than 5, it rounds down.";

constexpr std::array<std::string_view, 4> kDecimalNotes{
    "Round to the nearest whole number (no decimal places).",
    "Round to the nearest tenth (one digit after the decimal point).",
    "Round to the nearest hundredth (two digits after the decimal point).",
    "Round to the nearest thousandth (three digits after the decimal point)."};

std::string_view PlaceWord(std::string_view PlaceText) {
    return PlaceText == "1000" ? "thousand" : PlaceText == "100" ? "hundred" : "ten";
}

/// Keeps the digits from the left down to the place, rounds by the digit behind them and fills up
/// with zeros.
std::string RoundedDigits(const std::string& digits, std::string_view PlaceText) {
    const std::size_t keptLength = digits.size() - PlaceText.size() + 1;
    std::int32_t kept = ToInteger32(ToNumber(std::string_view(digits).substr(0, keptLength)));
    if (digits[keptLength] >= '5') {
        ++kept;
    }
    return WholeText(kept) + std::string(digits.size() - keptLength, '0');
}

/// Every place is shown, and no 0 before the point.
std::string WithDecimals(double value, int digits) {
    std::string text = NumberText(value);
    if (text.find('.') == std::string::npos) {
        text += '.';
    }
    text.append(static_cast<std::size_t>(std::max(digits - DecimalPlaces(text), 0)), '0');
    return text.starts_with("0.") ? text.substr(1) : text;
}

}  // namespace

void RoundToPlace(Problem& problem, std::string_view ValueText, std::string_view PlaceText) {
    const std::string_view v = ValueText;
    const std::string_view word = PlaceWord(PlaceText);
    StepLog& log = problem.log;
    log.Write(std::string(v), "");

    const double value = ToNumber(v);
    const double place = ToNumber(PlaceText);
    const std::int32_t n = ToInteger32(std::trunc(value));
    const std::string heading = Text(v, " rounded to the nearest ", word, ":");
    if (place < std::fabs(n)) {
        log.Write(heading, Text("Find the ", word, " position in the number and round."));
        const std::string result = RoundedDigits(WholeText(n), PlaceText);
        log.Write(result, Text(v, " rounded to the nearest ", word, " is ", result, "."));
        return;
    }
    log.Write(heading, std::string(kHalfRoundsUp));
    const std::string_view result = place / 2 > value ? "0" : PlaceText;
    log.Write(std::string(result), Text(v, " rounded to the nearest ", word, " is ", result, "."));
}

void RoundDecimal(Problem& problem, std::string_view ValueText, std::string_view Word, int Digits) {
    const std::string_view v = ValueText;
    StepLog& log = problem.log;
    log.Write(std::string(v), "");
    log.Write(Text(v, " rounded to the nearest ", Word, ":"), std::string(kHalfRoundsUp));

    // A further digit takes a 5 off the tie, which Round would give to the even neighbour.
    std::string value(v);
    if (DecimalPlaces(v) >= std::max(Digits, 1)) {
        value += '1';
    }
    const double rounded = Round(ToNumber(value), Digits);
    log.Write(Digits == 0 ? NumberText(rounded) : WithDecimals(rounded, Digits),
              std::string(kDecimalNotes[static_cast<std::size_t>(Digits)]));
}

void RoundByChoice(Problem& problem, std::string_view ValueText, int ListIndex) {
    switch (ListIndex) {
        case 0:
            return RoundToPlace(problem, ValueText, "1000");
        case 1:
            return RoundToPlace(problem, ValueText, "100");
        case 2:
            return RoundToPlace(problem, ValueText, "10");
        case 3:
            return RoundDecimal(problem, ValueText, "whole number", 0);
        case 4:
            return RoundDecimal(problem, ValueText, "tenth", 1);
        case 5:
            return RoundDecimal(problem, ValueText, "hundredth", 2);
        case 6:
            return RoundDecimal(problem, ValueText, "thousandth", 3);
        default:
            throw Failure(FailureKind::Format);
    }
}

}  // namespace numerello
