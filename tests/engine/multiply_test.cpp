#include <gtest/gtest.h>

#include "core/failure.h"
#include "engine/letters.h"
#include "engine_log.h"

namespace numerello {
namespace {

using Lines = std::vector<std::string>;

/// The lines of working all products of a sum, each with its reason behind " | ".
Lines Worked(std::string_view text, int ProblemType = 102) {
    Problem problem = ProblemWith(text, ProblemType);
    Engine engine(problem);
    engine.SetText(text);
    engine.RecordStep();
    while (engine.MultiplyPair(0)) {
    }
    return LinesOf(problem);
}

TEST(MultiplyPair, WorksOneProductALineFromTheLeft) {
    EXPECT_EQ(Worked("4+2*3-5"),
              (Lines{"4+2*3-5 | ", "4+6-5 | Multiply 2 by 3 using the order of operations."}));
    EXPECT_EQ(Worked("2*3+4*5"),
              (Lines{"2*3+4*5 | ", "6+4*5 | Multiply 2 by 3 using the order of operations.",
                     "6+20 | Multiply 4 by 5 using the order of operations."}));
    EXPECT_EQ(Worked("2*2*2*2"),
              (Lines{"2*2*2*2 | ", "4*2*2 | Multiply 2 by 2 using the order of operations.",
                     "8*2 | Multiply 4 by 2 using the order of operations.",
                     "16 | Multiply 8 by 2 using the order of operations."}));
}

TEST(MultiplyPair, NamesMagnitudesAndKeepsTheSign) {
    EXPECT_EQ(Worked("3*-2"),
              (Lines{"-3*2 | ", "-6 | Multiply 3 by 2 using the order of operations."}));
}

TEST(MultiplyPair, LeavesAProductOfFractionsUnreduced) {
    EXPECT_EQ(
        Worked("12/4*3"),
        (Lines{"#12/4#*3 | ", "#36/4# | Multiply #12/4# by 3 using the order of operations."}));
    EXPECT_EQ(Worked("1/2*2/3").back(),
              "#2/6# | Multiply #1/2# by #2/3# using the order of operations.");
}

TEST(MultiplyPair, WorksConstantPowersOut) {
    EXPECT_EQ(Worked("2^3*4").back(), "32 | Multiply 8 by 4 using the order of operations.");
    EXPECT_EQ(Worked("4*2^-1").back(),
              "#4/2# | Multiply 4 by #1/2# using the order of operations.");
}

TEST(MultiplyPair, MultipliesLettersWithTheNumbers) {
    EXPECT_EQ(Worked("x*x^2").back(), "x^3^ | Multiply x by x^2^ using the order of operations.");
    EXPECT_EQ(Worked("2x*3").back(), "6x | Multiply 2x by 3 using the order of operations.");
    EXPECT_EQ(Worked("3x/4*2").back(),
              "#6x/4# | Multiply #3x/4# by 2 using the order of operations.");
    EXPECT_EQ(Worked("x^2*x^-2").back(),
              "1 | Multiply x^2^ by x^-2^ using the order of operations.");
    EXPECT_EQ(Worked("0*5x").back(), "0 | Multiply 0 by 5x using the order of operations.");
}

TEST(MultiplyPair, MultipliesRoots) {
    EXPECT_EQ(Worked("~2*~3", 82).back(),
              "~6~ | When multiplying square roots multiply values under radical to form the new "
              "square root.");
    EXPECT_EQ(Worked("2*~3", 82).back(), "2~3~ | Multiply 2 by ~3~ using the order of operations.");
}

TEST(MultiplyPair, IsExactBeyondASingleAndRoundsToFourPlaces) {
    // 12345 * 6789 = 83810205, twice that is 167620410.
    EXPECT_EQ(Worked("12345*6789*2").back(),
              "167620410 | Multiply 83810205 by 2 using the order of operations.");
    EXPECT_EQ(Worked("0.1*0.2").back(),
              "0.02 | Multiply 0.1 by 0.2 using the order of operations.");
    // 0.1109889
    EXPECT_EQ(Worked("0.333*0.3333").back(),
              "0.111 | Multiply 0.333 by 0.3333 using the order of operations.");
}

TEST(MultiplyPair, FindsNoneInASum) {
    EXPECT_EQ(Worked("4+2-5"), (Lines{"4+2-5 | "}));
}

TEST(MultiplyPair, ZeroHasNoNegativePower) {
    EXPECT_THROW(Worked("3*0^-2"), Failure);
}

TEST(MultiplyLetters, AddsExponentsInTheOrderOfTheProblem) {
    TypedProblem typed;
    typed.VarCount = 3;
    typed.VarNames[1] = "y";
    typed.VarNames[2] = "x";
    EXPECT_EQ(MultiplyLetters(typed, "x", "y"), "yx");
    EXPECT_EQ(MultiplyLetters(typed, "x^2y", "x^-1"), "yx");
    EXPECT_EQ(MultiplyLetters(typed, "x^12", "x"), "x^13");
    EXPECT_EQ(MultiplyLetters(typed, "^2x", "^3"), "x");
    EXPECT_EQ(MultiplyLetters(typed, "x", "x^-1"), "");
}

}  // namespace
}  // namespace numerello
