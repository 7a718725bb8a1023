#include "topics/factors.h"

#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kFactoring = 86;

const std::string kListReason =
    "All the numbers that divide evenly into another number are the factors of that number.";

TEST(ListFactors, PairsUpToTheRoot) {
    const Log expected{
        {"36", ""},
        {"36 = 1 * 36", "1 and 36 are both factors of 36 because they both divide evenly into 36."},
        {"36 = 2 * 18", "2 and 18 are both factors of 36 because they both divide evenly into 36."},
        {"36 = 3 * 12", "3 and 12 are both factors of 36 because they both divide evenly into 36."},
        {"36 = 4 * 9", "4 and 9 are both factors of 36 because they both divide evenly into 36."},
        {"36 = 6 * 6", "6 and 6 are both factors of 36 because they both divide evenly into 36."},
        {"Factors of 36: 1, 2, 3, 4, 6, 9, 12, 18, 36", kListReason}};
    EXPECT_EQ(LogOf(Solved(kFactoring, "36")), expected);
}

TEST(ListFactors, OfOne) {
    const Log expected{
        {"1", ""},
        {"1 = 1 * 1", "1 and 1 are both factors of 1 because they both divide evenly into 1."},
        {"Factors of 1: 1", kListReason}};
    EXPECT_EQ(LogOf(Solved(kFactoring, "1")), expected);
}

TEST(ListFactors, ARootThatIsRoundedUpAddsNoPair) {
    // The roots of 3, 7 and 8 are rounded to 2, 3 and 3.
    EXPECT_EQ(LogOf(Solved(kFactoring, "3")).back().first, "Factors of 3: 1, 3");
    EXPECT_EQ(LogOf(Solved(kFactoring, "7")).back().first, "Factors of 7: 1, 7");
    EXPECT_EQ(LogOf(Solved(kFactoring, "8")).back().first, "Factors of 8: 1, 2, 4, 8");
    EXPECT_EQ(LogOf(Solved(kFactoring, "12")).back().first, "Factors of 12: 1, 2, 3, 4, 6, 12");
}

TEST(ListFactors, OfALargePrime) {
    const Log log = LogOf(Solved(kFactoring, "99991"));
    EXPECT_EQ(log.size(), 3U);
    EXPECT_EQ(log.back().first, "Factors of 99991: 1, 99991");
}

TEST(ListFactors, TheLinesUseTheValue) {
    const Log expected{
        {"007", ""},
        {"7 = 1 * 7", "1 and 7 are both factors of 7 because they both divide evenly into 7."},
        {"Factors of 7: 1, 7", kListReason}};
    EXPECT_EQ(LogOf(Solved(kFactoring, "007")), expected);
}

TEST(ListFactors, AValueBelowOneHasNoLines) {
    for (const char* v : {"0", "000", "-4", "0.5"}) {
        EXPECT_EQ(LogOf(Solved(kFactoring, v)), (Log{{v, ""}}));
    }
}

TEST(ListFactors, AFractionIsRoundedHalfToEven) {
    EXPECT_EQ(LogOf(Solved(kFactoring, "2.5")).back().first, "Factors of 2: 1, 2");
    EXPECT_EQ(LogOf(Solved(kFactoring, "3.5")).back().first, "Factors of 4: 1, 2, 4");
    EXPECT_EQ(LogOf(Solved(kFactoring, "4.75")).back().first, "Factors of 5: 1, 5");
}

TEST(ListFactors, AsAStageItWritesNoProblemLineAndLeavesTheWholeValue) {
    Problem problem;
    std::string value = "004.2";
    EXPECT_FALSE(ListFactors(problem, value, false));
    EXPECT_EQ(value, "4");
    const Log expected{
        {"4 = 1 * 4", "1 and 4 are both factors of 4 because they both divide evenly into 4."},
        {"4 = 2 * 2", "2 and 2 are both factors of 4 because they both divide evenly into 4."},
        {"Factors of 4: 1, 2, 4", kListReason}};
    EXPECT_EQ(LogOf(problem), expected);
}

TEST(ListFactors, TellsWhetherThereIsOnePair) {
    const std::pair<std::string, bool> cases[] = {{"0", false}, {"1", true},  {"2", true},
                                                  {"4", false}, {"6", false}, {"97", true}};
    for (const auto& [v, onePair] : cases) {
        Problem problem;
        std::string value = v;
        EXPECT_EQ(ListFactors(problem, value, true), onePair) << v;
    }
}

TEST(ListFactors, FailuresKeepTheProblemLine) {
    ExpectFailure(ProblemOf(kFactoring, "."), FailureKind::Format, {{".", ""}});
    ExpectFailure(ProblemOf(kFactoring, "2147483648"), FailureKind::Overflow, {{"2147483648", ""}});
}

/// Tries every number up to n.
Log FactorsByTrial(const std::string& v) {
    const int value = std::stoi(v);
    const std::string n = std::to_string(value);
    Log log{{v, ""}};
    std::string list;
    for (int i = 1; i <= value; ++i) {
        if (value % i != 0) {
            continue;
        }
        list += (list.empty() ? "" : ", ") + std::to_string(i);
        if (i <= value / i) {
            const std::string low = std::to_string(i);
            const std::string high = std::to_string(value / i);
            log.emplace_back(n + " = " + low + " * " + high,
                             low + " and " + high + " are both factors of " + n +
                                 " because they both divide evenly into " + n + ".");
        }
    }
    if (value > 0) {
        log.emplace_back("Factors of " + n + ": " + list, kListReason);
    }
    return log;
}

TEST(ListFactors, EveryNumberUpToTwoThousand) {
    for (int value = 0; value <= 2000; ++value) {
        const std::string v = std::to_string(value);
        EXPECT_EQ(LogOf(Solved(kFactoring, v)), FactorsByTrial(v));
    }
}

TEST(ListFactors, RandomNumbersHaveTheFactorsFoundByTrial) {
    const TypedTopic topic(kFactoring);
    Draws draws(86);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string v = draws.Digits(5);
        EXPECT_EQ(topic.LogFor(v), FactorsByTrial(v));
    }
}

}  // namespace
}  // namespace numerello
