#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"
#include "tests/topics/exact.h"

namespace numerello {
namespace {

constexpr int kToRegular = 25;
constexpr int kToScientific = 65;

const std::pair<std::string, std::string> kRegularIs{
    "To convert from scientific notation to regular notation:",
    "Regular notation is simply a number with or without decimals."};
const std::string kMoves =
    "The decimal point moves to the right if the exponent is positive, or left if the exponent is "
    "negative.";
const std::string kConverted = "Scientific notation converted to regular notation.";

TEST(ScientificToRegular, APositivePowerMovesThePointToTheRight) {
    const Log expected{
        {"4.12 * 10^3^", ""},
        {"To convert from scientific notation to regular notation:",
         "Regular notation is simply a number with or without decimals."},
        {"Move the decimal point to the right 3 place(s):",
         "The decimal point moves to the right if the exponent is positive, or left if the "
         "exponent is negative."},
        {"4120", "Scientific notation converted to regular notation."}};
    EXPECT_EQ(BoxedLog(kToRegular, {"4.12", "3"}), expected);
}

TEST(ScientificToRegular, ANegativePowerMovesItToTheLeft) {
    const Log expected{
        {"4.12 * 10^-3^", ""},
        {"To convert from scientific notation to regular notation:",
         "Regular notation is simply a number with or without decimals."},
        {"Move the decimal point to the left 3 place(s):",
         "The decimal point moves to the right if the exponent is positive, or left if the "
         "exponent is negative."},
        {"0.00412", "Scientific notation converted to regular notation."}};
    EXPECT_EQ(BoxedLog(kToRegular, {"4.12", "-3"}), expected);
}

struct Converted {
    std::string base;
    std::string power;
    std::string move;
    std::string value;
};

TEST(ScientificToRegular, MovesThePointByTheExponent) {
    const Converted cases[] = {{"4.12", "0", "right 0", "4.12"},
                               {"4.12", "-0", "right 0", "4.12"},
                               {"04.10", "007", "right 7", "41000000"},
                               {".5", "1", "right 1", "5"},
                               {"-2.5", "2", "right 2", "-250"},
                               {"-2.5", "-2", "left 2", "-0.025"},
                               {"0", "5", "right 5", "0"},
                               {"5", "-5", "left 5", "0.00005"},
                               {"1", "14", "right 14", "100000000000000"},
                               {"1", "15", "right 15", "1E+15"},
                               {"1.5", "20", "right 20", "1.5E+20"},
                               {"1", "-15", "left 15", "0.000000000000001"},
                               {"1", "-16", "left 16", "1E-16"},
                               {"1", "308", "right 308", "1E+308"},
                               {"5", "-400", "left 400", "0"},
                               {"1234567890", "-999999999", "left 999999999", "0"}};
    for (const auto& [base, power, move, value] : cases) {
        EXPECT_EQ(BoxedLog(kToRegular, {base, power}),
                  (Log{{base + " * 10^" + power + "^", ""},
                       kRegularIs,
                       {"Move the decimal point to the " + move + " place(s):", kMoves},
                       {value, kConverted}}));
    }
}

TEST(ScientificToRegular, MarksAreTakenOutOfTheBoxes) {
    EXPECT_EQ(BoxedLog(kToRegular, {"#4#.12", "#-3#"}), BoxedLog(kToRegular, {"4.12", "-3"}));
}

TEST(ScientificToRegular, BeyondADoubleItOverflowsAtTheValue) {
    const std::pair<std::string, std::string> cases[] = {
        {"1", "309"}, {"0", "309"}, {"-1", "309"}, {"9.99", "308"}, {"1", "9999999999"}};
    for (const auto& [base, power] : cases) {
        ExpectFailure(Boxed(kToRegular, {base, power}), FailureKind::Overflow,
                      {{base + " * 10^" + power + "^", ""},
                       kRegularIs,
                       {"Move the decimal point to the right " + power + " place(s):", kMoves}});
    }
}

TEST(ScientificToRegular, TextThatIsNoNumberFailsWhereItIsNeeded) {
    for (const std::string power : {"abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(Boxed(kToRegular, {"2", power}), FailureKind::Format,
                      {{"2 * 10^" + power + "^", ""}, kRegularIs});
    }
    ExpectFailure(Boxed(kToRegular, {"abc", "2"}), FailureKind::Format,
                  {{"abc * 10^2^", ""},
                   kRegularIs,
                   {"Move the decimal point to the right 2 place(s):", kMoves}});
}

const std::pair<std::string, std::string> kScientificIs{
    "To convert from regular notation to scientific notation:",
    "Scientific notation is written: number * 10^power^"};

TEST(RegularToScientific, ALargeNumberMovesThePointToTheLeft) {
    const Log expected{
        {"412", ""},
        {"To convert from regular notation to scientific notation:",
         "Scientific notation is written: number * 10^power^"},
        {"Move the decimal place to the left 2 time(s):",
         "To convert to scientific form, the decimal point should follow the first number."},
        {"4.12", "Shift the decimal point."},
        {"Then multiply by 10^number of places the decimal moved^",
         "Balance the moving of the decimal by multiplying."},
        {"4.12 * 10^2^", "Regular notation converted to scientific notation."}};
    EXPECT_EQ(LogOf(Solved(kToScientific, "412")), expected);
}

TEST(RegularToScientific, ASmallNumberMovesItToTheRight) {
    const Log expected{
        {"0.05", ""},
        {"To convert from regular notation to scientific notation:",
         "Scientific notation is written: number * 10^power^"},
        {"Move the decimal place to the right 2 time(s):",
         "To convert to scientific form, the decimal point should follow the first number."},
        {"5", "Shifted the decimal point."},
        {"Then multiply by 10^number of places the decimal moved preceded by a minus sign:^",
         "Balance the moving of the decimal by multiplying."},
        {"5 * 10^-2^", "Regular notation converted to scientific."}};
    EXPECT_EQ(LogOf(Solved(kToScientific, "0.05")), expected);
}

struct Shifted {
    std::string value;
    std::string move;
    std::string shifted;
    std::string result;
};

TEST(RegularToScientific, PutsThePointBehindTheFirstDigit) {
    const Shifted cases[] = {
        {"0", "left 0", "0", "0 * 10^0^"},
        {"0.00", "left 0", "0", "0 * 10^0^"},
        {"-0", "left 0", "0", "0 * 10^0^"},
        {"1", "left 0", "1", "1 * 10^0^"},
        {"9.99", "left 0", "9.99", "9.99 * 10^0^"},
        {"10", "left 1", "1", "1 * 10^1^"},
        {"10.01", "left 1", "1.001", "1.001 * 10^1^"},
        {"-50", "left 1", "-5", "-5 * 10^1^"},
        {"-0.5", "right 1", "-5", "-5 * 10^-1^"},
        {"0.1", "right 1", "1", "1 * 10^-1^"},
        {"0.07", "right 2", "7", "7 * 10^-2^"},
        {".99", "right 1", "9.9", "9.9 * 10^-1^"},
        {"00100", "left 2", "1", "1 * 10^2^"},
        {"99999.99", "left 4", "9.999999", "9.999999 * 10^4^"},
        {"20000", "left 4", "2", "2 * 10^4^"},
        {"0.29", "right 1", "2.9", "2.9 * 10^-1^"},
        {"1234567890.12345", "left 9", "1.23456789012345", "1.23456789012345 * 10^9^"}};
    for (const auto& [value, move, shifted, result] : cases) {
        const Log log = LogOf(Solved(kToScientific, value));
        ASSERT_EQ(log.size(), 6U) << value;
        EXPECT_EQ(log[0].first, value);
        EXPECT_EQ(log[2].first, "Move the decimal place to the " + move + " time(s):");
        EXPECT_EQ(log[3].first, shifted);
        EXPECT_EQ(log[5].first, result);
    }
}

TEST(RegularToScientific, FailsBelowTheHeading) {
    for (const std::string text : {".", "5-3", "-", "--", "abc", "4%2", "1/2/3"}) {
        ExpectFailure(ProblemOf(kToScientific, text), FailureKind::Format,
                      {{text, ""}, kScientificIs});
    }
    ExpectFailure(ProblemOf(kToScientific, "1E309"), FailureKind::Overflow,
                  {{"1E309", ""}, kScientificIs});
}

/// The significant digits d1d2d3... of a number 0.d1d2d3... * 10^pointAt.
struct Significant {
    std::string digits;
    int pointAt = 0;
};

/// Of an unsigned number that is not 0.
Significant SignificantOf(std::string text) {
    const std::size_t point = std::min(text.find('.'), text.size());
    Significant result{std::move(text), static_cast<int>(point)};
    std::erase(result.digits, '.');
    const std::size_t zeros = result.digits.find_first_not_of('0');
    result.digits.erase(0, zeros);
    result.pointAt -= static_cast<int>(zeros);
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    return result;
}

std::string WithPointBehindTheFirst(const std::string& digits) {
    return digits.size() == 1 ? digits : digits.substr(0, 1) + "." + digits.substr(1);
}

/// The number text: plain as far as fifteen digits reach.
std::string TextOf(const Significant& number) {
    const auto& [digits, pointAt] = number;
    const auto length = static_cast<int>(digits.size());
    if (pointAt > 15 || pointAt <= -15) {
        const std::string power = std::to_string(std::abs(pointAt - 1));
        return WithPointBehindTheFirst(digits) + (pointAt > 0 ? "E+" : "E-") + power;
    }
    if (pointAt <= 0) {
        return "0." + std::string(static_cast<std::size_t>(-pointAt), '0') + digits;
    }
    const auto whole = static_cast<std::size_t>(pointAt);
    return pointAt >= length ? digits + std::string(whole - digits.size(), '0')
                             : digits.substr(0, whole) + "." + digits.substr(whole);
}

bool IsZero(std::string_view text) {
    return text.find_first_of("123456789") == std::string_view::npos;
}

TEST(ScientificToRegular, RandomNumbersKeepTheirDigits) {
    const BoxedTopic topic(kToRegular);
    Draws draws(kToRegular);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string base = DrawBox(draws, 10);
        std::string power = draws.Digits(2);
        power.insert(0, draws.Below(8) == 0 ? "2" : "");
        power.insert(0, draws.Below(2) == 0 ? "-" : "");
        const Log log = topic.LogFor({base, power}, DrawRoundDigits(draws));
        ASSERT_EQ(log.size(), 4U);
        const int places = std::stoi(power);
        EXPECT_EQ(log[2].first, std::string("Move the decimal point to the ") +
                                    (places < 0 ? "left " : "right ") +
                                    std::to_string(std::abs(places)) + " place(s):");
        if (IsZero(base)) {
            EXPECT_EQ(log[3].first, "0");
            continue;
        }
        const bool negative = base.starts_with('-');
        Significant value = SignificantOf(base.substr(negative ? 1 : 0));
        value.pointAt += places;
        EXPECT_EQ(log[3].first, (negative ? "-" : "") + TextOf(value)) << base << " " << power;
    }
}

TEST(RegularToScientific, RandomNumbersKeepTheirDigits) {
    const TypedTopic topic(kToScientific);
    Draws draws(kToScientific);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string v = DrawNumber(draws, 5, true).text;
        const Log log = topic.LogFor(v);
        ASSERT_EQ(log.size(), 6U);
        if (IsZero(v)) {
            EXPECT_EQ(log[5].first, "0 * 10^0^") << v;
            continue;
        }
        const bool negative = v.starts_with('-');
        const Significant value = SignificantOf(v.substr(negative ? 1 : 0));
        const int moves = value.pointAt - 1;
        const std::string shifted = (negative ? "-" : "") + WithPointBehindTheFirst(value.digits);
        EXPECT_EQ(log[2].first, std::string("Move the decimal place to the ") +
                                    (moves < 0 ? "right " : "left ") +
                                    std::to_string(std::abs(moves)) + " time(s):");
        EXPECT_EQ(log[3].first, shifted);
        EXPECT_EQ(log[5].first, shifted + " * 10^" + std::to_string(moves) + "^") << v;
    }
}

}  // namespace
}  // namespace numerello
