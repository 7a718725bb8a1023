#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>

#include "core/number.h"
#include "engine/number_forms.h"

namespace numerello {
namespace {

constexpr int kLast = 20001;

/// The plain search: from 1 upward, one after the other.
int PlainSearch(float value) {
    for (int d = 1; d < kLast; ++d) {
        const double multiple = static_cast<double>(value) * d;
        const double places = std::nearbyint(multiple * 10000) / 10000;
        if (static_cast<double>(static_cast<float>(places)) == std::nearbyint(multiple)) {
            return d;
        }
    }
    return kLast;
}

/// Single steps up (or down) from the value.
float Stepped(float value, int steps) {
    const float end = steps > 0 ? 1e30F : 0.0F;
    for (int i = 0; i < std::abs(steps); ++i) {
        value = std::nextafter(value, end);
    }
    return value;
}

TEST(FirstDenominator, IsThatOfTheFraction) {
    EXPECT_EQ(FirstDenominator(0.5F), 2);
    EXPECT_EQ(FirstDenominator(0.125F), 8);
    EXPECT_EQ(FirstDenominator(1.0F / 3), 3);
    EXPECT_EQ(FirstDenominator(22.0F / 7), 7);
    EXPECT_EQ(FirstDenominator(355.0F / 113), 113);
    EXPECT_EQ(FirstDenominator(12.0F), 1);
    EXPECT_EQ(FirstDenominator(0.00004F), 1);
}

TEST(FirstDenominator, AgreesWithThePlainSearchOnRandomValues) {
    std::mt19937 random(20261120);
    std::uniform_real_distribution<float> exponent(-14.5F, 17.0F);
    std::uniform_real_distribution<float> mantissa(1.0F, 2.0F);
    for (int i = 0; i < 100000; ++i) {
        const float value = mantissa(random) * std::exp2(std::floor(exponent(random)));
        ASSERT_EQ(FirstDenominator(value), PlainSearch(value)) << SingleText(value);
    }
}

TEST(FirstDenominator, AgreesBesideFractionsAndPowersOfTwo) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> over(1, 99999);
    std::uniform_int_distribution<int> under(1, 20000);
    std::uniform_int_distribution<int> steps(-40, 40);
    for (int i = 0; i < 20000; ++i) {
        const float value =
            Stepped(static_cast<float>(over(random)) / under(random), steps(random));
        ASSERT_EQ(FirstDenominator(value), PlainSearch(value)) << SingleText(value);
    }
    for (int power = -14; power < 24; ++power) {
        for (int step = -3; step <= 3; ++step) {
            const float value = Stepped(std::exp2(static_cast<float>(power)), step);
            ASSERT_EQ(FirstDenominator(value), PlainSearch(value)) << SingleText(value);
        }
    }
}

TEST(FirstDenominator, AgreesAtTheEdgeOfTheTolerance) {
    // Multiples that end in 0.00005, where the rounding turns.
    for (int whole = 1; whole < 4000; whole += 7) {
        for (int d = 1; d < 300; d += 13) {
            for (const double edge : {-0.00005, 0.00005, 0.00015, -0.00025}) {
                const auto value = static_cast<float>((whole + edge) / d);
                ASSERT_EQ(FirstDenominator(value), PlainSearch(value)) << SingleText(value);
            }
        }
    }
}

}  // namespace
}  // namespace numerello
