#include "tests/topics/rational.h"
#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kToFraction = 74;
constexpr int kToMixed = 75;

const std::string kMixedIs = "A mixed number is a whole number, followed by a fraction.";

std::string ToMixedHeading(const std::string& fraction) {
    return "To convert #" + fraction + "# from fractional notation to a mixed number:";
}

TEST(FractionToMixed, WholeNumberAndFraction) {
    const Log expected{
        {"#7/2#", ""},
        {"To convert #7/2# from fractional notation to a mixed number:",
         "A mixed number is a whole number, followed by a fraction."},
        {"The numerator divides evenly into the denominator 3 times.",
         "#7/2# = 3 with a remainder of 1."},
        {"3 becomes the whole number.",
         "The remainder of the division will become the numerator of the fraction portion of the "
         "mixed number."},
        {"The remainder of that division becomes the numerator of the fraction:",
         "#7/2# = 3 with a remainder of 1."},
        {"3 #1/?#", "Mixed number format."},
        {"Keep the denominator of the original fraction:",
         "The denominator is the number on the bottom of a fraction."},
        {"3 #1/2#", "Mixed number format."}};
    EXPECT_EQ(LogOf(Solved(kToMixed, "7/2")), expected);
}

TEST(FractionToMixed, WithoutARemainderOnlyTheWholeNumberStays) {
    const Log expected{
        {"#8/2#", ""},
        {"To convert #8/2# from fractional notation to a mixed number:",
         "A mixed number is a whole number, followed by a fraction."},
        {"The numerator divides evenly into the denominator 4 times.",
         "#8/2# = 4 with a remainder of 0."},
        {"4 becomes the whole number.",
         "The remainder of the division will become the numerator of the fraction portion of the "
         "mixed number."},
        {"The remainder of that division becomes the numerator of the fraction:",
         "#8/2# = 4 with a remainder of 0."},
        {"4 #0/?#", "Mixed number format."},
        {"Since the numerator is 0, the fraction portion is not necessary.",
         "The fraction portion equals 0, since 0 divided by any number (other than 0) equals 0."},
        {"4", "Whole number format."}};
    EXPECT_EQ(LogOf(Solved(kToMixed, "8/2")), expected);
}

TEST(FractionToMixed, EqualPartsAreOne) {
    for (const std::string fraction : {"4/4", "04/4", "1/1"}) {
        const Log expected{
            {"#" + fraction + "#", ""},
            {ToMixedHeading(fraction), kMixedIs},
            {"#" + fraction + "# = 1", "A number other than 0 divided by itself equals 1."}};
        EXPECT_EQ(LogOf(Solved(kToMixed, fraction)), expected);
    }
}

TEST(FractionToMixed, RefusesASmallerNumerator) {
    for (const std::string fraction : {"3/4", "0/5", "-7/2", "/2"}) {
        const Log expected{
            {"#" + fraction + "#", ""},
            {ToMixedHeading(fraction), kMixedIs},
            {"The numerator must be greater than the denominator to convert to mixed notation.",
             "If the numerator is not greater than the denominator, then the denominator can't "
             "divide into the numerator to form a whole number."}};
        EXPECT_EQ(LogOf(Solved(kToMixed, fraction)), expected);
    }
}

TEST(FractionToMixed, RefusesADenominatorOfZeroFirst) {
    for (const std::string fraction : {"7/0", "0/0", "-7/0", "7/"}) {
        const Log expected{{"#" + fraction + "#", ""},
                           {ToMixedHeading(fraction), kMixedIs},
                           {"This fraction isn't valid because division by zero is illegal.",
                            "It is mathematically impossible to divide any number by 0."}};
        EXPECT_EQ(LogOf(Solved(kToMixed, fraction)), expected);
    }
}

TEST(FractionToMixed, IsNotReducedAndRepeatsTheDenominatorAsTyped) {
    const std::pair<std::string, std::string> cases[] = {
        {"10/4", "2 #2/4#"},        {"007/02", "3 #1/02#"},         {"5/1", "5"},
        {"99999/2", "49999 #1/2#"}, {"99999/99998", "1 #1/99998#"}, {"99999/33333", "3"}};
    for (const auto& [fraction, result] : cases) {
        EXPECT_EQ(LogOf(Solved(kToMixed, fraction)).back().first, result);
    }
}

TEST(FractionToMixed, FailsBelowTheHeading) {
    for (const std::string text : {"7", "", "abc/2", "7/abc", "7/2/3", "--/2", "4%2/3"}) {
        ExpectFailure(ProblemOf(kToMixed, text), FailureKind::Format,
                      {{"#" + text + "#", ""}, {ToMixedHeading(text), kMixedIs}});
    }
}

TEST(MixedToFraction, AddsTheProductToTheNumerator) {
    const Log expected{
        {"2#1/2#", ""},
        {"To convert 2#1/2# from a mixed number to fractional notation:",
         "2#1/2# is the same as writing 2 + #1/2#."},
        {"Multiply the whole number by the denominator of the fraction:",
         "The whole number is the number on the left (without a denominator), and the fraction "
         "portion is on the right."},
        {"2 * 2 = 4", "Multiply."},
        {"Add the numerator of the fraction to the result:",
         "The numerator is the number on top in a fraction."},
        {"4 + 1 = 5", "Add."},
        {"Keep the denominator of the original fraction:",
         "The original fraction is the fraction in the original mixed number."},
        {"#5/2#", "This is mixed notation."},
        {"#5/2# simplified:",
         "To simplify a fraction, divide the numerator and denominator by the largest number that "
         "divides evenly into both."},
        {"Already simplified.",
         "There is no whole number that divides evenly into the numerator and denominator."}};
    EXPECT_EQ(LogOf(Solved(kToFraction, "2+1/2")), expected);
}

TEST(MixedToFraction, SimplifiesTheResult) {
    const Log log = LogOf(Solved(kToFraction, "2+2/4"));
    ASSERT_EQ(log.size(), 11U);
    EXPECT_EQ(log[3].first, "2 * 4 = 8");
    EXPECT_EQ(log[5].first, "8 + 2 = 10");
    EXPECT_EQ(log[7].first, "#10/4#");
    EXPECT_EQ(log[8].first, "#10/4# simplified:");
    EXPECT_EQ(log[9].first, "2 can be divided evenly into the numerator and denominator:");
    EXPECT_EQ(log[10], (std::pair<std::string, std::string>("#5/2#", "#10/4# simplified: #5/2#")));
}

TEST(MixedToFraction, EndsInLowestTerms) {
    const std::pair<std::string, std::string> cases[] = {{"1+2/2", "2"},
                                                         {"0+0/5", "0"},
                                                         {"3+0/4", "3"},
                                                         {"2+4/1", "6"},
                                                         {"007+1/2", "Already simplified."},
                                                         {"2+1/02", "#5/2#"},
                                                         {"99999+99999/99999", "100000"}};
    for (const auto& [mixed, result] : cases) {
        EXPECT_EQ(LogOf(Solved(kToFraction, mixed)).back().first, result);
    }
    EXPECT_EQ(LogOf(Solved(kToFraction, "007+1/2"))[3].first, "007 * 2 = 14");
    EXPECT_EQ(LogOf(Solved(kToFraction, "99999+99999/99999"))[5].first,
              "9999800001 + 99999 = 9999900000");
}

TEST(MixedToFraction, ANegativeWholeNumberIsWorkedAsTheSumItIs) {
    const Log log = LogOf(Solved(kToFraction, "-2+1/2"));
    ASSERT_EQ(log.size(), 10U);
    EXPECT_EQ(log[1].second, "-2#1/2# is the same as writing -2 + #1/2#.");
    EXPECT_EQ(log[3].first, "-2 * 2 = -4");
    EXPECT_EQ(log[5].first, "-4 + 1 = -3");
    EXPECT_EQ(log[7].first, "#-3/2#");
    EXPECT_EQ(log[9].first, "Already simplified.");
}

TEST(MixedToFraction, RefusesADenominatorOfZeroBeforeTheHeading) {
    for (const std::string fraction : {"1/0", "0/00", "1/"}) {
        const Log expected{{"3#" + fraction + "#", ""},
                           {"This is not valid because division by 0 is not allowed.",
                            "It is mathematically impossible to divide any number by 0."}};
        EXPECT_EQ(LogOf(Solved(kToFraction, "3+" + fraction)), expected);
    }
}

TEST(MixedToFraction, TakesOnePlusAndNoOther) {
    for (const std::string text : {"1/2", "2-1/2", "2+1/2+3", "", "abc"}) {
        ExpectFailure(ProblemOf(kToFraction, text), FailureKind::Format, {});
    }
}

TEST(MixedToFraction, FailsWhereTheNumberIsNeeded) {
    for (const std::string fraction : {"3", "1/abc", "1/2/3", "1/--"}) {
        ExpectFailure(ProblemOf(kToFraction, "2+" + fraction), FailureKind::Format,
                      {{"2#" + fraction + "#", ""}});
    }
    ExpectFailure(
        ProblemOf(kToFraction, "abc+1/2"), FailureKind::Format,
        {{"abc#1/2#", ""},
         {"To convert abc#1/2# from a mixed number to fractional notation:",
          "abc#1/2# is the same as writing abc + #1/2#."},
         {"Multiply the whole number by the denominator of the fraction:",
          "The whole number is the number on the left (without a denominator), and the fraction "
          "portion is on the right."}});
    Problem problem = ProblemOf(kToFraction, "2+4%2/5");
    EXPECT_EQ(FailureOf(problem), FailureKind::Format);
    const Log log = LogOf(problem);
    ASSERT_EQ(log.size(), 5U);
    EXPECT_EQ(log[3].first, "2 * 5 = 10");
    EXPECT_EQ(log[4].first, "Add the numerator of the fraction to the result:");
}

TEST(FractionToMixed, RandomFractionsAddUp) {
    const TypedTopic topic(kToMixed);
    Draws draws(kToMixed);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string a = (draws.Below(8) == 0 ? "-" : "") + draws.Digits(5);
        const std::string b = draws.Digits(4);
        const Log log = topic.LogFor(a + "/" + b);
        const std::int64_t top = std::stoll(a);
        const std::int64_t bottom = std::stoll(b);
        std::string last;
        if (bottom == 0) {
            last = "This fraction isn't valid because division by zero is illegal.";
        } else if (top == bottom) {
            last = "#" + a + "/" + b + "# = 1";
        } else if (top < bottom) {
            last =
                "The numerator must be greater than the denominator to convert to mixed notation.";
        } else {
            const std::string whole = std::to_string(top / bottom);
            const std::string rest = std::to_string(top % bottom);
            last = rest == "0" ? whole : whole + " #" + rest + "/" + b + "#";
        }
        EXPECT_EQ(log.back().first, last) << a << "/" << b;
    }
}

TEST(MixedToFraction, RandomMixedNumbersKeepTheirValue) {
    const TypedTopic topic(kToFraction);
    Draws draws(kToFraction);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string w = draws.Digits(5);
        const std::string a = draws.Digits(5);
        const std::string b = draws.Digits(draws.Below(2) == 0 ? 1 : 5);
        const Log log = topic.LogFor(w + "+" + a + "/" + b);
        const std::int64_t bottom = std::stoll(b);
        if (bottom == 0) {
            EXPECT_EQ(log.back().first, "This is not valid because division by 0 is not allowed.");
            continue;
        }
        const std::int64_t sum = std::stoll(w) * bottom + std::stoll(a);
        const std::string fraction = std::to_string(sum) + "/" + b;
        ASSERT_GE(log.size(), 10U);
        EXPECT_EQ(log[7].first, "#" + fraction + "#");
        EXPECT_EQ(log.back().first, SimplifiedLine(Rational(sum, bottom), fraction)) << fraction;
    }
}

}  // namespace
}  // namespace numerello
