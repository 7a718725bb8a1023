#include <gtest/gtest.h>

#include <algorithm>

#include "catalogue/complete_line.h"
#include "tests/catalogue/examples.h"

/// The walks over keys have no cap on their turns: they have to end by themselves, from whatever
/// moment of the hour they begin.
namespace numerello {
namespace {

#ifdef NDEBUG
constexpr int kEvery = 1;
#else
constexpr int kEvery = 20;
#endif
constexpr int kTypedEvery = 20;

/// Counts the draws of a source.
class CountingSource : public RandomSource {
  public:
    void Seed(std::uint32_t seed) override { source.Seed(seed); }
    double Rnd() override {
        ++count;
        return source.Rnd();
    }

    int count = 0;

  private:
    MersenneSource source;
};

/// A learner could have typed it.
void ExpectTypable(Problem opened, const Example& example) {
    Type(opened, example.keys);
    EXPECT_EQ(opened.typed.ProblemText, example.keys);
    EXPECT_EQ(opened.typed.DisplayLine, example.printed);
    EXPECT_TRUE(LineIsComplete(opened)) << example.keys;
}

class Walks : public ::testing::TestWithParam<int> {};

TEST_P(Walks, EndAtEveryMomentOfTheHour) {
    const Problem opened = Opened(FindTopicByCode(GetParam())->caption);
    constexpr int kManyDraws = 20000;
    int mostDraws = 0;
    std::size_t longest = 0;
    for (const int ComplexEx : {0, 2}) {
        for (int second = 0; second < kMoments; second += kEvery) {
            const FixedClock clock(MomentAt(second));
            MersenneSource digits;
            CountingSource direct;
            ExampleDraws draws(clock, digits, direct);
            const Example example = GenerateExample(opened.topic, true, ComplexEx, draws);

            mostDraws = std::max(mostDraws, direct.count);
            longest = std::max(longest, example.keys.size());
            if (second % kTypedEvery == 0) {
                ExpectTypable(opened, example);
            }
        }
    }
    RecordProperty("most_draws", mostDraws);
    RecordProperty("longest", static_cast<int>(longest));
    EXPECT_LT(mostDraws, kManyDraws);
    // Nothing runs over the edge of the sheet.
    EXPECT_LE(longest, 50U);
}

INSTANTIATE_TEST_SUITE_P(Topics, Walks, ::testing::Values(81, 82, 91, 101, 102, 103, 105, 120, 121),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace numerello
