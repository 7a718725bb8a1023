#include "engine/normalise.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

constexpr int kPolynomials = 102;

std::string Normalised(std::string_view text) {
    return TokensToText(NormaliseTokens(MergeNumberTokens(TextToTokens(text), kPolynomials)));
}

TEST(NormaliseTokens, BeginsEverySideAndPairWithASign) {
    EXPECT_EQ(Normalised("3x"), "+3x");
    EXPECT_EQ(Normalised("-3x"), "-3x");
    EXPECT_EQ(Normalised("x=3"), "+x=+3");
    EXPECT_EQ(Normalised("x=-3"), "+x=-3");
    EXPECT_EQ(Normalised("4-(2+1)"), "+4-(+2+1)");
    EXPECT_EQ(Normalised("(-2)"), "+(-2)");
    EXPECT_EQ(Normalised("((2+3)-4)"), "+(+(+2+3)-4)");
    EXPECT_EQ(Normalised("|5-3|+|-2|"), "+|+5-3|+|-2|");
}

TEST(NormaliseTokens, LeavesNoOperatorBehindAnOperator) {
    EXPECT_EQ(Normalised("4+-3"), "+4-3");
    EXPECT_EQ(Normalised("4--3"), "+4+3");
    EXPECT_EQ(Normalised("3*-2"), "-3*2");
    EXPECT_EQ(Normalised("5-3*-2"), "+5+3*2");
    EXPECT_EQ(Normalised("6/-3"), "-6/3");
    EXPECT_EQ(Normalised("2*3*-4"), "-2*3*4");
    EXPECT_EQ(Normalised("2*-(x+1)"), "-2(+x+1)");
    EXPECT_EQ(Normalised("4-(2+1)/-3"), "+4+(+2+1)/3");
    EXPECT_EQ(Normalised("x^-2*-3"), "-x^-2*3");
}

TEST(NormaliseTokens, DropsTheStarBeforeAParenthesis) {
    EXPECT_EQ(Normalised("2*(3+4)*5"), "+2(+3+4)*5");
    EXPECT_EQ(Normalised("(1+2)*(3+4)"), "+(+1+2)(+3+4)");
    EXPECT_EQ(Normalised("3x*(2)"), "+3x(+2)");
    EXPECT_EQ(Normalised("4*[(3)]"), "+4[(+3)]");
}

TEST(NormaliseTokens, KeepsTheStarWhereTheParenthesisWouldBeBound) {
    EXPECT_EQ(Normalised("2^3*(5-3)"), "+2^3*(+5-3)");
    EXPECT_EQ(Normalised("x^-2*(5-3)"), "+x^-2*(+5-3)");
    EXPECT_EQ(Normalised("3/4*(1+2)"), "+3/4*(+1+2)");
    EXPECT_EQ(Normalised("x/2*(3)"), "+x/2*(+3)");
    EXPECT_EQ(Normalised("8/(1+3)*(2)"), "+8/(+1+3)*(+2)");
    EXPECT_EQ(Normalised("|-4|*(2)"), "+|-4|*(+2)");
}

TEST(NormaliseTokens, TakesAParenthesisThatWasNeverOpened) {
    EXPECT_EQ(Normalised("2)*(3"), "+2)(+3");
}

TEST(NormaliseTokens, LeavesWhatIsNormalAsItIs) {
    for (const char* text : {"+3x-2", "+2(+x+1)", "+2^3*(+5-3)", "+x^-2=-3", "+|-5|+3"}) {
        EXPECT_EQ(Normalised(text), text);
    }
}

}  // namespace
}  // namespace numerello
