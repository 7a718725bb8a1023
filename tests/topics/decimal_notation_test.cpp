#include "tests/topics/exact.h"
#include "tests/topics/rational.h"
#include "topics/percents.h"

namespace numerello {
namespace {

constexpr int kFractionToPercent = 72;
constexpr int kFractionToDecimal = 73;

const std::string kEliminate =
    "To convert to decimal notation, the division symbol must be eliminated.";
const std::string kToPercent =
    "To convert to percent notation, divide the numerator by the denominator, multiply by 100 and "
    "add a % symbol.";

TEST(FractionToDecimal, DividesTheNumerator) {
    const Log expected{
        {"#3/4#", ""},
        {"3/4 converted to decimal:",
         "To convert to decimal notation, the division symbol must be eliminated."},
        {"Divide the numerator by the denominator:",
         "Divide the number above the division symbol by the number below the division symbol."},
        {"0.75", "#3/4# in decimal form."}};
    EXPECT_EQ(LogOf(Solved(kFractionToDecimal, "3/4")), expected);
}

TEST(FractionToDecimal, ANumberIsInDecimalFormAlready) {
    for (const std::string text : {"7", "0", "007"}) {
        const Log expected{{"#" + text + "#", ""},
                           {text + " converted to decimal:", kEliminate},
                           {"#" + text + "# is already in decimal form.",
                            "No division symbol was in the original fraction."}};
        EXPECT_EQ(LogOf(Solved(kFractionToDecimal, text)), expected);
    }
}

TEST(FractionToDecimal, RefusesADenominatorOfZero) {
    for (const std::string text : {"7/0", "0/0", "7/00", "7/"}) {
        const Log expected{{"#" + text + "#", ""},
                           {text + " converted to decimal:", kEliminate},
                           {"This fraction isn't valid because division by zero is illegal.",
                            "It is mathematically impossible to divide any number by 0."}};
        EXPECT_EQ(LogOf(Solved(kFractionToDecimal, text)), expected);
    }
}

TEST(FractionToDecimal, ShowsFifteenDigitsWhateverTheSetting) {
    const std::pair<std::string, std::string> cases[] = {{"1/3", "0.333333333333333"},
                                                         {"2/3", "0.666666666666667"},
                                                         {"1/12", "0.0833333333333333"},
                                                         {"22/7", "3.14285714285714"},
                                                         {"1/99999", "0.000010000100001"},
                                                         {"99999/1", "99999"},
                                                         {"0/7", "0"},
                                                         {"007/2", "3.5"},
                                                         {"1/64", "0.015625"},
                                                         {"/7", "0"}};
    for (const auto& [fraction, decimal] : cases) {
        for (const int RoundDigits : {1, 2, 5}) {
            const Log log = LogOf(Solved(kFractionToDecimal, fraction, RoundDigits));
            ASSERT_EQ(log.size(), 4U);
            EXPECT_EQ(log[3].first, decimal);
            EXPECT_EQ(log[3].second, "#" + fraction + "# in decimal form.");
        }
    }
}

TEST(FractionToDecimal, FailsWhereTheNumberIsNeeded) {
    for (const std::string text : {"7/abc", "1/2/3", "1/--", "1/4%2"}) {
        ExpectFailure(ProblemOf(kFractionToDecimal, text), FailureKind::Format,
                      {{"#" + text + "#", ""}, {text + " converted to decimal:", kEliminate}});
    }
    ExpectFailure(ProblemOf(kFractionToDecimal, "--/7"), FailureKind::Format,
                  {{"#--/7#", ""},
                   {"--/7 converted to decimal:", kEliminate},
                   {"Divide the numerator by the denominator:",
                    "Divide the number above the division symbol by the number below the division "
                    "symbol."}});
}

TEST(FractionToPercent, DividesAndMultipliesByAHundred) {
    const Log expected{
        {"#3/4#", ""},
        {"To convert #3/4# to percent notation:",
         "To convert to percent notation, divide the numerator by the denominator, multiply by 100 "
         "and add a % symbol."},
        {"Divide the numerator by the denominator:",
         "The numerator is the number above the division symbol, the denominator is the number "
         "below."},
        {"0.75", "Divide."},
        {"Multiply by 100 and add a % symbol:",
         "The percent symbol denotes that the number has been divided by 100.  To add a % to 0.75, "
         "it must be multiplied by 100."},
        {"75%", "0.75 in percent format."}};
    EXPECT_EQ(LogOf(Solved(kFractionToPercent, "3/4")), expected);
}

TEST(FractionToPercent, ThePercentIsThatOfTheRoundedDecimal) {
    struct Case {
        std::string fraction;
        int RoundDigits;
        std::string decimal;
        std::string percent;
    };
    const Case cases[] = {{"1/8", 1, "0.1", "10%"},         {"1/8", 2, "0.12", "12%"},
                          {"1/8", 3, "0.125", "12.5%"},     {"3/8", 2, "0.38", "38%"},
                          {"1/3", 1, "0.3", "30%"},         {"1/3", 2, "0.33", "33%"},
                          {"1/3", 3, "0.333", "33.3%"},     {"1/3", 4, "0.3333", "33.33%"},
                          {"1/3", 5, "0.33333", "33.333%"}, {"1/4", 1, "0.2", "20%"},
                          {"1/999", 2, "0", "0%"},          {"0/7", 2, "0", "0%"},
                          {"1.5/2.5", 2, "0.6", "60%"},     {"99999/1", 2, "99999", "9999900%"},
                          {"1/.5", 2, "2", "200%"}};
    for (const Case& each : cases) {
        const Log log = LogOf(Solved(kFractionToPercent, each.fraction, each.RoundDigits));
        ASSERT_EQ(log.size(), 6U) << each.fraction;
        EXPECT_EQ(log[3].first, each.decimal) << each.fraction;
        EXPECT_EQ(log[5].first, each.percent) << each.fraction;
        EXPECT_EQ(log[5].second, each.decimal + " in percent format.");
    }
}

TEST(FractionToPercent, RefusesADenominatorOfZero) {
    for (const std::string text : {"7/0", "0/0", "7/.00", "7/"}) {
        const Log expected{
            {"#" + text + "#", ""},
            {"To convert #" + text + "# to percent notation:", kToPercent},
            {"Division by 0 is illegal.", "It is impossible to divide any number by 0."}};
        EXPECT_EQ(LogOf(Solved(kFractionToPercent, text)), expected);
    }
}

TEST(FractionToPercent, FailsWhereTheNumberIsNeeded) {
    for (const std::string text : {".", "7", "", "7/abc", "1/2/3", "1/4%2"}) {
        ExpectFailure(ProblemOf(kFractionToPercent, text), FailureKind::Format,
                      {{"#" + text + "#", ""},
                       {"To convert #" + text + "# to percent notation:", kToPercent}});
    }
    ExpectFailure(ProblemOf(kFractionToPercent, "--/7"), FailureKind::Format,
                  {{"#--/7#", ""},
                   {"To convert #--/7# to percent notation:", kToPercent},
                   {"Divide the numerator by the denominator:",
                    "The numerator is the number above the division symbol, the denominator is "
                    "the number below."}});
}

TEST(FractionToDecimal, RandomQuotientsHaveFifteenRightDigits) {
    const TypedTopic topic(kFractionToDecimal);
    Draws draws(kFractionToDecimal);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string a = draws.Digits(5);
        const std::string b = draws.Digits(5);
        const std::string fraction = a + "/" + b;
        const Log log = topic.LogFor(fraction);
        if (std::stoll(b) == 0) {
            EXPECT_EQ(log.back().first,
                      "This fraction isn't valid because division by zero is illegal.");
            continue;
        }
        EXPECT_EQ(log.back().second, "#" + fraction + "# in decimal form.");
        ExpectFifteenDigits(log.back().first, Rational(std::stoll(a), std::stoll(b)));
    }
}

TEST(FractionToPercent, RandomQuotientsAreRoundedBeforeTheyAreTimesAHundred) {
    TypedTopic topic(kFractionToPercent);
    Draws draws(kFractionToPercent);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TypedNumber a = DrawNumber(draws, 5, false);
        const TypedNumber b = DrawNumber(draws, 5, false);
        const int RoundDigits = 1 + draws.Below(5);
        topic.SetRoundDigits(RoundDigits);
        const Log log = topic.LogFor(a.text + "/" + b.text);
        if (b.hundredths == 0) {
            EXPECT_EQ(log.back().first, "Division by 0 is illegal.");
            continue;
        }
        ASSERT_EQ(log.size(), 6U);
        const std::string decimal = log[3].first;
        ExpectRounded(decimal, Rational(a.hundredths, b.hundredths), RoundDigits);
        EXPECT_EQ(log[5].first, TextOf(Rational::Of(decimal) * 100) + "%");
    }
}

}  // namespace
}  // namespace numerello
