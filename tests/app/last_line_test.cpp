#include "last_line.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

TEST(LeftInNumber, TellsWorkedNumbersFromOthers) {
    for (const char* worked : {"0", "-12", "#5/6#", "-#7/2#"}) {
        EXPECT_EQ(LeftInNumber(worked), "") << worked;
    }
    for (const char* unworked : {"#2/4#", "#3/1#", "1+2", "2x", "0.5", "(3)", "2*3", "-#-1/2#"}) {
        EXPECT_NE(LeftInNumber(unworked), "") << unworked;
    }
    EXPECT_EQ(LeftInNumber("-0.25", Digits::Decimals), "");
    EXPECT_NE(LeftInNumber("#1/4#", Digits::Decimals), "");
}

TEST(LeftInPrimePowers, WantsPrimesInOrder) {
    for (const char* worked : {"2^3^*3*7^2^", "13", "0", "1"}) {
        EXPECT_EQ(LeftInPrimePowers(worked), "") << worked;
    }
    for (const char* unworked : {"4*3", "3*2", "2*2", "2^1^*3", "2+3", "1*2"}) {
        EXPECT_NE(LeftInPrimePowers(unworked), "") << unworked;
    }
}

TEST(LeftInRoots, WantsUnlikeRootsWithoutSquares) {
    for (const char* worked : {"7", "5~3~", "-~2~+4~6~-1"}) {
        EXPECT_EQ(LeftInRoots(worked), "") << worked;
    }
    for (const char* unworked : {"~8~", "~2~+~2~", "1~2~", "2+3", "2*~3~", "~1~"}) {
        EXPECT_NE(LeftInRoots(unworked), "") << unworked;
    }
}

TEST(LeftInPolynomial, WantsUnlikeTermsInOrder) {
    for (const char* worked : {"x^2^+3x-2", "#x^2^/2#-#4x/3#+#1/2#", "#19/2x^2^#", "-x", "4"}) {
        EXPECT_EQ(LeftInPolynomial(worked), "") << worked;
    }
    for (const char* unworked :
         {"3x+x^2^", "2+x", "x+x", "1x", "x^1^", "#2x/4#", "2(x+1)", "x*x", "xx", "1+2", "0.5x"}) {
        EXPECT_NE(LeftInPolynomial(unworked), "") << unworked;
    }
}

TEST(LeftInPolynomial, LetsBracketsStayAtFractionLines) {
    for (const char* bound :
         {"#(x+1)/2#", "#(x+1)^2^/2#", "#8/(x-1)#", "(x+1)^-2^", "-(#(x+1)/2#*x)(7)"}) {
        EXPECT_EQ(LeftInPolynomial(bound), "") << bound;
    }
    for (const char* loose : {"(x+1)", "#(3)/2#", "(x)^-2^", "#8/(-x)#"}) {
        EXPECT_NE(LeftInPolynomial(loose), "") << loose;
    }
}

}  // namespace
}  // namespace numerello
