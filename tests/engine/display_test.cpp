#include "engine/display.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

constexpr int kPolynomials = 102;
constexpr int kFractions = 76;

std::string Shown(std::string_view working, int ProblemType = kPolynomials) {
    return DisplayText(MergeNumberTokens(TextToTokens(working), ProblemType), ProblemType);
}

TEST(DisplayText, HidesTheLeadingPlusAndCoefficientsOfOne) {
    EXPECT_EQ(Shown("+3x^2-2"), "3x^2^-2");
    EXPECT_EQ(Shown("+x^1"), "x");
    EXPECT_EQ(Shown("+1x"), "x");
    EXPECT_EQ(Shown("-1x"), "-x");
    EXPECT_EQ(Shown("+21x"), "21x");
    EXPECT_EQ(Shown("+2(+1x+2)"), "2(x+2)");
    EXPECT_EQ(Shown("+x=+0"), "x=0");
    EXPECT_EQ(Shown("+|+5-3|"), "|5-3|");
    EXPECT_EQ(Shown("+|-5|+3"), "|-5|+3");
}

TEST(DisplayText, RaisesExponentsOfAnyLength) {
    EXPECT_EQ(Shown("+x^12+3"), "x^12^+3");
    EXPECT_EQ(Shown("+9x^-2/6+8x^-2"), "#9x^-2^/6#+8x^-2^");
    EXPECT_EQ(Shown("+x^2y"), "x^2^y");
    EXPECT_EQ(Shown("+(x+1)^2"), "(x+1)^2^");
}

TEST(DisplayText, BuildsFractionsWhereTheirTermBegins) {
    EXPECT_EQ(Shown("+8^3/2*3"), "#8^3^/2#*3");
    EXPECT_EQ(Shown("+x/3(2+1)"), "#x/3#(2+1)");
    EXPECT_EQ(Shown("+x/y(2)"), "#x/y#(2)");
    EXPECT_EQ(Shown("+(3+2)/6"), "#(3+2)/6#");
    EXPECT_EQ(Shown("+1/(2*2*2)"), "#1/(2*2*2)#");
    EXPECT_EQ(Shown("+(3*3)/9"), "#(3*3)/9#");
    EXPECT_EQ(Shown("+(1/2)(1/2)"), "(#1/2#)(#1/2#)");
    EXPECT_EQ(Shown("+8x/8/8"), "#8x/8/8#");
    EXPECT_EQ(Shown("-2/3x"), "-#2/3x#");
}

TEST(DisplayText, DividesFractionsByTheDivisionSignInTheirTopic) {
    EXPECT_EQ(Shown("+1/2/3/4", kFractions), "#1/2#{#3/4#");
    EXPECT_EQ(Shown("+1/2*4/3", kFractions), "#1/2#*#4/3#");
}

TEST(DisplayText, SplitsRoots) {
    EXPECT_EQ(Shown("+2~5"), "2~5~");
    EXPECT_EQ(Shown("+1~5+~9"), "~5~+~9~");
    EXPECT_EQ(Shown("+2*2~3+~3"), "2*2~3~+~3~");
}

TEST(DisplayText, KeepsEmphasisAroundWhatIsNew) {
    EXPECT_EQ(Shown("+x-4[+4]=+5[+4]"), "x-4[+4]=5[+4]");
    EXPECT_EQ(Shown("+2x/[2]=+6/[2]"), "#2x/[2]#=#6/[2]#");
    EXPECT_EQ(Shown("-2x/[-2]=+8/[-2]"), "-#2x/[-2]#=#8/[-2]#");
    EXPECT_EQ(Shown("+1/2*[3/3]+1/3*[2/2]"), "#1/2#*[#3/3#]+#1/3#*[#2/2#]");
    EXPECT_EQ(Shown("+4(1)[(2)]+9(1)*6[(2)]+8z^2"), "4(1)[(2)]+9(1)*6[(2)]+8z^2^");
    EXPECT_EQ(Shown("+3/4[+2]"), "#3/4#[+2]");
}

TEST(DisplayText, KeepsAPowerOfTenInItsNumber) {
    EXPECT_EQ(Shown("+1.5E+10+3"), "1.5E+10+3");
    EXPECT_EQ(Shown("+1.5E+10/3"), "#1.5E+10/3#");
}

}  // namespace
}  // namespace numerello
