#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kProportions = 20;

const std::pair<std::string, std::string> kCrossProducts{
    "Two fractions (ratios) are proportional if the cross products are equal.",
    "To find out if the cross products are equal, multiply the numerator of the first fraction by "
    "the denominator of the second fraction and determine if that amount is equal to multiplying "
    "the denominator of the first fraction by the numerator of the second fraction."};
const std::pair<std::string, std::string> kRefusal{"Division by 0 is not allowed.",
                                                   "It is impossible to divide any number by 0."};
const std::string kReplace =
    "Replace the value of x into the fraction to show the correct proportion.";

/// What the lines of one proportion say.
struct Worked {
    std::vector<std::string> boxes;
    std::string proportion;
    std::string product;
    std::string divided;
    std::string factor;
    std::string solution;
    std::string filled;
};

/// The unknown in each place, zeros among what is given, and no unknown at all.
const Worked kWorked[] = {{{"2", "", "4", "5"},
                           "#2/x# = #4/5#",
                           "2 * 5 = x * 4",
                           "#2 * 5/[4]# = #x * 4/[4]#",
                           "4",
                           "2.5 = x",
                           "#2/2.5# = #4/5#"},
                          {{"3", "4", "", "8"},
                           "#3/4# = #x/8#",
                           "3 * 8 = 4 * x",
                           "#3 * 8/[4]# = #4 * x/[4]#",
                           "4",
                           "6 = x",
                           "#3/4# = #6/8#"},
                          {{"3", "4", "6", ""},
                           "#3/4# = #6/x#",
                           "3 * x = 4 * 6",
                           "#3 * x/[3]# = #4 * 6/[3]#",
                           "3",
                           "x = 8",
                           "#3/4# = #6/8#"},
                          {{"", "-2", "03", "1.5"},
                           "#x/-2# = #03/1.5#",
                           "x * 1.5 = -2 * 03",
                           "#x * 1.5/[1.5]# = #-2 * 03/[1.5]#",
                           "1.5",
                           "x = -4",
                           "#-4/-2# = #03/1.5#"},
                          // No answer is rounded: 3 * 2 / 7.
                          {{"", "3", "2", "7"},
                           "#x/3# = #2/7#",
                           "x * 7 = 3 * 2",
                           "#x * 7/[7]# = #3 * 2/[7]#",
                           "7",
                           "x = 0.857142857142857",
                           "#0.857142857142857/3# = #2/7#"},
                          // A 0 over the unknown leaves it 0: kept as it is.
                          {{"0", "", "4", "5"},
                           "#0/x# = #4/5#",
                           "0 * 5 = x * 4",
                           "#0 * 5/[4]# = #x * 4/[4]#",
                           "4",
                           "0 = x",
                           "#0/0# = #4/5#"},
                          {{"3", "4", "0", ""},
                           "#3/4# = #0/x#",
                           "3 * x = 4 * 0",
                           "#3 * x/[3]# = #4 * 0/[3]#",
                           "3",
                           "x = 0",
                           "#3/4# = #0/0#"},
                          {{"", "5", "0", "7"},
                           "#x/5# = #0/7#",
                           "x * 7 = 5 * 0",
                           "#x * 7/[7]# = #5 * 0/[7]#",
                           "7",
                           "x = 0",
                           "#0/5# = #0/7#"},
                          // Without an empty box the last one is asked for.
                          {{"3", "4", "6", "9"},
                           "#3/4# = #6/x#",
                           "3 * x = 4 * 6",
                           "#3 * x/[3]# = #4 * 6/[3]#",
                           "3",
                           "x = 8",
                           "#3/4# = #6/8#"}};

Log LogUpToDivision(const Worked& worked) {
    return {{worked.proportion, ""},
            kCrossProducts,
            {worked.proportion, "Substitute known values."},
            {worked.product, "Cross multiply."},
            {worked.divided, "Divide both sides by " + worked.factor + "."}};
}

TEST(SolveProportion, TheUnknownOnTheLeft) {
    const Log expected{
        {"#x/2# = #3/6#", ""},
        {"Two fractions (ratios) are proportional if the cross products are equal.",
         "To find out if the cross products are equal, multiply the numerator of the first "
         "fraction by the denominator of the second fraction and determine if that amount is equal "
         "to multiplying the denominator of the first fraction by the numerator of the second "
         "fraction."},
        {"#x/2# = #3/6#", "Substitute known values."},
        {"x * 6 = 2 * 3", "Cross multiply."},
        {"#x * 6/[6]# = #2 * 3/[6]#", "Divide both sides by 6."},
        {"x = 1", "Solve for x."},
        {"#1/2# = #3/6#",
         "Replace the value of x into the fraction to show the correct proportion."}};
    EXPECT_EQ(BoxedLog(kProportions, {"", "2", "3", "6"}), expected);
}

TEST(SolveProportion, EveryPlaceOfTheUnknown) {
    for (const Worked& worked : kWorked) {
        SCOPED_TRACE(worked.proportion);
        Log expected = LogUpToDivision(worked);
        expected.emplace_back(worked.solution, "Solve for x.");
        expected.emplace_back(worked.filled, kReplace);
        for (const int RoundDigits : {1, 5}) {
            EXPECT_EQ(BoxedLog(kProportions, worked.boxes, RoundDigits), expected);
        }
    }
}

TEST(SolveProportion, RefusesAGivenDenominatorOfZero) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"", "0", "3", "6"}, "#x/0# = #3/6#"},   {{"", "2", "3", "0.0"}, "#x/2# = #3/0.0#"},
        {{"2", "", "4", "-0"}, "#2/x# = #4/-0#"}, {{"3", "00", "", "8"}, "#3/00# = #x/8#"},
        {{"3", "0", "6", ""}, "#3/0# = #6/x#"},   {{"0", "", "0", "0"}, "#0/x# = #0/0#"},
        {{"3", "4", "", "0"}, "#3/4# = #x/0#"}};
    for (const auto& [boxes, line] : cases) {
        EXPECT_EQ(BoxedLog(kProportions, boxes), (Log{{line, ""}, kRefusal}));
    }
}

TEST(SolveProportion, RefusesAFactorOfZeroBelowTheDivision) {
    const Worked cases[] = {{{"2", "", "0", "5"},
                             "#2/x# = #0/5#",
                             "2 * 5 = x * 0",
                             "#2 * 5/[0]# = #x * 0/[0]#",
                             "0",
                             "",
                             ""},
                            {{"0.0", "4", "6", ""},
                             "#0.0/4# = #6/x#",
                             "0.0 * x = 4 * 6",
                             "#0.0 * x/[0.0]# = #4 * 6/[0.0]#",
                             "0.0",
                             "",
                             ""}};
    for (const Worked& worked : cases) {
        Log expected = LogUpToDivision(worked);
        expected.push_back(kRefusal);
        EXPECT_EQ(BoxedLog(kProportions, worked.boxes), expected);
    }
}

TEST(SolveProportion, TextThatIsNoNumberFailsWhereItIsNeeded) {
    ExpectFailure(Boxed(kProportions, {"", "abc", "3", "6"}), FailureKind::Format,
                  {{"#x/abc# = #3/6#", ""}});
    ExpectFailure(Boxed(kProportions, {"2", "", "4", "--"}), FailureKind::Format,
                  {{"#2/x# = #4/--#", ""}});
    ExpectFailure(Boxed(kProportions, {"4%2", "4", "6", ""}), FailureKind::Format,
                  LogUpToDivision({{},
                                   "#4%2/4# = #6/x#",
                                   "4%2 * x = 4 * 6",
                                   "#4%2 * x/[4%2]# = #4 * 6/[4%2]#",
                                   "4%2",
                                   "",
                                   ""}));
    ExpectFailure(Boxed(kProportions, {"", "2", "1/2/3", "6"}), FailureKind::Format,
                  LogUpToDivision({{},
                                   "#x/2# = #1/2/3/6#",
                                   "x * 6 = 2 * 1/2/3",
                                   "#x * 6/[6]# = #2 * 1/2/3/[6]#",
                                   "6",
                                   "",
                                   ""}));
}

TEST(SolveProportion, AProductBeyondADoubleOverflows) {
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, Boxed(kProportions, {"", "1E200", "1E200", "6"})),
              LogUpToDivision({{},
                               "#x/1E200# = #1E200/6#",
                               "x * 6 = 1E200 * 1E200",
                               "#x * 6/[6]# = #1E200 * 1E200/[6]#",
                               "6",
                               "",
                               ""}));
}

TEST(SolveProportion, RandomProportionsHaveEqualCrossProducts) {
    const BoxedTopic topic(kProportions);
    Draws draws(kProportions);
    for (int i = 0; i < kRandomProblems; ++i) {
        std::vector<std::string> boxes(4);
        const auto unknown = static_cast<std::size_t>(draws.Below(4));
        for (std::size_t box = 0; box < boxes.size(); ++box) {
            boxes[box] = box == unknown ? ""
                                        : DrawBox(draws, draws.Below(8) == 0 ? 2 : 5,
                                                  box == 2 ? BoxMarks::Minus : BoxMarks::Both);
        }
        // A stands before D across, B before C.
        const std::size_t factor = 3 - unknown;
        const std::size_t one = unknown == 0 || unknown == 3 ? 1 : 0;
        const std::size_t other = 3 - one;
        const Log log = topic.LogFor(boxes, DrawRoundDigits(draws));
        const auto isZero = [&](std::size_t box) {
            return box != unknown && Rational::Of(boxes[box]) == 0;
        };
        if (isZero(1) || isZero(3) || isZero(factor)) {
            EXPECT_EQ(log.back(), kRefusal);
            EXPECT_EQ(log.size(), isZero(1) || isZero(3) ? 2U : 6U);
            continue;
        }
        ASSERT_EQ(log.size(), 7U);
        const bool onLeft = unknown == 0 || unknown == 3;
        const std::string& line = log[5].first;
        ExpectFifteenDigits(
            onLeft ? Between(line, "x = ") : Between(line, "", " = x"),
            Rational::Of(boxes[one]) * Rational::Of(boxes[other]) / Rational::Of(boxes[factor]));
    }
}

}  // namespace
}  // namespace numerello
