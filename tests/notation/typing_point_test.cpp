#include "notation/typing_point.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

constexpr int kExpression = 121;
constexpr int kFractions = 76;

TEST(ReadLine, KnowsWhatEachCharacterIs) {
    const std::pair<const char*, Role> lines[] = {{"", Role::LineStart},
                                                  {"4", Role::Digit},
                                                  {".", Role::Point},
                                                  {"x", Role::Letter},
                                                  {"4+", Role::Operator},
                                                  {"4--", Role::Sign},
                                                  {"-", Role::Sign},
                                                  {"(-", Role::Sign},
                                                  {"4/-", Role::Sign},
                                                  {"4/", Role::FractionBar},
                                                  {"x^", Role::Caret},
                                                  {"x^-", Role::ExponentSign},
                                                  {"x^2", Role::ExponentDigit},
                                                  {"x^-2", Role::ExponentDigit},
                                                  {"x^2+", Role::Operator},
                                                  {"~", Role::RootStart},
                                                  {"~4~", Role::RootEnd},
                                                  {"~4~+~", Role::RootStart},
                                                  {"~4+~", Role::RootStart},
                                                  {"|", Role::BarStart},
                                                  {"|4|", Role::BarEnd},
                                                  {"(", Role::OpenParen},
                                                  {"(4)", Role::CloseParen},
                                                  {"x=", Role::EqualSign},
                                                  {"4,", Role::Comma},
                                                  {"4:", Role::Colon},
                                                  {"4%", Role::Percent}};
    for (const auto& [line, role] : lines) {
        EXPECT_EQ(ReadLine(line, kExpression).last, role) << line;
    }
    EXPECT_EQ(ReadLine("1/2/", kFractions).last, Role::DivisionSign);
    EXPECT_EQ(ReadLine("1/2/3/", kFractions).last, Role::FractionBar);
}

TEST(ReadLine, LeavesTheExponentAtASignBarOrParenthesis) {
    for (const char* line : {"x^", "x^2", "x^-", "x^-2", "(x^2"}) {
        EXPECT_TRUE(ReadLine(line, kExpression).InExponent) << line;
    }
    for (const char* line : {"x^2+", "x^2-", "x^2*", "x^2/", "x^2(", "(x^2)", "x^2=", "|3^2|"}) {
        EXPECT_FALSE(ReadLine(line, kExpression).InExponent) << line;
    }
}

TEST(ReadLine, LeavesTheDenominatorWhereTheFractionEnds) {
    for (const char* line : {"3/", "3/4", "3/(4", "3/(4+1", "3/(4)", "3/(4(2", "(3/4", "8/-2"}) {
        EXPECT_TRUE(ReadLine(line, kExpression).InFraction) << line;
    }
    for (const char* line :
         {"3/4+", "3/4-", "3/4*", "3/4=", "(3/4)", "|3/4|", "1/2(", "3/(4)+", "(3/4+", "3/4(x"}) {
        EXPECT_FALSE(ReadLine(line, kExpression).InFraction) << line;
    }
    EXPECT_FALSE(ReadLine("1/2/", kFractions).InFraction);
    EXPECT_TRUE(ReadLine("1/2/3/4", kFractions).InFraction);
}

TEST(ReadLine, KeepsTheDepthOfTheLastFractionBar) {
    EXPECT_EQ(ReadLine("((1/2", kExpression).FractionDepth, 2);
    EXPECT_EQ(ReadLine("(1+2)/3", kExpression).FractionDepth, 0);
    EXPECT_EQ(ReadLine("((1)", kExpression).ParenDepth, 1);
}

TEST(ReadLine, OpensAndClosesRootsAndBars) {
    EXPECT_TRUE(ReadLine("3~4", kExpression).RootOpen);
    EXPECT_FALSE(ReadLine("3~4~", kExpression).RootOpen);
    EXPECT_FALSE(ReadLine("3~4*", kExpression).RootOpen);
    EXPECT_TRUE(ReadLine("|4", kExpression).AbsOpen);
    EXPECT_EQ(ReadLine("|4", kExpression).AbsDepth, 1);
    EXPECT_FALSE(ReadLine("|4|", kExpression).AbsOpen);
    EXPECT_EQ(ReadLine("|4|", kExpression).AbsDepth, 0);
    EXPECT_TRUE(ReadLine("x=3", kExpression).EqualsTyped);
}

TEST(ReadLine, MeasuresTheNumberAtItsEnd) {
    const NumberLengths number = ReadLine("12+345.67", kExpression).number;
    EXPECT_EQ(number.whole, 3);
    EXPECT_EQ(number.decimals, 2);
    EXPECT_TRUE(number.hasPoint);
    EXPECT_EQ(ReadLine("123/4", kExpression).number.whole, 1);
    EXPECT_EQ(ReadLine("123~45", kExpression).number.whole, 2);
    EXPECT_FALSE(ReadLine("1.5/2", kExpression).number.hasPoint);
}

}  // namespace
}  // namespace numerello
