#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kMultiples = 89;

TEST(ListMultiples, ElevenRowsWithoutAHeading) {
    const Log expected{{"7", ""},
                       {"0 * 7 = 0", "Multiply 7 by 0."},
                       {"1 * 7 = 7", "Multiply 7 by 1."},
                       {"2 * 7 = 14", "Multiply 7 by 2."},
                       {"3 * 7 = 21", "Multiply 7 by 3."},
                       {"4 * 7 = 28", "Multiply 7 by 4."},
                       {"5 * 7 = 35", "Multiply 7 by 5."},
                       {"6 * 7 = 42", "Multiply 7 by 6."},
                       {"7 * 7 = 49", "Multiply 7 by 7."},
                       {"8 * 7 = 56", "Multiply 7 by 8."},
                       {"9 * 7 = 63", "Multiply 7 by 9."},
                       {"10 * 7 = 70", "Multiply 7 by 10."}};
    EXPECT_EQ(LogOf(Solved(kMultiples, "7")), expected);
}

TEST(ListMultiples, TheNumberIsRepeatedAsTyped) {
    const Log log = LogOf(Solved(kMultiples, "007"));
    EXPECT_EQ(log[0].first, "007");
    EXPECT_EQ(log[2], std::pair(std::string("1 * 007 = 7"), std::string("Multiply 007 by 1.")));
    EXPECT_EQ(log[11].first, "10 * 007 = 70");
}

TEST(ListMultiples, OfZero) {
    const Log log = LogOf(Solved(kMultiples, "0"));
    ASSERT_EQ(log.size(), 12U);
    EXPECT_EQ(log[1].first, "0 * 0 = 0");
    EXPECT_EQ(log[11].first, "10 * 0 = 0");
}

TEST(ListMultiples, OfTheLargestNumber) {
    EXPECT_EQ(LogOf(Solved(kMultiples, "99999999")).back().first, "10 * 99999999 = 999999990");
}

TEST(ListMultiples, TextThatIsNoNumberKeepsTheProblemLine) {
    ExpectFailure(ProblemOf(kMultiples, "."), FailureKind::Format, {{".", ""}});
}

TEST(ListMultiples, RandomNumbersAddUp) {
    const TypedTopic topic(kMultiples);
    Draws draws(89);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string v = draws.Digits(8);
        Log expected{{v, ""}};
        std::int64_t multiple = 0;
        for (int k = 0; k <= 10; ++k) {
            const std::string row = std::to_string(k);
            expected.emplace_back(row + " * " + v + " = " + std::to_string(multiple),
                                  "Multiply " + v + " by " + row + ".");
            multiple += std::stoll(v);
        }
        EXPECT_EQ(topic.LogFor(v), expected);
    }
}

}  // namespace
}  // namespace numerello
