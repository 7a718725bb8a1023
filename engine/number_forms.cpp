#include "engine/number_forms.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numeric>

#include "core/failure.h"
#include "core/number.h"

namespace numerello {

namespace {

/// A Single as text: whole numbers in full, others with the digits that a Single holds.
std::string TextOf(float value) {
    const bool whole = value == std::trunc(value);
    return whole ? NumberText(static_cast<double>(value)) : SingleText(value);
}

/// Whether the multiple counts as a whole number.
bool IsNearWhole(double multiple) {
    return Round(multiple, 4) == Round(multiple, 0);
}

}  // namespace

std::string ReduceRatio(double a, double b) {
    if (b == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    const std::int32_t numerator = ToInteger32(a);
    const std::int32_t denominator = ToInteger32(b);
    if (numerator == 0) {
        return "0";
    }
    const std::int32_t divisor = std::gcd(numerator, denominator);
    const std::string reduced = WholeText(numerator / divisor);
    return denominator == divisor ? reduced : reduced + "/" + WholeText(denominator / divisor);
}

std::string AbsValueToText(const AnswerSettings& settings, float value) {
    const double magnitude = std::fabs(static_cast<double>(value));
    const std::string text = TextOf(std::fabs(value));
    const bool decimals = text.find('.') != std::string::npos;
    if (!settings.UseFractions || !decimals || text.find("E+") != std::string::npos) {
        return NumberText(Round(ToNumber(text), settings.RoundDigits));
    }
    // Some multiple below the bound always comes near enough.
    constexpr int kBound = 20001;
    for (int d = 1; d < kBound; ++d) {
        const double multiple = magnitude * d;
        if (IsNearWhole(multiple)) {
            const std::string numerator = NumberText(Round(multiple, 0));
            return d == 1 ? numerator : numerator + "/" + WholeText(d);
        }
    }
    return NumberText(Round(magnitude, settings.RoundDigits));
}

std::string PrimeFactorList(double n) {
    std::int32_t rest = std::abs(ToInteger32(n));
    std::string list;
    for (std::int32_t d = 2; d <= rest / d; ++d) {
        while (rest % d == 0) {
            list += WholeText(d) + "*";
            rest /= d;
            if (rest == 1) {
                list.pop_back();
                return list;
            }
        }
    }
    return list + WholeText(rest);
}

std::string LeastCommonMultipleText(std::span<const double> numbers) {
    std::int64_t multiple = 1;
    for (const double number : numbers) {
        const std::int32_t whole = ToInteger32(number);
        if (whole == 0) {
            return "0";
        }
        multiple =
            ToInteger32(static_cast<double>(std::lcm(multiple, static_cast<std::int64_t>(whole))));
    }
    return WholeText(multiple);
}

}  // namespace numerello
