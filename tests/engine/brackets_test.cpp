#include <gtest/gtest.h>

#include "engine_log.h"

namespace numerello {
namespace {

constexpr int kPolynomials = 102;

/// The line once a pair of parentheses was taken away; "stays" when none was.
std::string Without(std::string_view text) {
    Problem problem = ProblemWith(text, kPolynomials);
    Engine engine(problem);
    engine.SetText(text);
    engine.RecordStep();
    if (!engine.RemoveParens()) {
        return "stays";
    }
    engine.RecordStep();
    return engine.ExprToText();
}

TEST(RemoveParens, TurnsAFractionUnderALineOver) {
    EXPECT_EQ(Without("3/(1/2)"), "+3*2");
    EXPECT_EQ(Without("3/(2/5)"), "+3*5/2");
    EXPECT_EQ(Without("3/(-2/5)"), "-3*5/2");
}

TEST(RemoveParens, TurnsWhatStandsUnderAFractionOver) {
    EXPECT_EQ(Without("(1/2)/3"), "+1/2*1/3");
    EXPECT_EQ(Without("3/4*(1/2)/5"), "+3/4*1/2*1/5");
}

TEST(RemoveParens, WaitsForADivisorThatIsABracket) {
    EXPECT_EQ(Without("(1/2)/(3+x)"), "stays");
}

TEST(RemoveParens, KeepsAnAbsorbedFactorApart) {
    EXPECT_EQ(Without("3/4*(5)"), "stays");
    EXPECT_EQ(Without("2^3*(5)"), "+2^3*5");
    EXPECT_EQ(Without("(x+1)*2"), "stays");
}

TEST(DistributeFront, KeepsTheStarBehindAPairWithAPower) {
    const std::string text = "(x+1)^-2*(3)";
    Problem problem = ProblemWith(text, kPolynomials);
    Engine engine(problem);
    engine.SetText(text);
    engine.RecordStep();
    EXPECT_FALSE(engine.DistributeFront(1));
    EXPECT_EQ(engine.ExprToText(), "+(+x+1)^-2*(+3)");
}

TEST(ReorderFactor, WaitsWhereTheFactorEndsInALineOverABracket) {
    const std::string text = "(1+2)*3/(1+1)";
    Problem problem = ProblemWith(text, kPolynomials);
    Engine engine(problem);
    engine.SetText(text);
    engine.RecordStep();
    EXPECT_FALSE(engine.ReorderFactor(0));
    EXPECT_EQ(engine.ExprToText(), "+(+1+2)*3/(+1+1)");
}

/// The last line of the short order.
std::string Light(std::string_view text) {
    Problem problem = ProblemWith(text, kPolynomials);
    Engine engine(problem);
    engine.SetText(text);
    engine.SimplifyLight();
    return problem.log.StepText[problem.log.StepCount - 1];
}

TEST(SimplifyLight, TakesBracketsAndBarsAway) {
    EXPECT_EQ(Light("(3+2)+x"), "x+5");
    EXPECT_EQ(Light("x+(3+2x)+(1)"), "3x+4");
    EXPECT_EQ(Light("|-4|+|3|+2"), "9");
    EXPECT_EQ(Light("|1-4|+x"), "x+3");
}

TEST(SimplifyLight, PutsAFactorBehindAProductIntoABracket) {
    EXPECT_EQ(Light("(2*3)*4"), "(6)(4)");
}

}  // namespace
}  // namespace numerello
