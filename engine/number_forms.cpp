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

/// A fraction stands for what has decimals and is neither too large nor to be rounded.
bool IsShownAsFraction(const AnswerSettings& settings, const std::string& text) {
    return settings.UseFractions && text.find('.') != std::string::npos &&
           text.find("E+") == std::string::npos;
}

}  // namespace

std::string SingleValueText(float value) {
    const auto number = static_cast<double>(value);
    return IsWhole(number) ? NumberText(number) : SingleText(value);
}

std::string ReduceRatio(double a, double b) {
    if (b == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    const std::int64_t numerator = ToInteger32(a);
    const std::int64_t denominator = ToInteger32(b);
    if (numerator == 0) {
        return "0";
    }
    const std::int64_t divisor = std::gcd(numerator, denominator);
    const std::string reduced = WholeText(numerator / divisor);
    return denominator == divisor ? reduced : reduced + "/" + WholeText(denominator / divisor);
}

double ReducedBy(double a, std::string_view reduced) {
    return Divide(a, ToNumber(reduced.substr(0, reduced.find('/'))));
}

std::string AbsValueToText(const AnswerSettings& settings, float value) {
    const float magnitude = std::fabs(value);
    const std::string text = SingleValueText(magnitude);
    if (!IsShownAsFraction(settings, text)) {
        return NumberText(Round(ToNumber(text), settings.RoundDigits));
    }
    const int d = FirstDenominator(magnitude);
    const std::string numerator = NumberText(Round(static_cast<double>(magnitude) * d, 0));
    return d == 1 ? numerator : numerator + "/" + WholeText(d);
}

std::string NumberToFractionText(const AnswerSettings& settings, const Ratio& number) {
    if (settings.UseFractions && number.under != 1 && IsWhole(number.over) &&
        IsWhole(number.under)) {
        return ReduceRatio(number.over, number.under);
    }
    const double value = Divide(number.over, number.under);
    const std::string text = AbsValueToText(settings, ToSingle(value));
    return value < 0 && text != "0" ? "-" + text : text;
}

std::string PrimeFactorList(double n) {
    // 32 bits divide faster than 64, and without a sign they hold every absolute value.
    auto rest = static_cast<std::uint32_t>(std::abs(std::int64_t{ToInteger32(n)}));
    std::string list;
    for (std::uint32_t d = 2; d <= rest / d; ++d) {
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

std::string GreatestCommonText(std::string_view list) {
    std::int64_t greatest = 0;
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t end = std::min(list.find(' ', at), list.size());
        if (end > at) {
            greatest =
                std::gcd(greatest, std::int64_t{ToInteger32(ToNumber(list.substr(at, end - at)))});
        }
        at = end + 1;
    }
    return WholeText(greatest == 0 ? 1 : greatest);
}

std::string LeastCommonMultipleText(std::span<const double> numbers) {
    std::int32_t multiple = 1;
    for (const double number : numbers) {
        const std::int32_t whole = ToInteger32(number);
        if (whole == 0) {
            return "0";
        }
        multiple = LeastCommonMultiple(multiple, whole);
    }
    return WholeText(multiple);
}

}  // namespace numerello
