#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kAmountOfBase = 14;

const std::string kFormula =
    "This is the formula for calculating the amount, base, or percent of a number.";
const std::string kSubstitute = "Substitute given values into the equation.";
const std::pair<std::string, std::string> kAsProportion{"#N/100# = #amount/base#",
                                                        "Written as a proportion."};
const std::pair<std::string, std::string> kRefusal{"Division by 0 is not allowed.",
                                                   "It is impossible to divide any number by 0."};

TEST(AmountOfBase, TheUnknownN) {
    const Log expected{
        {"amount = 10, N = ?, base = 50", ""},
        {"10 = N% of 50",
         "This is the formula for calculating the amount, base, or percent of a number."},
        {"#N/100# = #amount/base#", "Written as a proportion."},
        {"#N/100# = #10/50#", "Substitute given values into the equation."},
        {"#N/100# [* 100] = #10/50# [* 100]", "Multiply both sides by 100."},
        {"N = 20%", "Solve for N."}};
    EXPECT_EQ(BoxedLog(kAmountOfBase, {"10", "", "", "50"}), expected);
}

TEST(AmountOfBase, TheUnknownAmount) {
    const Log expected{
        {"amount = ?, N = 20, base = 50", ""},
        {"amount = 20% of 50",
         "This is the formula for calculating the amount, base, or percent of a number."},
        {"#N/100# = #amount/base#", "Written as a proportion."},
        {"#20/100# = #amount/50#", "Substitute given values into the equation."},
        {"#20/100# [* 50] = #amount / 50# [* 50]", "Multiply both sides by 50."},
        {"10 = amount", "Solve for amount."}};
    EXPECT_EQ(BoxedLog(kAmountOfBase, {"", "20", "", "50"}), expected);
}

TEST(AmountOfBase, TheUnknownBase) {
    const Log expected{
        {"amount = 10, N = 20, base = ?", ""},
        {"10 = 20% of base",
         "This is the formula for calculating the amount, base, or percent of a number."},
        {"#N/100# = #amount/base#", "Written as a proportion."},
        {"#20/100# = #10/base#", "Substitute given values into the equation."},
        {"#20 * base/[20]# = #100 * 10/[20]#", "Divide both sides by 20."},
        {"base = 50", "Solve for base."}};
    EXPECT_EQ(BoxedLog(kAmountOfBase, {"10", "20"}), expected);
}

TEST(AmountOfBase, WithoutAnEmptyBoxTheBaseIsAskedFor) {
    EXPECT_EQ(BoxedLog(kAmountOfBase, {"10", "20", "", "999"}),
              BoxedLog(kAmountOfBase, {"10", "20"}));
}

TEST(AmountOfBase, NothingIsRounded) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"1", "", "", "3"}, "N = 33.3333333333333%"},
        {{"2", "", "", "-3"}, "N = -66.6666666666667%"},
        {{"0", "", "", "3"}, "N = 0%"},
        {{"", "12.5", "", "0.5"}, "0.0625 = amount"},
        {{"", "0", "", "50"}, "0 = amount"},
        {{"", "20", "", "0"}, "0 = amount"},
        {{"", "-5", "", "10"}, "-0.5 = amount"},
        {{"1", "3", "", ""}, "base = 33.3333333333333"},
        {{"0", "3", "", ""}, "base = 0"},
        {{"-7", "0.5", "", ""}, "base = -1400"}};
    for (const auto& [boxes, line] : cases) {
        EXPECT_EQ(BoxedLog(kAmountOfBase, boxes, 1).back().first, line);
        EXPECT_EQ(BoxedLog(kAmountOfBase, boxes, 5).back().first, line);
    }
}

TEST(AmountOfBase, RepeatsTheNumbersAsTyped) {
    const Log log = BoxedLog(kAmountOfBase, {"010", "", "", ".50"});
    EXPECT_EQ(log[0].first, "amount = 010, N = ?, base = .50");
    EXPECT_EQ(log[1].first, "010 = N% of .50");
    EXPECT_EQ(log[3].first, "#N/100# = #010/.50#");
    EXPECT_EQ(log[5].first, "N = 2000%");
}

TEST(AmountOfBase, RefusesABaseOfZero) {
    const Log expected{{"amount = 10, N = ?, base = 0.0", ""},
                       {"10 = N% of 0.0", kFormula},
                       kAsProportion,
                       {"#N/100# = #10/0.0#", kSubstitute},
                       {"#N/100# [* 100] = #10/0.0# [* 100]", "Multiply both sides by 100."},
                       kRefusal};
    EXPECT_EQ(BoxedLog(kAmountOfBase, {"10", "", "", "0.0"}), expected);
}

TEST(AmountOfBase, RefusesToDivideByNoPercent) {
    const Log expected{{"amount = 10, N = 0, base = ?", ""},
                       {"10 = 0% of base", kFormula},
                       kAsProportion,
                       {"#0/100# = #10/base#", kSubstitute},
                       {"#0 * base/[0]# = #100 * 10/[0]#", "Divide both sides by 0."},
                       kRefusal};
    EXPECT_EQ(BoxedLog(kAmountOfBase, {"10", "0"}), expected);
}

TEST(AmountOfBase, FailsBelowTheLastEquation) {
    ExpectFailure(Boxed(kAmountOfBase, {"abc", "", "", "50"}), FailureKind::Format,
                  {{"amount = abc, N = ?, base = 50", ""},
                   {"abc = N% of 50", kFormula},
                   kAsProportion,
                   {"#N/100# = #abc/50#", kSubstitute},
                   {"#N/100# [* 100] = #abc/50# [* 100]", "Multiply both sides by 100."}});
    ExpectFailure(Boxed(kAmountOfBase, {"", "4%2", "", "50"}), FailureKind::Format,
                  {{"amount = ?, N = 4%2, base = 50", ""},
                   {"amount = 4%2% of 50", kFormula},
                   kAsProportion,
                   {"#4%2/100# = #amount/50#", kSubstitute},
                   {"#4%2/100# [* 50] = #amount / 50# [* 50]", "Multiply both sides by 50."}});
    ExpectFailure(Boxed(kAmountOfBase, {"10", "--"}), FailureKind::Format,
                  {{"amount = 10, N = --, base = ?", ""},
                   {"10 = --% of base", kFormula},
                   kAsProportion,
                   {"#--/100# = #10/base#", kSubstitute},
                   {"#-- * base/[--]# = #100 * 10/[--]#", "Divide both sides by --."}});
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, Boxed(kAmountOfBase, {"1E307", "5"})).size(), 5U);
}

TEST(AmountOfBase, TheMissingPartOfRandomProblemsIsExact) {
    const BoxedTopic topic(kAmountOfBase);
    Draws draws(kAmountOfBase);
    for (int i = 0; i < kRandomProblems; ++i) {
        std::vector<std::string> boxes{DrawBox(draws, 5), DrawBox(draws, 5), "",
                                       DrawBox(draws, draws.Below(8) == 0 ? 2 : 5)};
        const int unknown = draws.Below(3);
        boxes[unknown == 2 ? 3 : static_cast<std::size_t>(unknown)].clear();
        const Log log = topic.LogFor(boxes, DrawRoundDigits(draws));
        const std::string& line = log.back().first;
        const Rational a = Rational::Of(boxes[0]);
        const Rational n = Rational::Of(boxes[1]);
        const Rational b = Rational::Of(boxes[3]);
        if (unknown == 0) {
            ExpectFifteenDigits(Between(line, "", " = amount"), n * b / 100);
        } else if ((unknown == 1 ? b : n) == 0) {
            EXPECT_EQ(log.back(), kRefusal);
        } else if (unknown == 1) {
            ExpectFifteenDigits(Between(line, "N = ", "%"), a * 100 / b);
        } else {
            ExpectFifteenDigits(Between(line, "base = "), a * 100 / n);
        }
    }
}

}  // namespace
}  // namespace numerello
