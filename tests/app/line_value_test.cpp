#include "line_value.h"

#include <gtest/gtest.h>

/// The readers that judge the logs, against values worked by hand.
namespace numerello {
namespace {

struct ReadText {
    const char* text;
    Rational value;
};

TEST(ValueOf, ReadsTheNotationOfLines) {
    const Point point{{'x', Rational(3)}, {'y', Rational(-2)}};
    const ReadText kLines[] = {
        {"4+2*3-5", 5},
        {"-3^2^", -9},
        {"(-3)^2^", 9},
        {"#1/2#*[#3/3#]+#1/3#*[#2/2#]", {5, 6}},
        {"#(3-2)/6#", {1, 6}},
        {"#8^3^/2#*3", 768},
        {"#10/(2+3)#", 2},
        {"#18/5#(-2)", {-36, 5}},
        {"#(#8/4#)/2#", 1},
        {"#(5/9-1*7)/2#", {-29, 9}},
        {"#4/6(-1-2)^3^/6#", -3},
        {"#1/2#{#3/4#", {2, 3}},
        {"2x(x+1)y", -48},
        {"#3/2x^2^#", {1, 6}},
        {"9x^-2^", 1},
        {"4[(3)]-|[-]5|", 7},
        {"|3-7|*2-|1|", 7},
    };
    for (const auto& [line, value] : kLines) {
        EXPECT_TRUE(ValueOf(line, point) == RootSum(value)) << line;
    }
}

TEST(ValueOf, AddsRoots) {
    EXPECT_TRUE(ValueOf("2~12~+~3~") == ValueOf("5~3~"));
    EXPECT_TRUE(ValueOf("~2~*~6~") == ValueOf("2~3~"));
    EXPECT_TRUE(ValueOf("~9~") == RootSum(3));
    EXPECT_FALSE(ValueOf("~2~+~3~") == ValueOf("~5~"));
}

TEST(ValueOf, RefusesWhatHasNoValue) {
    EXPECT_THROW(ValueOf("#1/(2-2)#"), std::domain_error);
    EXPECT_THROW(ValueOf("0^0^"), std::domain_error);
    EXPECT_THROW(ValueOf("3+"), std::invalid_argument);
    EXPECT_THROW(ValueOf("#1/2"), std::invalid_argument);
    EXPECT_THROW(ValueOf("(1+2"), std::invalid_argument);
}

TEST(TypedValueOf, WorksFromTheLeft) {
    const Point point{{'x', Rational(2)}};
    const ReadText kTyped[] = {
        {"8/2(3)", 12},      {"8/2x", 2},        {"(18)/5*(-2)", {-36, 5}},
        {"3*-2", -6},        {"6/-3", -2},       {"1/2/4", {1, 8}},
        {"2^3/4", 2},        {"3/4^2", {3, 16}}, {"9x^-2/6", {3, 8}},
        {"4/|1-3|-|5|", -3},
    };
    for (const auto& [typed, value] : kTyped) {
        EXPECT_TRUE(TypedValueOf(102, typed, point) == RootSum(value)) << typed;
    }
}

TEST(TypedValueOf, DividesWholeFractionsInFractionArithmetic) {
    EXPECT_TRUE(TypedValueOf(76, "1/2/3/4") == RootSum(Rational(2, 3)));
    EXPECT_TRUE(TypedValueOf(91, "1/2/3/4") == RootSum(Rational(1, 24)));
}

}  // namespace
}  // namespace numerello
