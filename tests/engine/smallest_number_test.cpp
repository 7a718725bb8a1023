#include <gtest/gtest.h>

#include <string>

#include "engine/number_forms.h"

namespace numerello {
namespace {

/// Within 32 bits, but its absolute value is not.
constexpr double kSmallest = -2147483648.0;

TEST(SmallestNumber, IsReduced) {
    EXPECT_EQ(ReduceRatio(kSmallest, 6), "-1073741824/3");
    EXPECT_EQ(ReduceRatio(6, kSmallest), "3/-1073741824");
}

TEST(SmallestNumber, HasPrimeFactors) {
    // 2^31
    std::string factors = "2";
    for (int i = 1; i < 31; ++i) {
        factors += "*2";
    }
    EXPECT_EQ(PrimeFactorList(kSmallest), factors);
}

TEST(SmallestNumber, HasDivisorsInCommon) {
    EXPECT_EQ(GreatestCommonText("-2147483648 12"), "4");
    EXPECT_EQ(GreatestCommonText("12 -2147483648"), "4");
}

}  // namespace
}  // namespace numerello
