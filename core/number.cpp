#include "core/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <numeric>

#include "core/failure.h"
#include "core/text.h"

namespace numerello {

namespace {

/// A number text cut into its parts, none of them checked against a range yet.
struct Written {
    bool negative = false;
    std::string_view whole;
    std::string_view decimals;
    std::string_view powerOfTen;
};

bool OnlyDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return IsDigit(c); });
}

/// Nothing for a text that is no number. Not empty.
std::optional<Written> Read(std::string_view text) {
    Written written;
    if (text.front() == '-' || text.front() == '+') {
        written.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const std::size_t mark = text.find_first_of("Ee");
    const std::string_view digits = text.substr(0, mark);
    const std::size_t point = digits.find('.');
    written.whole = digits.substr(0, point);
    written.decimals = point == std::string_view::npos ? "" : digits.substr(point + 1);
    if (!OnlyDigits(written.whole) || !OnlyDigits(written.decimals) ||
        (written.whole.empty() && written.decimals.empty())) {
        return std::nullopt;
    }
    if (mark != std::string_view::npos) {
        written.powerOfTen = text.substr(mark + 1);
        std::string_view unsignedPower = written.powerOfTen;
        if (!unsignedPower.empty() &&
            (unsignedPower.front() == '+' || unsignedPower.front() == '-')) {
            unsignedPower.remove_prefix(1);
        }
        if (unsignedPower.empty() || !OnlyDigits(unsignedPower)) {
            return std::nullopt;
        }
    }
    return written;
}

/// Whether a number that no Double can hold is too large rather than too small.
bool IsTooLarge(const Written& written) {
    if (written.powerOfTen.size() > 9) {
        return written.powerOfTen.front() != '-';
    }
    const std::size_t inWhole = written.whole.find_first_not_of('0');
    const std::size_t inDecimals = written.decimals.find_first_not_of('0');
    const long digitsBeforePoint = inWhole != std::string_view::npos
                                       ? static_cast<long>(written.whole.size() - inWhole)
                                       : -static_cast<long>(inDecimals);
    long power = 0;
    const std::size_t plus = written.powerOfTen.starts_with('+') ? 1 : 0;
    std::from_chars(written.powerOfTen.data() + plus,
                    written.powerOfTen.data() + written.powerOfTen.size(), power);
    return digitsBeforePoint + power > 0;
}

/// Nothing beyond the range of a Double.
std::optional<double> ValueOf(const Written& written, std::string_view text) {
    text.remove_prefix(text.front() == '-' || text.front() == '+' ? 1 : 0);
    double magnitude = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), magnitude).ec ==
        std::errc::result_out_of_range) {
        if (IsTooLarge(written)) {
            return std::nullopt;
        }
        magnitude = 0;
    }
    return written.negative ? -magnitude : magnitude;
}

/// Digits and power of ten as the number text needs them: value = 0.d1d2d3... * 10^pointAt.
struct Significant {
    std::string digits;
    int pointAt = 0;
};

template <class Float>
Significant SignificantDigits(Float magnitude, int count) {
    std::array<char, 64> buffer;
    const auto* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                          std::chars_format::scientific, count - 1)
                                .ptr;
    const std::string_view written(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t mark = written.find('e');
    Significant significant;
    significant.digits.push_back(written[0]);
    if (count > 1) {
        significant.digits.append(written.substr(2, mark - 2));
    }
    significant.digits.erase(significant.digits.find_last_not_of('0') + 1);
    std::string_view power = written.substr(mark + 1);
    power.remove_prefix(power.front() == '+' ? 1 : 0);
    std::from_chars(power.data(), power.data() + power.size(), significant.pointAt);
    ++significant.pointAt;
    return significant;
}

std::string ExponentForm(const Significant& significant) {
    std::string text(1, significant.digits[0]);
    if (significant.digits.size() > 1) {
        text.append(".").append(significant.digits.substr(1));
    }
    const int power = significant.pointAt - 1;
    const std::string digits = WholeText(std::abs(power));
    text.append(power < 0 ? "E-" : "E+");
    return text.append(digits.size() < 2 ? "0" : "").append(digits);
}

std::string PlainForm(const Significant& significant) {
    const auto& [digits, pointAt] = significant;
    const int length = static_cast<int>(digits.size());
    if (pointAt <= 0) {
        return std::string("0.").append(static_cast<std::size_t>(-pointAt), '0').append(digits);
    }
    if (pointAt >= length) {
        return std::string(digits).append(static_cast<std::size_t>(pointAt - length), '0');
    }
    return std::string(digits).insert(static_cast<std::size_t>(pointAt), ".");
}

template <class Float>
std::string FloatText(Float value, int digitLimit) {
    if (!std::isfinite(value)) {
        throw Failure(FailureKind::Overflow);
    }
    if (value == 0) {
        return "0";
    }
    const Significant significant = SignificantDigits(std::abs(value), digitLimit);
    const bool exponent = significant.pointAt > digitLimit || significant.pointAt <= -digitLimit;
    return (value < 0 ? "-" : "") + (exponent ? ExponentForm(significant) : PlainForm(significant));
}

/// std::nearbyint follows a mode that others could set; this does not.
double NearestEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest != 0.5) {
        return rest < 0.5 ? below : below + 1;
    }
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Integer>
Integer ToInteger(double value) {
    const double whole = NearestEven(Checked(value));
    if (whole < std::numeric_limits<Integer>::min() ||
        whole > std::numeric_limits<Integer>::max()) {
        throw Failure(FailureKind::Overflow);
    }
    return static_cast<Integer>(whole);
}

}  // namespace

double ToNumber(std::string_view text) {
    // Most are short and whole.
    constexpr std::size_t kExactDigits = 15;
    if (text.size() <= kExactDigits && OnlyDigits(text)) {
        std::int64_t value = 0;
        for (const char digit : text) {
            value = 10 * value + (digit - '0');
        }
        return static_cast<double>(value);
    }
    const std::string_view number = Trimmed(text);
    if (number.empty()) {
        return 0;
    }
    const std::optional<Written> written = Read(number);
    if (!written) {
        throw Failure(FailureKind::Format);
    }
    const std::optional<double> value = ValueOf(*written, number);
    if (!value) {
        throw Failure(FailureKind::Overflow);
    }
    return *value;
}

std::optional<double> ReadNumber(std::string_view text) {
    const std::string_view number = Trimmed(text);
    if (number.empty()) {
        return std::nullopt;
    }
    const std::optional<Written> written = Read(number);
    return written ? ValueOf(*written, number) : std::nullopt;
}

std::optional<std::int16_t> ReadInteger16(std::string_view text) {
    const std::string_view number = Trimmed(text);
    const std::size_t sign = number.starts_with('+') || number.starts_with('-') ? 1 : 0;
    return OnlyDigits(number.substr(sign)) ? LeadingInteger16(number) : std::nullopt;
}

std::optional<std::int16_t> LeadingInteger16(std::string_view text) {
    std::string_view number = Trimmed(text);
    number.remove_prefix(number.starts_with('+') && !number.starts_with("+-") ? 1 : 0);
    std::int16_t value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    return error == std::errc() ? std::optional(value) : std::nullopt;
}

std::string NumberText(double value) {
    // Most are whole; those need no digits weighed.
    constexpr double kSixteenDigits = 1e15;
    if (std::abs(value) < kSixteenDigits && IsWhole(value)) {
        return WholeText(static_cast<std::int64_t>(value));
    }
    return FloatText(value, 15);
}

std::string SingleText(float value) {
    return FloatText(value, 7);
}

int DecimalPlaces(std::string_view number) {
    const std::size_t point = number.find('.');
    return point == std::string_view::npos ? 0 : static_cast<int>(number.size() - point - 1);
}

std::string WholeText(std::int64_t value) {
    std::array<char, 24> buffer;
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

double Round(double value, int places) {
    const double scale = std::pow(10.0, places);
    const double scaled = Checked(value) * scale;
    constexpr double kFirstWithoutFraction = 4503599627370496.0;  // 2^52
    return std::abs(scaled) < kFirstWithoutFraction ? NearestEven(scaled) / scale : value;
}

double Checked(double value) {
    if (!std::isfinite(value)) {
        throw Failure(FailureKind::Overflow);
    }
    return value;
}

bool IsExactWhole(double value) {
    constexpr double kExactWholes = 9007199254740992;  // 2^53
    return IsWhole(value) && std::abs(value) < kExactWholes;
}

double Divide(double dividend, double divisor) {
    if (divisor == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    return Checked(dividend / divisor);
}

std::int16_t ToInteger16(double value) {
    return ToInteger<std::int16_t>(value);
}

std::int32_t ToInteger32(double value) {
    return ToInteger<std::int32_t>(value);
}

std::int32_t LeastCommonMultiple(std::int32_t one, std::int32_t other) {
    const std::int64_t multiple = std::lcm(std::int64_t{one}, std::int64_t{other});
    return ToInteger32(static_cast<double>(multiple));
}

float ToSingle(double value) {
    if (std::abs(Checked(value)) > std::numeric_limits<float>::max()) {
        throw Failure(FailureKind::Overflow);
    }
    return static_cast<float>(value);
}

}  // namespace numerello
