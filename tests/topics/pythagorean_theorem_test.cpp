#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kPythagoras = 12;

const std::pair<std::string, std::string> kTheorem{
    "a^2^ + b^2^ = c^2^",
    "This is the Pythagorean Theorem, used to calculate the lengths of the sides of right "
    "triangles."};
const std::string kSubstitute = "Substitute the given values.";
const std::pair<std::string, std::string> kAboveZero{
    "All sides of a triangle must be greater than zero.",
    "It is impossible for a triangle to have a side less than or equal to 0."};
const std::pair<std::string, std::string> kLongest{
    "Side c must be the longest side in a right triangle.",
    "If side c is not longer than side a and b in a right triangle, it would not be able to "
    "connect to side a and b."};

/// a stands in Text4, b in Text2, c in Text1.
Problem Sides(const std::string& a, const std::string& b, const std::string& c,
              int RoundDigits = 2) {
    return Boxed(kPythagoras, {c, b, "", a}, RoundDigits);
}

TEST(PythagoreanTheorem, TheUnknownC) {
    const Log expected{
        {"a = 3, b = 4, c = ?", ""},
        {"a^2^ + b^2^ = c^2^",
         "This is the Pythagorean Theorem, used to calculate the lengths of the sides of right "
         "triangles."},
        {"3^2^ + 4^2^ = c^2^", "Substitute the given values."},
        {"9 + 16 = c^2^", "Calculate 3^2^ and 4^2^."},
        {"25 = c^2^", "Add 9 and 16."},
        {"5 = c", "Take the square root of both sides."}};
    EXPECT_EQ(LogOf(Solved(Sides("3", "4", ""))), expected);
}

TEST(PythagoreanTheorem, ShowsNoNoiseOfSubtracting) {
    // 10.1^2 = 102.01, less 100 is 2.01, whose root is 1.4177...
    const Log log = LogOf(Solved(Sides("10", "", "10.1")));
    EXPECT_EQ(log[3].first, "100 + b^2^ = 102.01");
    EXPECT_EQ(log[4].first, "b^2^ = 2.01");
    EXPECT_EQ(log[5].first, "b = 1.42");
}

TEST(PythagoreanTheorem, TheUnknownB) {
    const Log expected{
        {"a = 5, b = ?, c = 13", ""},
        {"a^2^ + b^2^ = c^2^",
         "This is the Pythagorean Theorem, used to calculate the lengths of the sides of right "
         "triangles."},
        {"5^2^ + b^2^ = 13^2^", "Substitute the given values."},
        {"25 + b^2^ = 169", "Calculate 5^2^ and 13^2^."},
        {"b^2^ = 144", "Subtract 25 from both sides."},
        {"b = 12", "Take the square root of both sides."}};
    EXPECT_EQ(LogOf(Solved(Sides("5", "", "13"))), expected);
}

TEST(PythagoreanTheorem, TheUnknownA) {
    const Log expected{
        {"a = ?, b = 5, c = 13", ""},
        {"a^2^ + b^2^ = c^2^",
         "This is the Pythagorean Theorem, used to calculate the lengths of the sides of right "
         "triangles."},
        {"a^2^ + 5^2^ = 13^2^", "Substitute the given values."},
        {"a^2^ + 25 = 169", "Calculate 5^2^ and 13^2^."},
        {"a^2^ = 144", "Subtract 25 from both sides."},
        {"a = 12", "Take the square root of both sides."}};
    EXPECT_EQ(LogOf(Solved(Sides("", "5", "13"))), expected);
}

TEST(PythagoreanTheorem, OnlyTheRootIsRounded) {
    const std::string roots[] = {"1.3", "1.35", "1.346", "1.3463", "1.34629"};
    for (std::size_t i = 0; i < 5; ++i) {
        const Log log = LogOf(Solved(Sides("1.25", ".50", "", static_cast<int>(i) + 1)));
        ASSERT_EQ(log.size(), 6U);
        EXPECT_EQ(log[3], (std::pair<std::string, std::string>("1.5625 + 0.25 = c^2^",
                                                               "Calculate 1.25^2^ and .50^2^.")));
        EXPECT_EQ(log[4],
                  (std::pair<std::string, std::string>("1.8125 = c^2^", "Add 1.5625 and 0.25.")));
        EXPECT_EQ(log[5].first, roots[i] + " = c");
    }
    // 2.25 - 1.5625 = 0.6875, whose root is 0.829156...
    const Log leg = LogOf(Solved(Sides("1.25", "", "1.5", 1)));
    EXPECT_EQ(leg[3].first, "1.5625 + b^2^ = 2.25");
    EXPECT_EQ(leg[4].first, "b^2^ = 0.6875");
    EXPECT_EQ(leg[5].first, "b = 0.8");
}

TEST(PythagoreanTheorem, TheRootOfTwo) {
    const std::string roots[] = {"1.4", "1.41", "1.414", "1.4142", "1.41421"};
    for (std::size_t i = 0; i < 5; ++i) {
        const int RoundDigits = static_cast<int>(i) + 1;
        EXPECT_EQ(LogOf(Solved(Sides("1", "1", "", RoundDigits))).back().first, roots[i] + " = c");
        // 2.25 - 0.25 is 2 as well.
        EXPECT_EQ(LogOf(Solved(Sides("", "0.5", "1.5", RoundDigits))).back().first,
                  "a = " + roots[i]);
    }
}

TEST(PythagoreanTheorem, AnEqualLongestSideLeavesNothing) {
    const Log expected{{"a = 5, b = ?, c = 5.0", ""},
                       kTheorem,
                       {"5^2^ + b^2^ = 5.0^2^", kSubstitute},
                       {"25 + b^2^ = 25", "Calculate 5^2^ and 5.0^2^."},
                       {"b^2^ = 0", "Subtract 25 from both sides."},
                       {"b = 0", "Take the square root of both sides."}};
    EXPECT_EQ(LogOf(Solved(Sides("5", "", "5.0"))), expected);
    EXPECT_EQ(LogOf(Solved(Sides("", "5", "5"))).back().first, "a = 0");
}

TEST(PythagoreanTheorem, RefusesALongestSideBelowTheOther) {
    const std::pair<std::string, std::string> cases[] = {
        {"5", "4.99"}, {"0", "5"}, {"-3", "5"}, {"3", "0"}, {"3", "-5"}, {"-5", "-3"}, {"0", "0"}};
    for (const auto& [leg, c] : cases) {
        EXPECT_EQ(LogOf(Solved(Sides(leg, "", c))),
                  (Log{{"a = " + leg + ", b = ?, c = " + c, ""},
                       kTheorem,
                       {leg + "^2^ + b^2^ = " + c + "^2^", kSubstitute},
                       kLongest}));
        EXPECT_EQ(LogOf(Solved(Sides("", leg, c))),
                  (Log{{"a = ?, b = " + leg + ", c = " + c, ""},
                       kTheorem,
                       {"a^2^ + " + leg + "^2^ = " + c + "^2^", kSubstitute},
                       kLongest}));
    }
}

TEST(PythagoreanTheorem, RefusesLegsOfZeroOrLess) {
    const std::pair<std::string, std::string> cases[] = {
        {"0", "4"}, {"3", "0.0"}, {"-3", "4"}, {"3", "-4"}, {"-0", "4"}};
    for (const auto& [a, b] : cases) {
        EXPECT_EQ(LogOf(Solved(Sides(a, b, ""))),
                  (Log{{"a = " + a + ", b = " + b + ", c = ?", ""},
                       kTheorem,
                       {a + "^2^ + " + b + "^2^ = c^2^", kSubstitute},
                       kAboveZero}));
    }
}

TEST(PythagoreanTheorem, WithoutAnUnknownItEndsAtTheSubstitution) {
    EXPECT_EQ(LogOf(Solved(Sides("3", "4", "5"))),
              (Log{{"a = 3, b = 4, c = 5", ""}, kTheorem, {"3^2^ + 4^2^ = 5^2^", kSubstitute}}));
}

TEST(PythagoreanTheorem, TextThatIsNoNumberFailsBelowTheSubstitution) {
    for (const std::string text : {"abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(Sides(text, "4", ""), FailureKind::Format,
                      {{"a = " + text + ", b = 4, c = ?", ""},
                       kTheorem,
                       {text + "^2^ + 4^2^ = c^2^", kSubstitute}});
        ExpectFailure(Sides("3", "", text), FailureKind::Format,
                      {{"a = 3, b = ?, c = " + text, ""},
                       kTheorem,
                       {"3^2^ + b^2^ = " + text + "^2^", kSubstitute}});
        ExpectFailure(Sides("", text, "5"), FailureKind::Format,
                      {{"a = ?, b = " + text + ", c = 5", ""},
                       kTheorem,
                       {"a^2^ + " + text + "^2^ = 5^2^", kSubstitute}});
    }
}

TEST(PythagoreanTheorem, ASquareBeyondADoubleOverflows) {
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, Sides("1E200", "1", "")).size(), 3U);
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, Sides("", "1", "1E200")).size(), 3U);
}

/// That the text is a root of the square, rounded to so many places.
void ExpectRoot(const std::string& shown, const Rational& square, int places) {
    std::int64_t scale = 1;
    for (int i = 0; i < places; ++i) {
        scale *= 10;
    }
    const Rational root = Rational::Of(shown);
    const Rational half(1, 2 * scale);
    EXPECT_TRUE((root * scale).Denominator() == 1) << shown;
    EXPECT_TRUE(square <= (root + half) * (root + half)) << shown;
    EXPECT_TRUE(root <= half || (root - half) * (root - half) <= square) << shown;
}

TEST(PythagoreanTheorem, TheThirdOfRandomSidesIsTheRoundedRoot) {
    const BoxedTopic topic(kPythagoras);
    Draws draws(kPythagoras);
    for (int i = 0; i < kRandomProblems; ++i) {
        std::vector<std::string> sides{DrawBox(draws, 5), DrawBox(draws, 5), DrawBox(draws, 6)};
        const auto unknown = static_cast<std::size_t>(draws.Below(3));
        sides[unknown].clear();
        const int RoundDigits = DrawRoundDigits(draws);
        const Log log = topic.LogFor({sides[2], sides[1], "", sides[0]}, RoundDigits);
        const Rational one = Rational::Of(sides[unknown == 0 ? 1 : 0]);
        const Rational other = Rational::Of(sides[unknown == 2 ? 1 : 2]);
        if (unknown == 2 && (one <= 0 || other <= 0)) {
            EXPECT_EQ(log.back(), kAboveZero);
        } else if (unknown != 2 && (one <= 0 || other <= 0 || other < one)) {
            EXPECT_EQ(log.back(), kLongest);
        } else if (unknown == 2) {
            const Rational square = one * one + other * other;
            ExpectFifteenDigits(Between(log[4].first, "", " = c^2^"), square);
            ExpectRoot(Between(log[5].first, "", " = c"), square, RoundDigits);
        } else {
            const std::string letter = unknown == 0 ? "a" : "b";
            const Rational square = other * other - one * one;
            ExpectRoot(Between(log[5].first, letter + " = "), square, RoundDigits);
        }
    }
}

}  // namespace
}  // namespace numerello
