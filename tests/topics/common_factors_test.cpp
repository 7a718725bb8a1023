#include "topics/common_factors.h"

#include <algorithm>
#include <map>

#include "tests/topics/typed_topic.h"

namespace numerello {
namespace {

constexpr int kGreatestCommonFactors = 87;
constexpr int kLeastCommonMultiples = 88;

Log HeadingOfGCF(const std::string& v) {
    return {{v, ""},
            {"The GCF of " + v + " is:",
             "The greatest number that divides evenly into a group of numbers is the greatest "
             "common factor (GCF)."}};
}

void ExpectGCF(const std::string& v, const std::string& GCF) {
    Log expected = HeadingOfGCF(v);
    expected.emplace_back(GCF, GCF + " is the GCF of " + v + ".");
    EXPECT_EQ(LogOf(Solved(kGreatestCommonFactors, v)), expected);
}

TEST(FindGCF, WritesThreeLines) {
    const Log expected{{"12,18", ""},
                       {"The GCF of 12,18 is:",
                        "The greatest number that divides evenly into a group of numbers is the "
                        "greatest common factor (GCF)."},
                       {"6", "6 is the GCF of 12,18."}};
    EXPECT_EQ(LogOf(Solved(kGreatestCommonFactors, "12,18")), expected);
}

TEST(FindGCF, OfOneNumberAndOfMany) {
    ExpectGCF("7", "7");
    ExpectGCF("5,5", "5");
    ExpectGCF("8,9", "1");
    ExpectGCF("12,18,30", "6");
    ExpectGCF("18,12", "6");
    ExpectGCF("012,18", "6");
    // 99999 = 9 * 41 * 271.
    ExpectGCF("99999,99999,27", "9");
}

TEST(FindGCF, AZeroBehindTheFirstNumberMakesItZero) {
    ExpectGCF("0", "0");
    ExpectGCF("5,0", "0");
    ExpectGCF("5,0,10", "0");
    ExpectGCF("0,0", "0");
    ExpectGCF("0,0,5", "0");
    ExpectGCF("40000,0", "0");
    ExpectGCF("10,20", "10");
    ExpectGCF("100,50", "50");
}

TEST(FindGCF, AZeroAtTheHeadLeavesItEmpty) {
    const Log expected{{"0,5", ""},
                       {"The GCF of 0,5 is:",
                        "The greatest number that divides evenly into a group of numbers is the "
                        "greatest common factor (GCF)."},
                       {"", " is the GCF of 0,5."}};
    EXPECT_EQ(LogOf(Solved(kGreatestCommonFactors, "0,5")), expected);
}

TEST(FindGCF, ZerosAreToldByTheirSpelling) {
    ExpectGCF("5,00", "");
    ExpectGCF("00", "");
    ExpectGCF("5,00,10", "");
    ExpectGCF("00,0", "0");
}

TEST(FindGCF, ASmallestNumberBeyondSixteenBitsOverflows) {
    ExpectFailure(ProblemOf(kGreatestCommonFactors, "40000,50000"), FailureKind::Overflow,
                  HeadingOfGCF("40000,50000"));
    ExpectFailure(ProblemOf(kGreatestCommonFactors, "32768"), FailureKind::Overflow,
                  HeadingOfGCF("32768"));
    ExpectGCF("32767", "32767");
    ExpectGCF("65534,32767", "32767");
    ExpectGCF("50000,7", "1");
}

TEST(FindGCF, OneCommaBeforeAndOneBehindAreTakenOff) {
    const Log expected = LogOf(Solved(kGreatestCommonFactors, "12,18"));
    EXPECT_EQ(LogOf(Solved(kGreatestCommonFactors, "12,18,")), expected);
    EXPECT_EQ(LogOf(Solved(kGreatestCommonFactors, ",12,18,")), expected);
}

TEST(FindGCF, AnEntryThatIsNoNumberKeepsTheHeading) {
    ExpectFailure(ProblemOf(kGreatestCommonFactors, "12,,18"), FailureKind::Format,
                  HeadingOfGCF("12,,18"));
    ExpectFailure(ProblemOf(kGreatestCommonFactors, "12,-"), FailureKind::Format,
                  HeadingOfGCF("12,-"));
    ExpectFailure(ProblemOf(kGreatestCommonFactors, "12,18,,"), FailureKind::Format,
                  HeadingOfGCF("12,18,"));
}

Log HeadingOfLCM(const std::string& v) {
    return {{v, ""},
            {"The LCM of " + v + " is:",
             "The smallest number that a group of numbers divides into evenly is the least common "
             "multiple (LCM)."}};
}

void ExpectLCM(const std::string& v, const std::string& LCM) {
    Log expected = HeadingOfLCM(v);
    expected.emplace_back(LCM, LCM + " is the LCM of " + v + ".");
    EXPECT_EQ(LogOf(Solved(kLeastCommonMultiples, v)), expected);
}

TEST(FindLCM, WritesThreeLines) {
    const Log expected{{"4,6", ""},
                       {"The LCM of 4,6 is:",
                        "The smallest number that a group of numbers divides into evenly is the "
                        "least common multiple (LCM)."},
                       {"12", "12 is the LCM of 4,6."}};
    EXPECT_EQ(LogOf(Solved(kLeastCommonMultiples, "4,6")), expected);
}

TEST(FindLCM, OfOneNumberAndOfMany) {
    ExpectLCM("7", "7");
    ExpectLCM("007", "7");
    ExpectLCM("6,6", "6");
    ExpectLCM("6,4", "12");
    ExpectLCM("04,6", "12");
    ExpectLCM("12,18,30", "180");
    ExpectLCM("1,1,1", "1");
    ExpectLCM("7,11,13", "1001");
}

TEST(FindLCM, AZeroMakesItZero) {
    ExpectLCM("0", "0");
    ExpectLCM("00", "0");
    ExpectLCM("5,0", "0");
    ExpectLCM("0,5", "0");
    ExpectLCM("4,0,6", "0");
    ExpectLCM("0,0", "0");
    ExpectLCM("0,00", "0");
    ExpectLCM("00,0", "0");
}

TEST(FindLCM, AZeroOfOtherSpellingDividesByZero) {
    ExpectFailure(ProblemOf(kLeastCommonMultiples, "6,00"), FailureKind::DivisionByZero,
                  HeadingOfLCM("6,00"));
    ExpectFailure(ProblemOf(kLeastCommonMultiples, "00,6"), FailureKind::DivisionByZero,
                  HeadingOfLCM("00,6"));
    ExpectFailure(ProblemOf(kLeastCommonMultiples, "00,00"), FailureKind::DivisionByZero,
                  HeadingOfLCM("00,00"));
    // Also where the numbers before it have no multiple in range.
    ExpectFailure(ProblemOf(kLeastCommonMultiples, "99999,99998,00"), FailureKind::DivisionByZero,
                  HeadingOfLCM("99999,99998,00"));
}

TEST(FindLCM, BeyondThirtyTwoBitsItOverflows) {
    // Neighbours have no common factor: 46340 * 46341 = 2147441940, 46341 * 46342 = 2147534622.
    ExpectLCM("46340,46341", "2147441940");
    ExpectFailure(ProblemOf(kLeastCommonMultiples, "46341,46342"), FailureKind::Overflow,
                  HeadingOfLCM("46341,46342"));
    ExpectFailure(ProblemOf(kLeastCommonMultiples, "99999,99998,99997"), FailureKind::Overflow,
                  HeadingOfLCM("99999,99998,99997"));
}

TEST(FindLCM, OneCommaBeforeAndOneBehindAreTakenOff) {
    const Log expected = LogOf(Solved(kLeastCommonMultiples, "4,6"));
    EXPECT_EQ(LogOf(Solved(kLeastCommonMultiples, "4,6,")), expected);
    EXPECT_EQ(LogOf(Solved(kLeastCommonMultiples, ",4,6,")), expected);
}

TEST(FindLCM, AnEntryThatIsNoNumberKeepsTheHeading) {
    ExpectFailure(ProblemOf(kLeastCommonMultiples, "4,,6"), FailureKind::Format,
                  HeadingOfLCM("4,,6"));
    ExpectFailure(ProblemOf(kLeastCommonMultiples, "4,-"), FailureKind::Format,
                  HeadingOfLCM("4,-"));
}

TEST(ComputeLCM, ReturnsTheMultipleAsText) {
    EXPECT_EQ(ComputeLCM("4,6"), "12");
    EXPECT_EQ(ComputeLCM("0"), "0");
    EXPECT_EQ(ComputeLCM("9"), "9");
}

/// One to six entries, mostly multiples of one number, at times a 0.
std::vector<std::string> DrawEntries(Draws& draws) {
    const int common = 1 + draws.Below(400);
    std::vector<std::string> entries;
    for (int i = draws.Below(6); i >= 0; --i) {
        const int kind = draws.Below(24);
        std::string entry = kind < 4 ? std::to_string(std::stoi(draws.Digits(5)))
                                     : std::to_string(common * (1 + draws.Below(99999 / common)));
        if (entry.size() < 5 && kind % 8 == 0) {
            entry.insert(0, "0");
        }
        entries.push_back(kind == 23 || std::stoi(entry) == 0 ? "0" : entry);
    }
    return entries;
}

/// Tries the numbers from the smallest entry down; an entry 0 counts where it is not the first.
std::string GCFByTrial(const std::vector<std::string>& entries) {
    const auto isZero = [](const std::string& entry) { return entry == "0"; };
    const auto second = entries.size() == 1 ? entries.begin() : entries.begin() + 1;
    if (std::any_of(second, entries.end(), isZero)) {
        return "0";
    }
    int smallest = std::stoi(entries.front());
    for (const std::string& entry : entries) {
        smallest = std::min(smallest, std::stoi(entry));
    }
    for (int divisor = smallest; divisor > 0; --divisor) {
        const auto divides = [divisor](const std::string& entry) {
            return std::stoi(entry) % divisor == 0;
        };
        if (std::all_of(entries.begin(), entries.end(), divides)) {
            return std::to_string(divisor);
        }
    }
    return "";
}

bool AllBeyondSixteenBits(const std::vector<std::string>& entries) {
    return std::all_of(entries.begin(), entries.end(),
                       [](const std::string& entry) { return std::stoi(entry) > 32767; });
}

TEST(FindGCF, DividesEveryEntryOfRandomListsAndIsTheLargestToDoSo) {
    const TypedTopic topic(kGreatestCommonFactors);
    Draws draws(87);
    int overflows = 0;
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::vector<std::string> entries = DrawEntries(draws);
        const std::string v = Joined(entries, ",");
        const std::string keys = v + (draws.Below(4) == 0 ? "," : "");
        Log expected = HeadingOfGCF(v);
        if (AllBeyondSixteenBits(entries)) {
            ++overflows;
            EXPECT_EQ(topic.LogFor(keys, FailureKind::Overflow), expected);
            continue;
        }
        const std::string GCF = GCFByTrial(entries);
        expected.emplace_back(GCF, GCF + " is the GCF of " + v + ".");
        EXPECT_EQ(topic.LogFor(keys), expected);
    }
    EXPECT_GT(overflows, 10);
    EXPECT_LT(overflows, kRandomProblems / 2);
}

/// By the highest power of each prime; a double, as it may lie beyond every whole type.
double LCMByPrimes(const std::vector<std::string>& entries) {
    std::map<int, int> powers;
    for (const std::string& entry : entries) {
        int rest = std::stoi(entry);
        if (rest == 0) {
            return 0;
        }
        for (int prime = 2; rest > 1; ++prime) {
            int power = 1;
            for (; rest % prime == 0; rest /= prime) {
                power *= prime;
            }
            powers[prime] = std::max(powers[prime], power);
        }
    }
    double multiple = 1;
    for (const auto& [prime, power] : powers) {
        multiple *= power == 0 ? 1 : power;
    }
    return multiple;
}

TEST(FindLCM, IsDivisibleByEveryEntryOfRandomListsAndTheLeastOfAll) {
    const TypedTopic topic(kLeastCommonMultiples);
    Draws draws(88);
    int overflows = 0;
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::vector<std::string> entries = DrawEntries(draws);
        const std::string v = Joined(entries, ",");
        const std::string keys = v + (draws.Below(4) == 0 ? "," : "");
        Log expected = HeadingOfLCM(v);
        const double multiple = LCMByPrimes(entries);
        if (multiple > 2147483647) {
            ++overflows;
            EXPECT_EQ(topic.LogFor(keys, FailureKind::Overflow), expected);
            continue;
        }
        const std::string LCM = std::to_string(static_cast<std::int64_t>(multiple));
        expected.emplace_back(LCM, LCM + " is the LCM of " + v + ".");
        EXPECT_EQ(topic.LogFor(keys), expected);
    }
    EXPECT_GT(overflows, 10);
    EXPECT_LT(overflows, kRandomProblems * 3 / 4);
}

}  // namespace
}  // namespace numerello
