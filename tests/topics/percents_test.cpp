#include "topics/percents.h"

#include "tests/topics/exact.h"
#include "tests/topics/rational.h"

namespace numerello {
namespace {

constexpr int kPercentToFraction = 68;
constexpr int kPercentToDecimal = 69;
constexpr int kDecimalToPercent = 70;

TEST(DecimalToPercent, MultipliesByAHundred) {
    const Log expected{
        {"0.07", ""},
        {"Multiply by 100 and add a % symbol:",
         "The percent symbol denotes that the number has been divided by 100.  To add a % to 0.07, "
         "it must be multiplied by 100."},
        {"7%", "0.07 in percent format."}};
    EXPECT_EQ(LogOf(Solved(kDecimalToPercent, "0.07")), expected);
}

TEST(DecimalToPercent, RepeatsTheNumberAsTyped) {
    const std::pair<std::string, std::string> cases[] = {
        {"0", "0%"},     {"1", "100%"},    {"007", "700%"},          {".5", "50%"},
        {"0.50", "50%"}, {"0.29", "29%"},  {"1.15", "115%"},         {"99999.99", "9999999%"},
        {"5.", "500%"},  {"-0.5", "-50%"}, {"0.123456", "12.3456%"}, {"", "0%"}};
    for (const auto& [value, percent] : cases) {
        for (const int RoundDigits : {1, 5}) {
            const Log expected{
                {value, ""},
                {"Multiply by 100 and add a % symbol:",
                 "The percent symbol denotes that the number has been divided by 100.  To add a % "
                 "to " +
                     value + ", it must be multiplied by 100."},
                {percent, value + " in percent format."}};
            EXPECT_EQ(LogOf(Solved(kDecimalToPercent, value, RoundDigits)), expected);
        }
    }
}

TEST(DecimalToPercent, InsideAnotherSolverHasNoProblemLine) {
    Problem problem;
    DecimalToPercent(problem, "0.5", false);
    const Log log = LogOf(problem);
    ASSERT_EQ(log.size(), 2U);
    EXPECT_EQ(log[1].first, "50%");
}

TEST(DecimalToPercent, FailsBelowTheInstruction) {
    for (const std::string text : {".", "abc", "--", "1/2", "4%2"}) {
        ExpectFailure(ProblemOf(kDecimalToPercent, text), FailureKind::Format,
                      {{text, ""},
                       {"Multiply by 100 and add a % symbol:",
                        "The percent symbol denotes that the number has been divided by 100.  To "
                        "add a % to " +
                            text + ", it must be multiplied by 100."}});
    }
    Problem problem = ProblemOf(kDecimalToPercent, "1E307");
    EXPECT_EQ(FailureOf(problem), FailureKind::Overflow);
    EXPECT_EQ(problem.log.StepCount, 3);
}

const std::pair<std::string, std::string> kRemoveSign{
    "Remove the % symbol and multiply by .01:",
    "The percent symbol denotes that the number has been divided by 100.  Multiplying by .01 is "
    "the same as dividing by 100."};

TEST(PercentToDecimal, DividesByAHundred) {
    const Log expected{
        {"42%", ""},
        {"Remove the % symbol and multiply by .01:",
         "The percent symbol denotes that the number has been divided by 100.  Multiplying by .01 "
         "is the same as dividing by 100."},
        {"0.42", "42% in decimal format."}};
    EXPECT_EQ(LogOf(Solved(kPercentToDecimal, "42%")), expected);
}

TEST(PercentToDecimal, TheSignMayBeMissing) {
    const Log expected{{"42", ""}, kRemoveSign, {"0.42", "42% in decimal format."}};
    EXPECT_EQ(LogOf(Solved(kPercentToDecimal, "42")), expected);
}

TEST(PercentToDecimal, RepeatsTheNumberAsTyped) {
    const std::pair<std::string, std::string> cases[] = {
        {"100", "1"},    {"0", "0"},         {"0.07", "0.0007"},       {"007", "0.07"},
        {".5", "0.005"}, {"12.50", "0.125"}, {"99999.99", "999.9999"}, {"", "0"}};
    for (const auto& [value, decimal] : cases) {
        for (const int RoundDigits : {1, 5}) {
            const Log expected{
                {value + "%", ""}, kRemoveSign, {decimal, value + "% in decimal format."}};
            EXPECT_EQ(LogOf(Solved(kPercentToDecimal, value + "%", RoundDigits)), expected);
        }
    }
}

TEST(PercentToDecimal, ASignElsewhereLeavesNoNumber) {
    for (const std::string text : {"4%2", "4%2%", "42%%", "%42", ".%", "abc", "--", "1/2"}) {
        ExpectFailure(ProblemOf(kPercentToDecimal, text), FailureKind::Format,
                      {{text, ""}, kRemoveSign});
    }
}

TEST(PercentToFraction, GoesThroughTheDecimal) {
    const Log expected{
        {"75%", ""},
        {"Remove the % symbol and multiply by .01:",
         "Multiplying by .01 is the same as dividing by 100."},
        {"0.75", "75 multiplied by .01."},
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
    EXPECT_EQ(LogOf(Solved(kPercentToFraction, "75%")), expected);
}

TEST(PercentToFraction, EndsInLowestTerms) {
    struct Case {
        std::string percent;
        std::string note;
        std::string decimal;
        std::string fraction;
        std::string last;
    };
    const Case cases[] = {
        {"100%", "100 multiplied by .01.", "1", "#1/1#", "1"},
        {"0%", "0 multiplied by .01.", "0", "#0/1#", "0"},
        {"75", "75 multiplied by .01.", "0.75", "#75/100#", "#3/4#"},
        {"12.5%", "12.5 multiplied by .01.", "0.125", "#125/1000#", "#1/8#"},
        {"0.07%", "0.07 multiplied by .01.", "0.0007", "#7/10000#", "Already simplified."},
        {"050.0%", "050.0 multiplied by .01.", "0.5", "#5/10#", "#1/2#"},
        {".2%", ".2 multiplied by .01.", "0.002", "#2/1000#", "#1/500#"},
        {"99999.99%", "99999.99 multiplied by .01.", "999.9999", "#9999999/10000#",
         "Already simplified."},
        {"250%", "250 multiplied by .01.", "2.5", "#25/10#", "#5/2#"}};
    for (const Case& each : cases) {
        const Log log = LogOf(Solved(kPercentToFraction, each.percent));
        ASSERT_GE(log.size(), 9U) << each.percent;
        EXPECT_EQ(log[0].first, each.percent);
        EXPECT_EQ(log[2].first, each.decimal);
        EXPECT_EQ(log[2].second, each.note);
        EXPECT_EQ(log[3].first, "The fractional notation of " + each.decimal + " is:");
        EXPECT_EQ(log[6].first, each.fraction);
        EXPECT_EQ(log.back().first, each.last) << each.percent;
    }
}

TEST(PercentToFraction, ASignElsewhereLeavesNoNumber) {
    for (const std::string text : {"4%2", "42%%", "%42", ".", "abc", "--", "1/2"}) {
        ExpectFailure(ProblemOf(kPercentToFraction, text), FailureKind::Format,
                      {{text, ""},
                       {"Remove the % symbol and multiply by .01:",
                        "Multiplying by .01 is the same as dividing by 100."}});
    }
}

TEST(DecimalToPercent, RandomDecimalsAreTimesAHundred) {
    const TypedTopic topic(kDecimalToPercent);
    Draws draws(kDecimalToPercent);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TypedNumber v = DrawNumber(draws, 5, false);
        EXPECT_EQ(topic.LogFor(v.text).back().first, ExactText(v.hundredths, 0) + "%") << v.text;
    }
}

TEST(PercentToDecimal, RandomPercentsAreAHundredthOfTheirNumber) {
    const TypedTopic topic(kPercentToDecimal);
    Draws draws(kPercentToDecimal);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TypedNumber v = DrawNumber(draws, 5, false);
        const std::string sign = draws.Below(4) == 0 ? "" : "%";
        EXPECT_EQ(topic.LogFor(v.text + sign).back(),
                  std::pair(ExactText(v.hundredths, 4), v.text + "% in decimal format."));
    }
}

TEST(PercentToFraction, RandomPercentsKeepTheirValue) {
    const TypedTopic topic(kPercentToFraction);
    Draws draws(kPercentToFraction);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TypedNumber v = DrawNumber(draws, 5, false);
        std::string powerOfTen = "10000";
        std::int64_t digits = v.hundredths;
        for (; powerOfTen != "1" && digits % 10 == 0; powerOfTen.pop_back()) {
            digits /= 10;
        }
        const std::string fraction = std::to_string(digits) + "/" + powerOfTen;
        const Log log = topic.LogFor(v.text + (draws.Below(4) == 0 ? "" : "%"));
        ASSERT_GE(log.size(), 9U);
        EXPECT_EQ(log[2].first, ExactText(v.hundredths, 4));
        EXPECT_EQ(log[6].first, "#" + fraction + "#");
        EXPECT_EQ(log.back().first, SimplifiedLine(Rational(v.hundredths, 10000), fraction))
            << v.text;
    }
}

}  // namespace
}  // namespace numerello
