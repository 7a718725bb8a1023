#include "topics/areas.h"

#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kRectangle = 6;
constexpr int kCircle = 7;
constexpr int kTriangle = 8;
constexpr int kParallelogram = 9;
constexpr int kTrapezoid = 10;

const std::string kMultiply = "Calculate the answer by multiplying.";
const std::pair<std::string, std::string> kSides{
    "All sides must be greater than zero.",
    "It is impossible to have a side less than or equal to 0."};

/// The base stands in Text2, the height in Text1.
Problem BaseAndHeight(int code, const std::string& b, const std::string& h, int RoundDigits = 2) {
    return Boxed(code, {h, b}, RoundDigits);
}

Problem Circle(const std::string& r, int RoundDigits = 2) {
    return Boxed(kCircle, {"", r}, RoundDigits);
}

/// The height stands in Text2, a in Text1, b in Text3.
Problem Trapezoid(const std::string& h, const std::string& a, const std::string& b,
                  int RoundDigits = 2) {
    return Boxed(kTrapezoid, {a, h, b}, RoundDigits);
}

TEST(AreaOf, RectangleAndParallelogramFollowTheirFormula) {
    const Log expected{
        {"base = 3, height = 4.5", ""},
        {"Area = base * height",
         "This is the formula for calculating the area of a square/rectangle, and parallelogram."},
        {"Area = 3 * 4.5", "Substitute the base and height of the shape into the formula."},
        {"Area = 13.5", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(BaseAndHeight(kRectangle, "3", "4.5"))), expected);
    EXPECT_EQ(LogOf(Solved(BaseAndHeight(kParallelogram, "3", "4.5"))), expected);
}

TEST(AreaOf, RectangleAndParallelogramTakeAnyMeasure) {
    const std::vector<std::vector<std::string>> cases{{"-3", "4", "-12"},
                                                      {"0", "4", "0"},
                                                      {"-3", "-4", "12"},
                                                      {"3", "-0.001", "0"},
                                                      {"", "4", "0"}};
    for (const int code : {kRectangle, kParallelogram}) {
        for (const auto& each : cases) {
            const Log log = LogOf(Solved(BaseAndHeight(code, each[0], each[1])));
            ASSERT_EQ(log.size(), 4U);
            EXPECT_EQ(log[2].first, "Area = " + each[0] + " * " + each[1]);
            EXPECT_EQ(log[3].first, "Area = " + each[2]);
        }
    }
}

TEST(AreaOf, ACircleFollowsItsFormula) {
    // 3.1415926 * 9 = 28.2743334
    const Log expected{
        {"radius = 3", ""},
        {"Area = ` * radius^2^   (` equals about 3.14 or about #22/7#)",
         "This is the formula for calculating the area of a circle."},
        {"Area = 3.1415926 * 3^2^", "Substitute the value of pi and the radius into the formula."},
        {"Area = 28.27", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(Circle("3"))), expected);
}

TEST(AreaOf, PiOfTheFormulaFollowsTheSettingThatOfTheArithmeticStays) {
    struct Case {
        int RoundDigits;
        std::string pi;
        std::string area;
    };
    const Case cases[] = {{1, "3.1", "28.3"},
                          {2, "3.14", "28.27"},
                          {3, "3.142", "28.274"},
                          {4, "3.1416", "28.2743"},
                          {5, "3.14159", "28.27433"}};
    for (const auto& [RoundDigits, pi, area] : cases) {
        const Log log = LogOf(Solved(Circle("3", RoundDigits)));
        EXPECT_EQ(log[1].first,
                  "Area = ` * radius^2^   (` equals about " + pi + " or about #22/7#)");
        EXPECT_EQ(log[2].first, "Area = 3.1415926 * 3^2^");
        EXPECT_EQ(log[3].first, "Area = " + area);
    }
}

TEST(AreaOf, ATriangleFollowsItsFormula) {
    const Log expected{{"base = 3, height = 4.5", ""},
                       {"Area = #1/2# * base * height",
                        "This is the formula for calculating the area of a triangle."},
                       {"Area = #1/2# * 3 * 4.5",
                        "Substitute the base and height of the triangle into the formula."},
                       {"Area = 6.75", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(BaseAndHeight(kTriangle, "3", "4.5"))), expected);
}

TEST(AreaOf, ATrapezoidFollowsItsFormula) {
    const Log expected{{"height = 3, a = 4.5, b = 5", ""},
                       {"Area = #1/2# * height * (a + b)",
                        "This is the formula for calculating the area of a trapezoid."},
                       {"Area = #1/2# * 3 * (4.5 + 5)",
                        "Substitute the values of a, b, and height into the formula."},
                       {"Area = 14.25", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(Trapezoid("3", "4.5", "5"))), expected);
}

TEST(AreaOf, ResultsAreRoundedByTheSetting) {
    // 1.5 * 0.75 / 2 = 0.5625, and 1.5 * 0.75 = 1.125
    const std::string halves[] = {"0.6", "0.56", "0.562", "0.5625", "0.5625"};
    const std::string wholes[] = {"1.1", "1.12", "1.125", "1.125", "1.125"};
    for (std::size_t i = 0; i < 5; ++i) {
        const int RoundDigits = static_cast<int>(i) + 1;
        EXPECT_EQ(LogOf(Solved(BaseAndHeight(kTriangle, "1.5", "0.75", RoundDigits))).back().first,
                  "Area = " + halves[i]);
        EXPECT_EQ(LogOf(Solved(Trapezoid("1.5", "0.25", ".5", RoundDigits))).back().first,
                  "Area = " + halves[i]);
        EXPECT_EQ(LogOf(Solved(BaseAndHeight(kRectangle, "1.5", "0.75", RoundDigits))).back().first,
                  "Area = " + wholes[i]);
    }
}

TEST(AreaOf, RefusesMeasuresOfZeroOrLess) {
    for (const std::string bad : {"0", "0.00", "-0", "-3", ""}) {
        EXPECT_EQ(LogOf(Solved(Circle(bad))),
                  (Log{{"radius = " + bad, ""},
                       {"The radius must be greater than zero.",
                        "It is impossible to have a radius less than or equal to 0."}}));
        EXPECT_EQ(LogOf(Solved(BaseAndHeight(kTriangle, bad, "4"))),
                  (Log{{"base = " + bad + ", height = 4", ""}, kSides}));
        EXPECT_EQ(LogOf(Solved(BaseAndHeight(kTriangle, "3", bad))),
                  (Log{{"base = 3, height = " + bad, ""}, kSides}));
        EXPECT_EQ(LogOf(Solved(Trapezoid(bad, "4", "5"))),
                  (Log{{"height = " + bad + ", a = 4, b = 5", ""}, kSides}));
        EXPECT_EQ(LogOf(Solved(Trapezoid("3", bad, "5"))),
                  (Log{{"height = 3, a = " + bad + ", b = 5", ""}, kSides}));
        EXPECT_EQ(LogOf(Solved(Trapezoid("3", "4", bad))),
                  (Log{{"height = 3, a = 4, b = " + bad, ""}, kSides}));
    }
}

TEST(AreaOf, TextThatIsNoNumberFailsWhereItIsChecked) {
    for (const std::string text : {"abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(Circle(text), FailureKind::Format, {{"radius = " + text, ""}});
        ExpectFailure(BaseAndHeight(kTriangle, "3", text), FailureKind::Format,
                      {{"base = 3, height = " + text, ""}});
        ExpectFailure(Trapezoid("3", "4", text), FailureKind::Format,
                      {{"height = 3, a = 4, b = " + text, ""}});
    }
}

TEST(AreaOf, WithoutACheckTextThatIsNoNumberFailsAtTheResult) {
    for (const int code : {kRectangle, kParallelogram}) {
        ExpectFailure(
            BaseAndHeight(code, "abc", "4"), FailureKind::Format,
            {{"base = abc, height = 4", ""},
             {"Area = base * height",
              "This is the formula for calculating the area of a square/rectangle, and "
              "parallelogram."},
             {"Area = abc * 4", "Substitute the base and height of the shape into the formula."}});
    }
}

TEST(AreaOf, BeyondADoubleItOverflowsAtTheResult) {
    const Problem problems[] = {BaseAndHeight(kRectangle, "1E200", "1E200"), Circle("1E200"),
                                BaseAndHeight(kTriangle, "1E200", "1E200"),
                                Trapezoid("1E200", "1E200", "1")};
    for (const Problem& problem : problems) {
        EXPECT_EQ(LogUpTo(FailureKind::Overflow, problem).size(), 3U);
    }
}

TEST(AreaOf, AnotherCodeHasNoArea) {
    Problem problem;
    EXPECT_THROW(AreaOf(problem, problem.boxes, 11), Failure);
}

TEST(AreaOf, RandomBasesAndHeightsAreMultiplied) {
    const std::pair<int, Rational> topics[] = {
        {kRectangle, 1}, {kParallelogram, 1}, {kTriangle, Rational(1, 2)}};
    for (const auto& [code, factor] : topics) {
        const BoxedTopic topic(code);
        Draws draws(static_cast<std::uint32_t>(code));
        for (int i = 0; i < kRandomProblems; ++i) {
            const std::string b = DrawBox(draws, 6);
            const std::string h = DrawBox(draws, 6);
            const int RoundDigits = DrawRoundDigits(draws);
            const Log log = topic.LogFor({h, b}, RoundDigits);
            const Rational base = Rational::Of(b);
            const Rational height = Rational::Of(h);
            if (code == kTriangle && (base <= 0 || height <= 0)) {
                EXPECT_EQ(log.back(), kSides);
                continue;
            }
            ExpectRounded(Between(log.back().first, "Area = "), base * height * factor,
                          RoundDigits);
        }
    }
}

TEST(AreaOf, RandomCirclesHavePiTimesTheSquareOfTheirRadius) {
    const BoxedTopic topic(kCircle);
    Draws draws(kCircle);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string r = DrawBox(draws, draws.Below(4) == 0 ? 6 : 4);
        const int RoundDigits = DrawRoundDigits(draws);
        const Log log = topic.LogFor({"", r}, RoundDigits);
        const Rational radius = Rational::Of(r);
        if (radius <= 0) {
            EXPECT_EQ(log.back().first, "The radius must be greater than zero.");
            continue;
        }
        ExpectRounded(Between(log.back().first, "Area = "),
                      Rational::Of("3.1415926") * radius * radius, RoundDigits);
    }
}

TEST(AreaOf, RandomTrapezoidsHaveTheirHeightTimesTheirMeanSide) {
    const BoxedTopic topic(kTrapezoid);
    Draws draws(kTrapezoid);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string h = DrawBox(draws, 6);
        const std::string a = DrawBox(draws, 6);
        const std::string b = DrawBox(draws, 6, BoxMarks::Minus);
        const int RoundDigits = DrawRoundDigits(draws);
        const Log log = topic.LogFor({a, h, b}, RoundDigits);
        const Rational height = Rational::Of(h);
        const Rational sides[] = {Rational::Of(a), Rational::Of(b)};
        if (height <= 0 || sides[0] <= 0 || sides[1] <= 0) {
            EXPECT_EQ(log.back(), kSides);
            continue;
        }
        ExpectRounded(Between(log.back().first, "Area = "), height * (sides[0] + sides[1]) / 2,
                      RoundDigits);
    }
}

}  // namespace
}  // namespace numerello
