#include "tests/topics/exact.h"
#include "tests/topics/rational.h"
#include "topics/decimal_point.h"
#include "topics/percents.h"

namespace numerello {
namespace {

constexpr int kDecimalToFraction = 71;

const std::string kShownAs = "Fractional notation is shown as: #numerator/denominator#";
const std::pair<std::string, std::string> kMove{
    "Move the decimal to the far right and divide by 10^number of times decimal moved^:",
    "For every position the place value moves to the right, divide by 10."};

TEST(DecimalToFraction, MovesThePointAndSimplifies) {
    const Log expected{
        {"0.75", ""},
        {"The fractional notation of 0.75 is:",
         "Fractional notation is shown as: #numerator/denominator#"},
        {"Move the decimal to the far right and divide by 10^number of times decimal moved^:",
         "For every position the place value moves to the right, divide by 10."},
        {"75", "The number moved to the right 2 times."},
        {"#75/100#", "0.75 written as a fraction."},
        {"#75/100# simplified:",
         "To simplify a fraction, divide the numerator and denominator by the largest number that "
         "divides evenly into both."},
        {"25 can be divided evenly into the numerator and denominator:",
         "25 is the largest whole number that divides evenly into both the numerator and "
         "denominator."},
        {"#3/4#", "#75/100# simplified: #3/4#"}};
    EXPECT_EQ(LogOf(Solved(kDecimalToFraction, "0.75")), expected);
}

TEST(DecimalToFraction, AWholeNumberDoesNotMove) {
    const Log expected{
        {"7", ""},
        {"The fractional notation of 7 is:", kShownAs},
        kMove,
        {"7", "The number moved to the right 0 times."},
        {"#7/1#", "7 written as a fraction."},
        {"#7/1# simplified:",
         "To simplify a fraction, divide the numerator and denominator by the largest number that "
         "divides evenly into both."},
        {"7", "The numerator divided evenly into the denominator."}};
    EXPECT_EQ(LogOf(Solved(kDecimalToFraction, "7")), expected);
}

struct Moved {
    std::string value;
    std::string digits;
    std::string times;
    std::string fraction;
    std::string last;
};

TEST(DecimalToFraction, CountsTheMovesByValueAndExactly) {
    const std::string already = "Already simplified.";
    // 0.07 * 10 * 10 is no whole number in Doubles, nor are 0.29 * 100 and 1.15 * 100.
    const Moved cases[] = {{"0.07", "7", "2", "#7/100#", already},
                           {"0.29", "29", "2", "#29/100#", already},
                           {"0.57", "57", "2", "#57/100#", already},
                           {"1.15", "115", "2", "#115/100#", "#23/20#"},
                           {"0.50", "5", "1", "#5/10#", "#1/2#"},
                           {".5", "5", "1", "#5/10#", "#1/2#"},
                           {"0", "0", "0", "#0/1#", "0"},
                           {"0.00", "0", "0", "#0/1#", "0"},
                           {"1.00", "1", "0", "#1/1#", "1"},
                           {"100", "100", "0", "#100/1#", "100"},
                           {"007.10", "71", "1", "#71/10#", already},
                           {"5.", "5", "0", "#5/1#", "5"},
                           {"12.34", "1234", "2", "#1234/100#", "#617/50#"},
                           {"-0.5", "-5", "1", "#-5/10#", "#-1/2#"},
                           {"99999.99", "9999999", "2", "#9999999/100#", already},
                           {"0.000001", "1", "6", "#1/1000000#", already}};
    for (const Moved& each : cases) {
        const Log log = LogOf(Solved(kDecimalToFraction, each.value));
        ASSERT_GE(log.size(), 7U) << each.value;
        EXPECT_EQ(log[0].first, each.value);
        EXPECT_EQ(log[1].first, "The fractional notation of " + each.value + " is:");
        EXPECT_EQ(log[3].first, each.digits) << each.value;
        EXPECT_EQ(log[3].second, "The number moved to the right " + each.times + " times.");
        EXPECT_EQ(log[4].first, each.fraction);
        EXPECT_EQ(log[4].second, each.value + " written as a fraction.");
        EXPECT_EQ(log[5].first, each.fraction + " simplified:");
        EXPECT_EQ(log.back().first, each.last) << each.value;
    }
}

TEST(DecimalToFraction, EveryHundredthMovesExactly) {
    for (int hundredths = 1; hundredths < 100; ++hundredths) {
        const std::string digits = std::to_string(hundredths);
        const std::string value = (hundredths < 10 ? "0.0" : "0.") + digits;
        const bool tenths = hundredths % 10 == 0;
        const Log log = LogOf(Solved(kDecimalToFraction, value));
        EXPECT_EQ(log[4].first,
                  tenths ? "#" + digits.substr(0, 1) + "/10#" : "#" + digits + "/100#");
    }
}

TEST(DecimalToFraction, InsideAnotherSolverHasNoProblemLine) {
    Problem problem;
    DecimalToFraction(problem, "0.1", false);
    const Log log = LogOf(problem);
    ASSERT_EQ(log.size(), 6U);
    EXPECT_EQ(log[0].first, "The fractional notation of 0.1 is:");
    EXPECT_EQ(log[5].first, "Already simplified.");
}

TEST(DecimalToFraction, FailsWhereThePointIsMoved) {
    for (const std::string text : {"1/2", ".", "abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(
            ProblemOf(kDecimalToFraction, text), FailureKind::Format,
            {{text, ""}, {"The fractional notation of " + text + " is:", kShownAs}, kMove});
    }
}

TEST(DecimalPoint, MovesToTheWhole) {
    const std::pair<double, MovedPoint> cases[] = {
        {0, {"0", 0}},     {7, {"7", 0}},        {100, {"100", 0}},
        {0.07, {"7", 2}},  {-1.25, {"-125", 2}}, {12345.67, {"1234567", 2}},
        {0.001, {"1", 3}}, {2.5e-7, {"25", 8}},  {1e15, {"1E+15", 0}}};
    for (const auto& [value, moved] : cases) {
        EXPECT_EQ(MoveToWhole(value).text, moved.text);
        EXPECT_EQ(MoveToWhole(value).places, moved.places) << moved.text;
    }
}

TEST(DecimalPoint, MovesBehindTheFirstDigit) {
    const std::pair<double, MovedPoint> cases[] = {{0, {"0", 0}},
                                                   {1, {"1", 0}},
                                                   {10, {"1", -1}},
                                                   {0.1, {"1", 1}},
                                                   {-50, {"-5", -1}},
                                                   {-0.05, {"-5", 2}},
                                                   {12345.67, {"1.234567", -4}},
                                                   {0.0123, {"1.23", 2}},
                                                   {9.99, {"9.99", 0}},
                                                   {1.5e20, {"1.5", -20}},
                                                   {1.5e-20, {"1.5", 20}}};
    for (const auto& [value, moved] : cases) {
        EXPECT_EQ(MoveBehindFirstDigit(value).text, moved.text);
        EXPECT_EQ(MoveBehindFirstDigit(value).places, moved.places) << moved.text;
    }
}

TEST(DecimalToFraction, RandomDecimalsKeepTheirValue) {
    const TypedTopic topic(kDecimalToFraction);
    Draws draws(kDecimalToFraction);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TypedNumber v = DrawNumber(draws, 5, false);
        std::int64_t digits = v.hundredths;
        int places = 2;
        for (; places > 0 && digits % 10 == 0; --places) {
            digits /= 10;
        }
        const std::string fraction = std::to_string(digits) + "/" +
                                     (places == 0   ? "1"
                                      : places == 1 ? "10"
                                                    : "100");
        const Log log = topic.LogFor(v.text);
        ASSERT_GE(log.size(), 7U);
        EXPECT_EQ(log[3].second,
                  "The number moved to the right " + std::to_string(places) + " times.");
        EXPECT_EQ(log[4].first, "#" + fraction + "#");
        EXPECT_EQ(log.back().first, SimplifiedLine(Rational(v.hundredths, 100), fraction))
            << v.text;
    }
}

}  // namespace
}  // namespace numerello
