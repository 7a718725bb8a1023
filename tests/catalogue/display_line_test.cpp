#include "catalogue/display_line.h"

#include <gtest/gtest.h>

#include "typing.h"

namespace numerello {
namespace {

/// The used cells as "index:text".
std::string Cells(const Problem& problem) {
    std::string cells;
    for (int i = 0; i <= problem.typed.ExprCellCount + 3; ++i) {
        if (!problem.typed.ExprCells[i].empty()) {
            cells +=
                (cells.empty() ? "" : " ") + std::to_string(i) + ":" + problem.typed.ExprCells[i];
        }
    }
    return cells;
}

std::string Line(std::string_view caption, std::string_view keys) {
    return Typed(caption, keys).typed.DisplayLine;
}

TEST(ChunkChars, PutsOneTokenIntoACell) {
    Problem problem = Typed("Simplifying Polynomials", "12x^2-3/4");
    ChunkChars(problem);
    const std::string tokens[] = {"12", "x", "^", "2", "-", "3/4", ""};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(problem.typed.ExprCells[i], tokens[i]) << i;
    }
    EXPECT_EQ(problem.typed.ExprCellCount, 5);
}

TEST(ChunkChars, DividesNumbersOnlyByNumbers) {
    Problem problem = Typed("Complex Arithmetic Expressions", "3/(4-2)");
    ChunkChars(problem);
    EXPECT_EQ(problem.typed.ExprCells[0], "3");
    EXPECT_EQ(problem.typed.ExprCells[1], "/");
    EXPECT_EQ(problem.typed.ExprCells[2], "(");
}

TEST(DisplayLine, SetsTokensFourCellsApart) {
    EXPECT_EQ(Cells(Typed("Arithmetic", "4+2*35")), "4:4 8:+ 12:2 16:* 20:35");
    EXPECT_EQ(Cells(Typed("Arithmetic", "12.5")), "4:12.5");
    EXPECT_EQ(Cells(Typed("Plotting A Point", "(-4,8)")), "4:( 8:- 12:4 16:, 20:8 24:)");
}

TEST(DisplayLine, PutsTheMarksBesideTheTokens) {
    EXPECT_EQ(Cells(Typed("Arithmetic", "2+3/4")), "4:2 8:+ 11:# 12:3/4 13:#");
    EXPECT_EQ(Cells(Typed("Calculating With Exponents", "3^2/4")),
              "3:# 4:3 8:^ 12:2 13:^ 16:/ 20:4 21:#");
    EXPECT_EQ(Cells(Typed("Calculating With Exponents", "3^")), "4:3 8:^ 9:? 10:^");
}

TEST(DisplayLine, KeepsTheSameTokensWhetherARootWasClosedByKeyOrNot) {
    EXPECT_EQ(Cells(Typed("Calculating Roots", "3~4~+2~9~")),
              "4:3 8:~ 12:4 13:~ 16:+ 20:2 24:~ 28:9 29:~");
    EXPECT_EQ(Cells(Typed("Calculating Roots", "3~4+2~9")),
              "4:3 8:~ 12:4 13:~ 16:+ 20:2 24:~ 28:9 29:~");
}

TEST(DisplayLine, LeavesOutTheOneBeforeARoot) {
    EXPECT_EQ(Cells(Typed("Calculating Roots", "2+1~9")), "4:2 8:+ 12:~ 16:9 17:~");
    EXPECT_EQ(Line("Calculating Roots", "21~4"), "21~4~");
}

TEST(DisplayLine, DividesFractionsByTheDivisionSign) {
    const Problem problem = Typed("Fraction Arithmetic", "1/2/3/4");
    EXPECT_EQ(problem.typed.DisplayLine, "#1/2#{#3/4#");
    EXPECT_EQ(Cells(problem), "3:# 4:1/2 5:# 8:{ 11:# 12:3/4 13:#");
    EXPECT_EQ(problem.typed.ProblemText, "1/2/3/4");
}

TEST(DisplayLine, BeginsTheNumeratorAtItsTermOrParenthesis) {
    constexpr std::string_view kTopic = "Simplifying Polynomials";
    EXPECT_EQ(Line(kTopic, "2*x/4"), "2*#x/4#");
    EXPECT_EQ(Line(kTopic, "x/4*5"), "#x/4#*5");
    EXPECT_EQ(Line(kTopic, "-x/4"), "-#x/4#");
    EXPECT_EQ(Line(kTopic, "2x/4"), "#2x/4#");
    EXPECT_EQ(Line(kTopic, "(x/4"), "(#x/4#");
    EXPECT_EQ(Line(kTopic, "(4-2)/3"), "#(4-2)/3#");
    EXPECT_EQ(Line(kTopic, "2(4-2)/3"), "2#(4-2)/3#");
    EXPECT_EQ(Line(kTopic, "(4-2)^2/3"), "#(4-2)^2^/3#");
    EXPECT_EQ(Line(kTopic, "5+2(4-2)^2/3"), "5+#2(4-2)^2^/3#");
}

TEST(DisplayLine, ClearsTheMarksInsideANumerator) {
    EXPECT_EQ(Line("Simplifying Polynomials", "(1/2)/3"), "#(1/2)/3#");
    EXPECT_EQ(Line("Simplifying Polynomials", "(x^2/2+1)/3"), "#(x^2^/2+1)/3#");
}

TEST(DisplayLine, EndsTheFractionBeforeAParenthesisBehindItsDenominator) {
    EXPECT_EQ(Line("Simplifying Polynomials", "1/2(x+4)"), "#1/2#(x+4)");
    EXPECT_EQ(Line("Simplifying Polynomials", "x/4(2+1)"), "#x/4#(2+1)");
    EXPECT_EQ(Line("Simplifying Polynomials", "3/(4(2+1))"), "#3/(4(2+1))#");
}

TEST(DisplayLine, SetsANegativeOrBracketedDenominator) {
    EXPECT_EQ(Line("Arithmetic", "8/-2"), "#8/-2#");
    EXPECT_EQ(Line("Complex Arithmetic Expressions", "3/(4-2)"), "#3/(4-2)#");
}

TEST(DisplayLine, SetsBarsInNumeratorsAndDenominators) {
    EXPECT_EQ(Line("Absolute Values", "|-8|/2"), "#|-8|/2#");
    EXPECT_EQ(Line("Absolute Values", "2*|3-4|/2"), "2*#|3-4|/2#");
    EXPECT_EQ(Line("Absolute Values", "|4/2|"), "|#4/2#|");
    EXPECT_EQ(Line("Absolute Values", "4/-|3|"), "#4/-|3|#");
    EXPECT_EQ(Line("Absolute Values", "4/-|3-5|"), "#4/-|3-5|#");
    EXPECT_EQ(Line("Absolute Values", "4/-|3-5|+1/2"), "#4/-|3-5|#+#1/2#");
    EXPECT_EQ(Line("Absolute Values", "|8+6|/-|7|*2"), "#|8+6|/-|7|#*2");
}

TEST(DisplayLine, TakesNoFractionWithinBarsInADenominatorNorBehindThem) {
    EXPECT_EQ(Typed("Absolute Values", "4/-|3|/").typed.ProblemText, "4/-|3|");
    EXPECT_EQ(Typed("Absolute Values", "4/-|3-5/2").typed.ProblemText, "4/-|3-52");
    EXPECT_EQ(Line("Absolute Values", "|3-5/2|"), "|3-#5/2#|");
}

TEST(DisplayLine, KeepsAWrittenCoefficientOfOne) {
    EXPECT_EQ(Line("Simplifying Polynomials", "1x"), "1x");
}

}  // namespace
}  // namespace numerello
