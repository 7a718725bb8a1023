#include "topics/comparing.h"
#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kComparing = 90;

TEST(CompareNumbers, Greater) {
    const Log expected{{"5 ? 3", ""},
                       {"5 > 3",
                        "5 is greater than 3 because 5 appears further right on a number line "
                        "than 3."}};
    EXPECT_EQ(LogOf(Solved(kComparing, "5,3")), expected);
}

TEST(CompareNumbers, Equal) {
    const Log expected{
        {"3 ? 3", ""},
        {"3 = 3", "3 equals 3 because they both appear at the same location on a number line."}};
    EXPECT_EQ(LogOf(Solved(kComparing, "3,3")), expected);
}

TEST(CompareNumbers, Less) {
    const Log expected{{"-2 ? 4", ""},
                       {"-2 < 4",
                        "-2 is less than 4 because -2 appears further left on a number line than "
                        "4."}};
    EXPECT_EQ(LogOf(Solved(kComparing, "-2,4")), expected);
}

TEST(CompareNumbers, BothNegative) {
    EXPECT_EQ(LogOf(Solved(kComparing, "-5,-3"))[1].first, "-5 < -3");
    EXPECT_EQ(LogOf(Solved(kComparing, "-3,-5"))[1].first, "-3 > -5");
    EXPECT_EQ(LogOf(Solved(kComparing, "-3,-3"))[1].first, "-3 = -3");
}

TEST(CompareNumbers, TheNumbersAreWrittenByTheirValue) {
    EXPECT_EQ(LogOf(Solved(kComparing, "007,7"))[0].first, "7 ? 7");
    EXPECT_EQ(LogOf(Solved(kComparing, "-0,0"))[1].first, "0 = 0");
    EXPECT_EQ(LogOf(Solved(kComparing, "-0,5"))[1].first, "0 < 5");
    EXPECT_EQ(LogOf(Solved(kComparing, "99999999,-99999999"))[1].first, "99999999 > -99999999");
}

TEST(CompareNumbers, TakesDecimalsAsItsNumbersAreDoubles) {
    Problem problem;
    CompareNumbers(problem, -0.5, -1.25);
    const Log expected{{"-0.5 ? -1.25", ""},
                       {"-0.5 > -1.25",
                        "-0.5 is greater than -1.25 because -0.5 appears further right on a "
                        "number line than -1.25."}};
    EXPECT_EQ(LogOf(problem), expected);
}

TEST(CompareNumbers, AsksForItsNumberLine) {
    const Problem problem = Solved(kComparing, "4,-2");
    ASSERT_TRUE(problem.playback.NumberLine.has_value());
    EXPECT_EQ(problem.playback.NumberLine->A, 4);
    EXPECT_EQ(problem.playback.NumberLine->B, -2);
}

TEST(CompareNumbers, AMissingNumberFailsBeforeTheFirstLine) {
    for (const char* line : {"3,", ",3", "3", "-,4", "4,-", "", ","}) {
        Problem problem = ProblemOf(kComparing, line);
        EXPECT_EQ(FailureOf(problem), FailureKind::Format) << line;
        EXPECT_EQ(LogOf(problem), Log()) << line;
        EXPECT_FALSE(problem.playback.NumberLine.has_value()) << line;
    }
}

TEST(CompareNumbers, RandomPairsStandInTheOrderOfTheirValues) {
    const TypedTopic topic(kComparing);
    Draws draws(90);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string left = (draws.Below(2) == 0 ? "-" : "") + draws.Digits(8);
        const std::string right =
            draws.Below(8) == 0 ? left : (draws.Below(2) == 0 ? "-" : "") + draws.Digits(8);
        const std::int64_t A = std::stoll(left);
        const std::int64_t B = std::stoll(right);
        const std::string a = std::to_string(A);
        const std::string b = std::to_string(B);
        std::pair<std::string, std::string> answer;
        if (A == B) {
            answer = {a + " = " + b, a + " equals " + b +
                                         " because they both appear at the same location on a "
                                         "number line."};
        } else if (A > B) {
            answer = {a + " > " + b, a + " is greater than " + b + " because " + a +
                                         " appears further right on a number line than " + b + "."};
        } else {
            answer = {a + " < " + b, a + " is less than " + b + " because " + a +
                                         " appears further left on a number line than " + b + "."};
        }
        EXPECT_EQ(topic.LogFor(left + "," + right), (Log{{a + " ? " + b, ""}, answer}));
    }
}

}  // namespace
}  // namespace numerello
