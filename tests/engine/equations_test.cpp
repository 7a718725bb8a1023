#include <gtest/gtest.h>

#include "engine_log.h"

namespace numerello {
namespace {

constexpr int kEquations = 101;

TEST(MoveTermsRight, TakesNoZeroAway) {
    Problem problem = ProblemWith("x=0x", kEquations);
    Engine engine(problem);
    engine.SetText("x=0x");
    engine.RecordStep();
    EXPECT_FALSE(engine.MoveTermsRight("x"));
    EXPECT_EQ(LinesOf(problem).size(), 1U);
}

TEST(SetEqualToZero, TakesTheRightSideAwayFromBoth) {
    Problem problem = ProblemWith("x=2", kEquations);
    Engine engine(problem);
    engine.SetText("3x=2x-5");
    engine.RecordStep();
    engine.SetEqualToZero();
    EXPECT_EQ(LinesOf(problem)[1], "3x[-2x][+5]=2x-5[-2x][+5] | Set the polynomial equal to zero.");
    EXPECT_EQ(engine.ExprToText(), "+x+5=+0");
}

/// The lines of solving a typed equation.
std::vector<std::string> Solved(std::string_view text) {
    Problem problem = ProblemWith(text, kEquations);
    Engine engine(problem);
    engine.SetText(text);
    engine.RecordStep();
    engine.SimplifyBothSides();
    engine.SolveFor("x");
    return LinesOf(problem);
}

TEST(SolveFor, TellsOfNoSolutionsInThePlaceOfTheLastLine) {
    EXPECT_EQ(Solved("0x=3"),
              std::vector<std::string>{
                  "0$3 | Since 0 does not equal 3, this equation has no solutions."});
    EXPECT_EQ(Solved("0x=0"),
              std::vector<std::string>{"0x=0 | Since 0 equals 0 then x can be any real number."});
}

}  // namespace
}  // namespace numerello
