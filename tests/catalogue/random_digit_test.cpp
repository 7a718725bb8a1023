#include "catalogue/random_digit.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace numerello {
namespace {

/// Always draws the same number and keeps the seeds it was given.
class StillSource : public RandomSource {
  public:
    explicit StillSource(double draw) : draw(draw) {}

    void Seed(std::uint32_t seed) override { seeds.push_back(seed); }
    double Rnd() override { return draw; }

    std::vector<std::uint32_t> seeds;

  private:
    double draw;
};

int DigitOf(double draw) {
    StillSource random(draw);
    return RandInt(FixedClock(0), random);
}

int DigitFrom2Of(double draw) {
    StillSource random(draw);
    return RandInt2to9(FixedClock(0), random);
}

TEST(RandInt, CutsTheDrawIntoNinths) {
    EXPECT_EQ(DigitOf(0.0), 1);
    EXPECT_EQ(DigitOf(0.111), 1);
    EXPECT_EQ(DigitOf(0.112), 2);
    EXPECT_EQ(DigitOf(0.5), 5);
    EXPECT_EQ(DigitOf(0.888), 8);
    EXPECT_EQ(DigitOf(0.889), 9);
    EXPECT_EQ(DigitOf(0.999999), 9);
}

TEST(RandInt2to9, CutsTheDrawIntoEighths) {
    EXPECT_EQ(DigitFrom2Of(0.0), 2);
    EXPECT_EQ(DigitFrom2Of(0.1249), 2);
    EXPECT_EQ(DigitFrom2Of(0.125), 3);
    EXPECT_EQ(DigitFrom2Of(0.5), 6);
    EXPECT_EQ(DigitFrom2Of(0.8749), 8);
    EXPECT_EQ(DigitFrom2Of(0.875), 9);
    EXPECT_EQ(DigitFrom2Of(0.999999), 9);
}

TEST(RandInt, SeedsWithTheMomentAtEveryCall) {
    StillSource random(0.5);
    RandInt(FixedClock(5959), random);
    RandInt(FixedClock(5959), random);
    RandInt2to9(FixedClock(7), random);
    RandInt(FixedClock(0), random);
    EXPECT_EQ(random.seeds, (std::vector<std::uint32_t>{5959, 5959, 7, 0}));
}

TEST(RandInt, TwoCallsWithinOneSecondAreAlike) {
    MersenneSource random(99);
    MersenneSource other(1);
    for (int moment = 0; moment < 3600; ++moment) {
        const FixedClock clock(moment / 60 * 100 + moment % 60);
        const int digit = RandInt(clock, random);
        const int digitFrom2 = RandInt2to9(clock, random);
        random.Rnd();
        EXPECT_EQ(RandInt(clock, random), digit) << moment;
        EXPECT_EQ(RandInt2to9(clock, random), digitFrom2) << moment;
        EXPECT_EQ(RandInt(clock, other), digit) << moment;
    }
}

TEST(RandInt, AllMomentsOfAnHourGiveTheWholeRange) {
    std::set<int> digits;
    std::set<int> digitsFrom2;
    MersenneSource random;
    for (int moment = 0; moment < 3600; ++moment) {
        const FixedClock clock(moment / 60 * 100 + moment % 60);
        digits.insert(RandInt(clock, random));
        digitsFrom2.insert(RandInt2to9(clock, random));
    }
    EXPECT_EQ(digits, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(digitsFrom2, (std::set<int>{2, 3, 4, 5, 6, 7, 8, 9}));
}

}  // namespace
}  // namespace numerello
