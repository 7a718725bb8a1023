#include "topics/fractions.h"

#include "tests/topics/exact.h"
#include "tests/topics/rational.h"

namespace numerello {
namespace {

constexpr int kSimplifying = 80;
constexpr int kRatio = 78;

const std::string kDivideBoth =
    "To simplify a fraction, divide the numerator and denominator by the largest number that "
    "divides evenly into both.";
const std::string kWholeNumber = "The numerator divided evenly into the denominator.";
const std::pair<std::string, std::string> kAlready{
    "Already simplified.",
    "There is no whole number that divides evenly into the numerator and denominator."};

TEST(SimplifyFraction, DividesByTheLargestCommonDivisor) {
    const Log expected{
        {"#12/18#", ""},
        {"#12/18# simplified:", kDivideBoth},
        {"6 can be divided evenly into the numerator and denominator:",
         "6 is the largest whole number that divides evenly into both the numerator and "
         "denominator."},
        {"#2/3#", "#12/18# simplified: #2/3#"}};
    EXPECT_EQ(LogOf(Solved(kSimplifying, "12/18")), expected);
}

TEST(SimplifyFraction, OneIsNoDivisor) {
    const Log expected{{"#5/7#", ""}, {"#5/7# simplified:", kDivideBoth}, kAlready};
    EXPECT_EQ(LogOf(Solved(kSimplifying, "5/7")), expected);
}

TEST(SimplifyFraction, ToAWholeNumber) {
    const Log expected{
        {"#8/4#", ""},
        {"#8/4# simplified:", kDivideBoth},
        {"4 can be divided evenly into the numerator and denominator:",
         "4 is the largest whole number that divides evenly into both the numerator and "
         "denominator."},
        {"2", kWholeNumber}};
    EXPECT_EQ(LogOf(Solved(kSimplifying, "8/4")), expected);
}

TEST(SimplifyFraction, OverOneNothingIsDivided) {
    const Log expected{{"#5/1#", ""}, {"#5/1# simplified:", kDivideBoth}, {"5", kWholeNumber}};
    EXPECT_EQ(LogOf(Solved(kSimplifying, "5/1")), expected);
}

TEST(SimplifyFraction, NothingIsDividedByItsDenominator) {
    const Log expected{
        {"#0/5#", ""},
        {"#0/5# simplified:", kDivideBoth},
        {"5 can be divided evenly into the numerator and denominator:",
         "5 is the largest whole number that divides evenly into both the numerator and "
         "denominator."},
        {"0", kWholeNumber}};
    EXPECT_EQ(LogOf(Solved(kSimplifying, "0/5")), expected);
}

TEST(SimplifyFraction, RefusesADenominatorOfZero) {
    // A missing denominator is 0 as well.
    for (const std::string fraction : {"7/0", "0/0", "7/00", "7/", "/"}) {
        const Log expected{{"#" + fraction + "#", ""},
                           {"#" + fraction + "# simplified:", kDivideBoth},
                           {"This is not valid because division by 0 is illegal.",
                            "It is impossible to divide any number by 0."}};
        EXPECT_EQ(LogOf(Solved(kSimplifying, fraction)), expected);
    }
}

TEST(SimplifyFraction, ComparesTextsToTellWhetherAnythingChanged) {
    const Log expected{
        {"#05/7#", ""}, {"#05/7# simplified:", kDivideBoth}, {"#5/7#", "#05/7# simplified: #5/7#"}};
    EXPECT_EQ(LogOf(Solved(kSimplifying, "05/7")), expected);
    EXPECT_EQ(LogOf(Solved(kSimplifying, "5/07")).back().first, "#5/7#");
}

TEST(SimplifyFraction, EndsWithTermsThatHaveNoCommonFactor) {
    const std::pair<std::string, std::string> cases[] = {{"5/5", "1"},
                                                         {"1/1", "1"},
                                                         {"0/1", "0"},
                                                         {"1/2", kAlready.first},
                                                         {"2/4", "#1/2#"},
                                                         {"100/10", "10"},
                                                         {"99999/99999", "1"},
                                                         {"99999/3", "33333"},
                                                         {"99990/99999", "#11110/11111#"},
                                                         {"65536/98304", "#2/3#"},
                                                         {"99989/99991", kAlready.first}};
    for (const auto& [fraction, result] : cases) {
        EXPECT_EQ(LogOf(Solved(kSimplifying, fraction)).back().first, result) << fraction;
    }
}

TEST(SimplifyFraction, InsideAnotherSolverHasNoProblemLine) {
    Problem problem;
    SimplifyFraction(problem, "5/7", false);
    EXPECT_EQ(LogOf(problem), (Log{{"#5/7# simplified:", kDivideBoth}, kAlready}));
}

TEST(SimplifyFraction, FailsBelowTheHeading) {
    for (const std::string text : {"7", "", "abc", "abc/2", "2/abc", "4%2/3", "1/2/3", "--/2"}) {
        ExpectFailure(ProblemOf(kSimplifying, text), FailureKind::Format,
                      {{"#" + text + "#", ""}, {"#" + text + "# simplified:", kDivideBoth}});
    }
}

TEST(SimplifyFraction, ADivisorBeyond32BitsOverflows) {
    const std::string text = "4294967296/4294967296";
    ExpectFailure(ProblemOf(kSimplifying, text), FailureKind::Overflow,
                  {{"#" + text + "#", ""}, {"#" + text + "# simplified:", kDivideBoth}});
    EXPECT_EQ(GreatestDivisorText("2147483647/4294967294").FractionDivisor, 2147483647);
}

TEST(GreatestDivisorText, ReducesAndTellsByWhat) {
    struct Case {
        std::string fraction;
        std::string text;
        std::int32_t divisor;
    };
    const Case cases[] = {{"12/18", "2/3", 6}, {"5/7", "5/7", 0},    {"8/4", "2", 4},
                          {"-4/6", "-2/3", 2}, {"-4/4", "-1", 4},    {"-3/2", "-3/2", 0},
                          {"5/1", "5", 0},     {"1.5/3", "1.5/3", 0}};
    for (const Case& each : cases) {
        const ReducedFraction reduced = GreatestDivisorText(each.fraction);
        EXPECT_EQ(reduced.text, each.text);
        EXPECT_EQ(reduced.FractionDivisor, each.divisor) << each.fraction;
    }
    EXPECT_LT(GreatestDivisorText("5/0").FractionDivisor, 0);
    EXPECT_THROW(GreatestDivisorText("5"), Failure);
}

Log LogOfRatio(const std::string& a, const std::string& b) {
    return {{a + ":" + b, ""},
            {"The proper notation for ratios:", "A ratio is written as a fraction."},
            {"The first number (" + a + ") becomes the numerator:",
             "The number to the left of the ':' becomes the top number in the fraction."},
            {"The second number (" + b + ") becomes the denominator:",
             "The number to the right of the ':' becomes the bottom number in the fraction."},
            {"#" + a + "/" + b + "#", "#" + a + "/" + b + "# is a " + a + " to " + b + " ratio."}};
}

TEST(RatioToFraction, WritesOneNumberOverTheOther) {
    const Log expected{
        {"3:4", ""},
        {"The proper notation for ratios:", "A ratio is written as a fraction."},
        {"The first number (3) becomes the numerator:",
         "The number to the left of the ':' becomes the top number in the fraction."},
        {"The second number (4) becomes the denominator:",
         "The number to the right of the ':' becomes the bottom number in the fraction."},
        {"#3/4#", "#3/4# is a 3 to 4 ratio."}};
    EXPECT_EQ(LogOf(Solved(kRatio, "3:4")), expected);
}

TEST(RatioToFraction, NothingIsReducedOrRefused) {
    const std::pair<std::string, std::string> ratios[] = {
        {"2", "4"}, {"1", "0"}, {"1.5", ".50"}, {"01", "02"}, {"1", ""}, {"", "2"}, {"abc", "--"}};
    for (const auto& [a, b] : ratios) {
        EXPECT_EQ(LogOf(Solved(kRatio, a + ":" + b)), LogOfRatio(a, b));
    }
}

TEST(RatioToFraction, WithoutAColonKeepsTheProblemLine) {
    ExpectFailure(ProblemOf(kRatio, "34"), FailureKind::Format, {{"34", ""}});
}

/// Half of them with a large common divisor.
std::pair<std::string, std::string> DrawFraction(Draws& draws) {
    if (draws.Below(2) == 0) {
        return {draws.Digits(5), draws.Digits(5)};
    }
    const int common = 1 + draws.Below(999);
    return {std::to_string(common * draws.Below(100)), std::to_string(common * draws.Below(100))};
}

TEST(SimplifyFraction, RandomFractionsAreReduced) {
    const TypedTopic topic(kSimplifying);
    Draws draws(kSimplifying);
    for (int i = 0; i < kRandomProblems; ++i) {
        const auto [a, b] = DrawFraction(draws);
        const std::string fraction = a + "/" + b;
        const Log log = topic.LogFor(fraction);
        const std::int64_t denominator = std::stoll(b);
        if (denominator == 0) {
            EXPECT_EQ(log.back().first, "This is not valid because division by 0 is illegal.");
            continue;
        }
        const Rational value(std::stoll(a), denominator);
        EXPECT_EQ(log.back().first, SimplifiedLine(value, fraction)) << fraction;
        const std::string divisor = DigitsOf(denominator / value.Denominator());
        ASSERT_EQ(log.size(), divisor == "1" ? 3U : 4U) << fraction;
        if (divisor != "1") {
            EXPECT_EQ(log[2].first,
                      divisor + " can be divided evenly into the numerator and denominator:");
        }
    }
}

TEST(RatioToFraction, RandomNumbersStandOneOverTheOther) {
    const TypedTopic topic(kRatio);
    Draws draws(kRatio);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string a = DrawNumber(draws, 5, false).text;
        const std::string b = DrawNumber(draws, 5, false).text;
        EXPECT_EQ(topic.LogFor(a + ":" + b), LogOfRatio(a, b));
    }
}

}  // namespace
}  // namespace numerello
