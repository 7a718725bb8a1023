#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kWork = 21;
constexpr int kDistance = 22;

const std::string kWorkFormula = "This is the formula for calculating work, rate, and time.";
const std::string kDistanceFormula =
    "This is the formula for calculating distance, speed, and time.";
const std::pair<std::string, std::string> kRefusal{"Division by 0 is illegal.",
                                                   "It is impossible to divide any number by 0."};

TEST(WorkRateTime, TheUnknownRate) {
    const Log expected{
        {"work = 10, rate = ?, time = 4", ""},
        {"work = rate * time", "This is the formula for calculating work, rate, and time."},
        {"10 = rate * 4", "Substitute the given values."},
        {"#10/4# = rate", "Divide both sides by time."},
        {"rate = 2.5", "Solve for rate."}};
    EXPECT_EQ(BoxedLog(kWork, {"10", "", "", "4"}), expected);
}

TEST(WorkRateTime, TheUnknownTime) {
    const Log expected{
        {"work = 10, rate = 4, time = ?", ""},
        {"work = rate * time", "This is the formula for calculating work, rate, and time."},
        {"10 = 4 * time", "Substitute the given values."},
        {"#10/4# = time", "Divide both sides by rate."},
        {"time = 2.5", "Solve for time."}};
    EXPECT_EQ(BoxedLog(kWork, {"10", "4"}), expected);
}

TEST(WorkRateTime, TheUnknownWork) {
    const Log expected{
        {"work = ?, rate = 2.5, time = 4", ""},
        {"work = rate * time", "This is the formula for calculating work, rate, and time."},
        {"work = 2.5 * 4", "Substitute the given values."},
        {"work = 10", "Solve for work by multiplying."}};
    EXPECT_EQ(BoxedLog(kWork, {"", "2.5", "", "4"}), expected);
}

TEST(DistanceSpeedTime, TheUnknownSpeed) {
    const Log expected{{"distance = 100, speed = ?, time = 8", ""},
                       {"distance = speed * time",
                        "This is the formula for calculating distance, speed, and time."},
                       {"100 = speed * 8", "Substitute the given values."},
                       {"#100/8# = speed", "Divide both sides by time."},
                       {"speed = 12.5", "Solve for speed."}};
    EXPECT_EQ(BoxedLog(kDistance, {"100", "", "", "8"}), expected);
}

TEST(DistanceSpeedTime, TheUnknownTime) {
    const Log expected{{"distance = 100, speed = 8, time = ?", ""},
                       {"distance = speed * time",
                        "This is the formula for calculating distance, speed, and time."},
                       {"100 = 8 * time", "Substitute the given values."},
                       {"#100/8# = time", "Divide both sides by speed."},
                       {"time = 12.5", "Solve for time."}};
    EXPECT_EQ(BoxedLog(kDistance, {"100", "8"}), expected);
}

TEST(DistanceSpeedTime, TheUnknownDistance) {
    const Log expected{{"distance = ?, speed = 12.5, time = 8", ""},
                       {"distance = speed * time",
                        "This is the formula for calculating distance, speed, and time."},
                       {"distance = 12.5 * 8", "Substitute the given values."},
                       {"distance = 100", "Solve for distance by multiplying."}};
    EXPECT_EQ(BoxedLog(kDistance, {"", "12.5", "", "8"}), expected);
}

TEST(Formulas, AQuotientIsRoundedByTheSetting) {
    const std::pair<int, std::string> cases[] = {
        {1, "0.1"}, {2, "0.14"}, {3, "0.143"}, {4, "0.1429"}, {5, "0.14286"}};
    for (const auto& [RoundDigits, seventh] : cases) {
        EXPECT_EQ(BoxedLog(kWork, {"1", "", "", "7"}, RoundDigits).back().first,
                  "rate = " + seventh);
        EXPECT_EQ(BoxedLog(kDistance, {"1", "7"}, RoundDigits).back().first, "time = " + seventh);
    }
    // Ties go to the even digit; a small negative one is not a minus zero.
    EXPECT_EQ(BoxedLog(kWork, {"1", "", "", "8"}).back().first, "rate = 0.12");
    EXPECT_EQ(BoxedLog(kDistance, {"3", "8"}).back().first, "time = 0.38");
    EXPECT_EQ(BoxedLog(kDistance, {"-1", "999"}).back().first, "time = 0");
}

TEST(Formulas, AProductIsNot) {
    EXPECT_EQ(BoxedLog(kWork, {"", "0.123", "", "0.5"}, 1).back().first, "work = 0.0615");
    EXPECT_EQ(BoxedLog(kDistance, {"", "1.23456", "", "-7"}, 1).back().first,
              "distance = -8.64192");
    EXPECT_EQ(BoxedLog(kWork, {"", "0", "", "7"}).back().first, "work = 0");
}

TEST(Formulas, RepeatTheNumbersAsTyped) {
    const Log log = BoxedLog(kWork, {"010", "", "", ".50"});
    EXPECT_EQ(log[0].first, "work = 010, rate = ?, time = .50");
    EXPECT_EQ(log[2].first, "010 = rate * .50");
    EXPECT_EQ(log[3].first, "#010/.50# = rate");
    EXPECT_EQ(log[4].first, "rate = 20");
}

TEST(Formulas, WithoutAnEmptyBoxTheTimeIsAskedFor) {
    EXPECT_EQ(BoxedLog(kWork, {"10", "4", "", "9"}), BoxedLog(kWork, {"10", "4"}));
    EXPECT_EQ(BoxedLog(kDistance, {"10", "4", "", "9"}), BoxedLog(kDistance, {"10", "4"}));
}

TEST(Formulas, RefuseToDivideByZeroBelowTheDivision) {
    EXPECT_EQ(BoxedLog(kWork, {"10", "", "", "0"}),
              (Log{{"work = 10, rate = ?, time = 0", ""},
                   {"work = rate * time", kWorkFormula},
                   {"10 = rate * 0", "Substitute the given values."},
                   {"#10/0# = rate", "Divide both sides by time."},
                   kRefusal}));
    EXPECT_EQ(BoxedLog(kWork, {"0", "0.0"}),
              (Log{{"work = 0, rate = 0.0, time = ?", ""},
                   {"work = rate * time", kWorkFormula},
                   {"0 = 0.0 * time", "Substitute the given values."},
                   {"#0/0.0# = time", "Divide both sides by rate."},
                   kRefusal}));
    EXPECT_EQ(BoxedLog(kDistance, {"10", "", "", "-0"}),
              (Log{{"distance = 10, speed = ?, time = -0", ""},
                   {"distance = speed * time", kDistanceFormula},
                   {"10 = speed * -0", "Substitute the given values."},
                   {"#10/-0# = speed", "Divide both sides by time."},
                   kRefusal}));
    EXPECT_EQ(BoxedLog(kDistance, {"10", "0"}),
              (Log{{"distance = 10, speed = 0, time = ?", ""},
                   {"distance = speed * time", kDistanceFormula},
                   {"10 = 0 * time", "Substitute the given values."},
                   {"#10/0# = time", "Divide both sides by speed."},
                   kRefusal}));
}

TEST(Formulas, TextThatIsNoNumberFailsWhereItIsNeeded) {
    ExpectFailure(Boxed(kWork, {"abc", "", "", "4"}), FailureKind::Format,
                  {{"work = abc, rate = ?, time = 4", ""},
                   {"work = rate * time", kWorkFormula},
                   {"abc = rate * 4", "Substitute the given values."},
                   {"#abc/4# = rate", "Divide both sides by time."}});
    ExpectFailure(Boxed(kDistance, {"10", "--"}), FailureKind::Format,
                  {{"distance = 10, speed = --, time = ?", ""},
                   {"distance = speed * time", kDistanceFormula},
                   {"10 = -- * time", "Substitute the given values."},
                   {"#10/--# = time", "Divide both sides by speed."}});
    ExpectFailure(Boxed(kDistance, {"", "4%2", "", "1/2/3"}), FailureKind::Format,
                  {{"distance = ?, speed = 4%2, time = 1/2/3", ""},
                   {"distance = speed * time", kDistanceFormula},
                   {"distance = 4%2 * 1/2/3", "Substitute the given values."}});
}

TEST(Formulas, BeyondADoubleTheyOverflow) {
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, Boxed(kWork, {"", "1E200", "", "1E200"})).size(), 3U);
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, Boxed(kWork, {"1E200", "1E-200"})).size(), 4U);
}

void ExpectRandomProducts(int code, const std::vector<std::string>& words) {
    const BoxedTopic topic(code);
    Draws draws(static_cast<std::uint32_t>(code));
    for (int i = 0; i < kRandomProblems; ++i) {
        std::vector<std::string> boxes{DrawBox(draws, 6), DrawBox(draws, 5), "",
                                       DrawBox(draws, draws.Below(8) == 0 ? 2 : 5)};
        const auto unknown = static_cast<std::size_t>(draws.Below(3));
        boxes[unknown == 2 ? 3 : unknown].clear();
        const int RoundDigits = DrawRoundDigits(draws);
        const Log log = topic.LogFor(boxes, RoundDigits);
        const Rational product = Rational::Of(boxes[0]);
        const Rational factor = Rational::Of(boxes[1]);
        const Rational time = Rational::Of(boxes[3]);
        const Rational& divisor = unknown == 1 ? time : factor;
        if (unknown != 0 && divisor == 0) {
            EXPECT_EQ(log.back(), kRefusal);
            continue;
        }
        const std::string value = Between(log.back().first, words[unknown] + " = ");
        if (unknown == 0) {
            ExpectFifteenDigits(value, factor * time);
        } else {
            ExpectRounded(value, product / divisor, RoundDigits);
        }
    }
}

TEST(Formulas, TheMissingPartOfRandomProblemsIsExact) {
    ExpectRandomProducts(kWork, {"work", "rate", "time"});
    ExpectRandomProducts(kDistance, {"distance", "speed", "time"});
}

}  // namespace
}  // namespace numerello
