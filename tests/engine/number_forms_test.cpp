#include "engine/number_forms.h"

#include <gtest/gtest.h>

#include <cmath>

#include <array>

#include "core/failure.h"

namespace numerello {
namespace {

AnswerSettings Decimals(int places) {
    AnswerSettings settings;
    settings.UseFractions = false;
    settings.RoundDigits = places;
    return settings;
}

TEST(ReduceRatio, DividesByTheLargestCommonNumber) {
    EXPECT_EQ(ReduceRatio(12, 18), "2/3");
    EXPECT_EQ(ReduceRatio(36, 4), "9");
    EXPECT_EQ(ReduceRatio(5, 7), "5/7");
    EXPECT_EQ(ReduceRatio(5, 1), "5");
    EXPECT_EQ(ReduceRatio(0, 7), "0");
    EXPECT_EQ(ReduceRatio(7, 7), "1");
    EXPECT_EQ(ReduceRatio(12345, 67890), "823/4526");
}

TEST(ReduceRatio, FailsAtZeroAndBeyondItsRange) {
    EXPECT_THROW(ReduceRatio(1, 0), Failure);
    EXPECT_THROW(ReduceRatio(3e9, 2), Failure);
}

TEST(AbsValueToText, GivesFractionsInFractionMode) {
    const AnswerSettings fractions;
    EXPECT_EQ(AbsValueToText(fractions, 0.5F), "1/2");
    EXPECT_EQ(AbsValueToText(fractions, -2.25F), "9/4");
    EXPECT_EQ(AbsValueToText(fractions, 1.0F / 3), "1/3");
    EXPECT_EQ(AbsValueToText(fractions, 0.125F), "1/8");
    EXPECT_EQ(AbsValueToText(fractions, 3), "3");
    EXPECT_EQ(AbsValueToText(fractions, 16777216), "16777216");
}

TEST(AbsValueToText, RoundsInDecimalMode) {
    EXPECT_EQ(AbsValueToText(Decimals(2), 1.0F / 3), "0.33");
    EXPECT_EQ(AbsValueToText(Decimals(4), -1.0F / 3), "0.3333");
    EXPECT_EQ(AbsValueToText(Decimals(2), 0.25F), "0.25");
    EXPECT_EQ(AbsValueToText(Decimals(2), 7), "7");
}

TEST(AbsValueToText, FindsAFractionForEveryValue) {
    const AnswerSettings fractions;
    for (int i = 1; i < 2000; ++i) {
        const float value = static_cast<float>(i) / 1999.0F;
        const std::string text = AbsValueToText(fractions, value);
        const std::size_t bar = text.find('/');
        const double numerator = std::stod(text);
        const double denominator = bar == std::string::npos ? 1 : std::stod(text.substr(bar + 1));
        // Half a place, and what a Single of that size does not tell apart.
        const auto single = static_cast<float>(numerator);
        const double step = static_cast<double>(std::nextafter(single, 1e9F) - single);
        EXPECT_NEAR(static_cast<double>(value) * denominator, numerator, 0.0000501 + step / 2)
            << text;
    }
}

TEST(PrimeFactorList, JoinsTheFactorsInOrder) {
    EXPECT_EQ(PrimeFactorList(12), "2*2*3");
    EXPECT_EQ(PrimeFactorList(1), "1");
    EXPECT_EQ(PrimeFactorList(7), "7");
    EXPECT_EQ(PrimeFactorList(9), "3*3");
    EXPECT_EQ(PrimeFactorList(2147483647), "2147483647");
    EXPECT_THROW(PrimeFactorList(2147483648.0), Failure);
}

TEST(LeastCommonMultipleText, IsTheFirstMultipleOfAll) {
    EXPECT_EQ(LeastCommonMultipleText(std::array{2.0, 3.0}), "6");
    EXPECT_EQ(LeastCommonMultipleText(std::array{4.0, 6.0, 10.0}), "60");
    EXPECT_EQ(LeastCommonMultipleText(std::array{5.0}), "5");
    EXPECT_EQ(LeastCommonMultipleText(std::array{4.0, 0.0}), "0");
    EXPECT_THROW(LeastCommonMultipleText(std::array{65537.0, 65539.0}), Failure);
}

}  // namespace
}  // namespace numerello
