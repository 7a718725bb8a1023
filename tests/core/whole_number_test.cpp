#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "core/failure.h"
#include "core/number.h"

namespace numerello {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();

TEST(IsWhole, HasNothingBehindThePoint) {
    EXPECT_TRUE(IsWhole(0));
    EXPECT_TRUE(IsWhole(-7));
    EXPECT_TRUE(IsWhole(1e300));
    EXPECT_FALSE(IsWhole(0.5));
    EXPECT_FALSE(IsWhole(-2.0001));
}

TEST(IsExactWhole, EndsWhereNeighboursAreNoDoubles) {
    // 2^53 = 9007199254740992
    EXPECT_TRUE(IsExactWhole(9007199254740991));
    EXPECT_TRUE(IsExactWhole(-9007199254740991));
    EXPECT_FALSE(IsExactWhole(9007199254740992));
    EXPECT_FALSE(IsExactWhole(1.5));
}

TEST(SingleText, OfZeroIsOneDigit) {
    EXPECT_EQ(SingleText(0.0F), "0");
    EXPECT_EQ(SingleText(-0.0F), "0");
}

TEST(LeastCommonMultiple, OfTwoNumbers) {
    EXPECT_EQ(LeastCommonMultiple(4, 6), 12);
    EXPECT_EQ(LeastCommonMultiple(5, 5), 5);
    EXPECT_EQ(LeastCommonMultiple(1, -7), 7);
    EXPECT_EQ(LeastCommonMultiple(-4, 6), 12);
    EXPECT_EQ(LeastCommonMultiple(0, 6), 0);
}

TEST(LeastCommonMultiple, BeyondThirtyTwoBitsOverflows) {
    EXPECT_EQ(LeastCommonMultiple(kLargest, 1), kLargest);
    EXPECT_THROW(LeastCommonMultiple(kLargest, 2), Failure);
    EXPECT_THROW(LeastCommonMultiple(kLargest, kLargest - 1), Failure);
    EXPECT_THROW(LeastCommonMultiple(kSmallest, 1), Failure);
    EXPECT_THROW(LeastCommonMultiple(kSmallest, kLargest), Failure);
}

}  // namespace
}  // namespace numerello
