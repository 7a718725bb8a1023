#include <gtest/gtest.h>

#include "core/failure.h"
#include "engine_log.h"

/// Factoring, with a reader of terms that tells the exponent of the first letter.
namespace numerello {
namespace {

using Lines = std::vector<std::string>;

class Factoring : public testing::Test {
  protected:
    Engine& Line(std::string_view text) {
        problem = ProblemWith(text, 101);
        engine.emplace(problem, Engine::FirstExponents::Told);
        engine->SetText(text);
        engine->RecordStep();
        return *engine;
    }

    /// The line after factoring, as the learner sees it; "none" when nothing was factored.
    std::string Factored(std::string_view text, bool withGcf) {
        Line(text);
        if (!engine->FactorExpression(0, withGcf)) {
            return "none";
        }
        engine->RecordStep();
        return problem.log.StepText[problem.log.StepCount - 1];
    }

    Problem problem;
    std::optional<Engine> engine;
};

TEST_F(Factoring, TakesTheGreatestCommonFactorOut) {
    EXPECT_EQ(Factored("2x+4", true), "2(x+2)");
    EXPECT_EQ(problem.log.StepNote[2], "  -  Factor out the GCF");
    EXPECT_EQ(Factored("6x^3+4x^2-2x", true), "2x(3x^2^+2x-1)");
    EXPECT_EQ(Factored("-3x+6", true), "-3(x-2)");
    EXPECT_EQ(Factored("x^3+x^2", true), "x^2^(x+1)");
    EXPECT_EQ(Factored("-x^3+x^2", true), "-x^2^(x-1)");
}

TEST_F(Factoring, LeavesTheLetterInsideWhenAllExponentsAreEqual) {
    EXPECT_EQ(Factored("2x+4x", true), "2(x+2x)");
}

TEST_F(Factoring, FindsNoFactor) {
    EXPECT_EQ(Factored("x+3", true), "none");
    EXPECT_EQ(Factored("5x", true), "none");
    EXPECT_EQ(Factored("3x/2+6", true), "none");
}

TEST_F(Factoring, WritesAQuadraticAsTheProductOfItsRoots) {
    EXPECT_EQ(Factored("x^2+2x+1", false), "(x+1)(x+1)");
    EXPECT_EQ(engine->ExprToText(), "+(+1x+1)(+1x+1)");
    EXPECT_EQ(problem.log.StepNote[2], "  -  factor ");
    EXPECT_EQ(Factored("x^2-5x+6", false), "(x-3)(x-2)");
    EXPECT_EQ(Factored("2x^2-5x+2", false), "(x-2)(2x-1)");
    EXPECT_EQ(Factored("x^2-3x", false), "(x-3)(x+0)");
}

TEST_F(Factoring, KeepsALeadingNumberInFront) {
    EXPECT_EQ(Factored("2x^2-2", false), "2(x-1)(x+1)");
    EXPECT_EQ(Factored("-x^2+1", false), "-1(x+1)(x-1)");
}

TEST_F(Factoring, TellsOfImaginarySolutions) {
    EXPECT_EQ(Factored("x^2+1", false), "none");
    EXPECT_EQ(problem.log.StepText[2], " has imaginary solutions...cannot factor.");
    Line("x^2+1").FactorQuadratic("x");
    EXPECT_EQ(problem.log.StepText[2], " has imaginary solutions...cannot factor.");
    EXPECT_EQ(problem.log.StepCount, 3);
}

TEST_F(Factoring, SolvesByTheFormulaWhenARootIsNoSmallFraction) {
    // The roots of x^2-2x-1 are 1 plus and minus the root of 2: 2.41421 and -0.41421.
    problem.settings.UseFractions = true;
    Line("x^2-2x-1");
    problem.settings.UseFractions = false;
    problem.settings.RoundDigits = 5;
    engine->FactorQuadratic("x");
    EXPECT_EQ(LinesOf(problem), (Lines{"x^2^-2x-1 | ", "(x-2.41421)(x+0.41421)=0 |   -  solve",
                                       "x=2.41421,-0.41421 |   -  solve"}));
}

TEST_F(Factoring, WritesSolutionsThatAreFractions) {
    Line("2x^2+3x+1").FactorQuadratic("x");
    EXPECT_EQ(problem.log.StepText[3], "x=-#1/2#,-1");
    // 1/2 is no part of a leading 1: the formula takes over.
    Line("x^2-1/4");
    EXPECT_TRUE(engine->FactorExpression(0, false));
    EXPECT_EQ(problem.log.StepText[3], "x=#1/2#,-#1/2#");
}

TEST_F(Factoring, ShowsTheFormulaAtFullDetailOnly) {
    Line("x^2-5x+6");
    problem.settings.DetailLevel = 3;
    engine->FactorQuadratic("x");
    EXPECT_EQ(
        LinesOf(problem),
        (Lines{"x^2^-5x+6 | ", "x=#-b\\~b^2^-4ac~/2a# for ax^2^+bx+c=0 |   -  quadratic equation",
               "(x-3)(x-2)=0 |   -  solve", "x=3,2 |   -  solve"}));
    Line("x^2-5x+6");
    problem.settings.DetailLevel = 1;
    engine->FactorQuadratic("x");
    EXPECT_EQ(problem.log.StepCount, 4);
}

TEST_F(Factoring, DividesByALeadingZeroIntoTheTrap) {
    Line("0x^2+2x+1");
    EXPECT_THROW(engine->FactorQuadratic("x"), Failure);
}

TEST_F(Factoring, MovesAllToTheLeft) {
    Line("x^2=5x-6").SetEqualToZero();
    const Lines lines = LinesOf(problem);
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines[1], "x^2^[-5x][+6]=5x-6[-5x][+6] | Set the polynomial equal to zero.");
    EXPECT_EQ(engine->ExprToText(), "+x^2-5x+6=+0");
}

TEST_F(Factoring, MultipliesBothSidesByMinusOne) {
    Line("-x+2=-5").PrepareBothSides();
    const Lines lines = LinesOf(problem);
    ASSERT_GE(lines.size(), 3U);
    EXPECT_EQ(lines[1],
              "-(-x+2)=-(-5) | Solve for x by multiplying both sides of the equation by "
              "a negative one.");
    EXPECT_EQ(engine->ExprToText(), "+x-2=+5");
}

TEST_F(Factoring, SolvesAQuadraticEquation) {
    EXPECT_TRUE(Line("x^2-5x=-6").SolveFor("x"));
    EXPECT_EQ(problem.log.StepText[problem.log.StepCount - 1], "(x-3)(x-2)=0");
}

TEST_F(Factoring, EndsWhenAQuadraticHasNoFactors) {
    EXPECT_FALSE(Line("x^2=-1").SolveFor("x"));
    EXPECT_EQ(problem.log.StepText[problem.log.StepCount - 1],
              " has imaginary solutions...cannot factor.");
}

TEST(SolveFor, TakesTheLinearRouteForASquareAsTermsAreRead) {
    Problem problem = ProblemWith("x^2=4", 101);
    Engine engine(problem);
    engine.SetText("x^2=4");
    engine.RecordStep();
    EXPECT_TRUE(engine.SolveFor("x"));
    EXPECT_EQ(LinesOf(problem), Lines{"x^2^=4 | "});
}

TEST(MoveTermsLeft, SwapsTheSidesWhenTheLetterStandsOnTheRightAlone) {
    Problem problem = ProblemWith("7=2x", 101);
    Engine engine(problem);
    engine.SetText("7=2x");
    engine.RecordStep();
    EXPECT_TRUE(engine.MoveTermsLeft("x"));
    EXPECT_EQ(LinesOf(problem).back(),
              "2x=7 | Reorder the equation so the x is on the left hand side.  This step is not "
              "required but make the answer easier to see.");
}

}  // namespace
}  // namespace numerello
