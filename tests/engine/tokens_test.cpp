#include "engine/tokens.h"

#include <gtest/gtest.h>

#include "core/failure.h"

namespace numerello {
namespace {

constexpr int kPolynomials = 102;
constexpr int kFractions = 76;

/// The merged tokens with blanks between.
std::string Merged(std::string_view text, int ProblemType = kPolynomials) {
    std::string joined;
    for (const std::string& token : MergeNumberTokens(TextToTokens(text), ProblemType)) {
        joined += (joined.empty() ? "" : " ") + token;
    }
    return joined;
}

TEST(MergeNumberTokens, PutsDigitsTogether) {
    EXPECT_EQ(Merged("+12.5x-300"), "+ 12.5 x - 300");
    EXPECT_EQ(Merged("+.5"), "+ .5");
    EXPECT_EQ(Merged("+1.5E+10"), "+ 1.5E+10");
    EXPECT_EQ(Merged("+2~5+~9"), "+ 2~5 + ~9");
}

TEST(MergeNumberTokens, JoinsTwoNumbersToAFraction) {
    EXPECT_EQ(Merged("+3/4"), "+ 3/4");
    EXPECT_EQ(Merged("+12/34+5"), "+ 12/34 + 5");
    EXPECT_EQ(Merged("+1.5/2.5"), "+ 1.5/2.5");
    EXPECT_EQ(Merged("+x=7/2[+1]"), "+ x = 7/2 [ + 1 ]");
    EXPECT_EQ(Merged("+5/6*[2/2]"), "+ 5/6 * [ 2/2 ]");
    EXPECT_EQ(Merged("+(1/2)"), "+ ( 1/2 )");
}

TEST(MergeNumberTokens, KeepsTheSlashApartWhereMoreBindsTheSecondNumber) {
    EXPECT_EQ(Merged("+x/4"), "+ x / 4");
    EXPECT_EQ(Merged("+1/2x"), "+ 1 / 2 x");
    EXPECT_EQ(Merged("+1/23x"), "+ 1 / 23 x");
    EXPECT_EQ(Merged("+3/4^2"), "+ 3 / 4 ^ 2");
    EXPECT_EQ(Merged("+3/(4)"), "+ 3 / ( 4 )");
    EXPECT_EQ(Merged("+8/-2"), "+ 8 / - 2");
}

TEST(MergeNumberTokens, GivesAnExponentNoSlash) {
    EXPECT_EQ(Merged("+x^2/3"), "+ x ^ 2 / 3");
    EXPECT_EQ(Merged("+x^-2/3"), "+ x ^ - 2 / 3");
    EXPECT_EQ(Merged("+x^12"), "+ x ^ 12");
}

TEST(MergeNumberTokens, GivesANumberOneSlash) {
    EXPECT_EQ(Merged("+1/2/3/4", kFractions), "+ 1/2 / 3/4");
    EXPECT_EQ(Merged("+8x/8/8"), "+ 8 x / 8 / 8");
    EXPECT_EQ(Merged("+4^2/5/4"), "+ 4 ^ 2 / 5 / 4");
}

TEST(MergeNumberTokens, JoinsPowersOfTenToAFraction) {
    EXPECT_EQ(Merged("+3/1.5E+16"), "+ 3/1.5E+16");
    EXPECT_EQ(Merged("+1.5E+16/2.5E+17*4"), "+ 1.5E+16/2.5E+17 * 4");
    EXPECT_EQ(Merged("+3/1.5E+16/7/2", kFractions), "+ 3/1.5E+16 / 7/2");
    EXPECT_EQ(Merged("+3/1.5E+16x"), "+ 3 / 1.5E+16 x");
}

TEST(MergeNumberTokens, LeavesWhatIsMergedAsItIs) {
    for (const char* text : {"+12.5x-3/4", "+x^2/3", "+2~5*3", "+1.5E+10/3"}) {
        const Tokens once = MergeNumberTokens(TextToTokens(text), kPolynomials);
        EXPECT_EQ(MergeNumberTokens(once, kPolynomials), once) << text;
    }
}

TEST(TextToTokens, LeavesBlanksOut) {
    EXPECT_EQ(TextToTokens(" + 3 x "), (Tokens{"+", "3", "x"}));
    EXPECT_EQ(TokensToText(TextToTokens("+ 3x")), "+3x");
}

TEST(TokenKinds, AreToldByTheirCharacters) {
    EXPECT_TRUE(IsOperator("/"));
    EXPECT_FALSE(IsOperator("+3"));
    EXPECT_FALSE(IsOperator(""));
    EXPECT_TRUE(IsSign("-"));
    EXPECT_FALSE(IsSign("*"));
    EXPECT_TRUE(IsFraction("3/4"));
    EXPECT_FALSE(IsFraction("/"));
    EXPECT_FALSE(IsFraction("34"));
    EXPECT_TRUE(IsNumberToken("12"));
    EXPECT_TRUE(IsNumberToken("~5"));
    EXPECT_FALSE(IsNumberToken("x"));
}

/// The tokens of cells that stand at 4, 8, 12 ...
Tokens FromCells(std::initializer_list<const char*> tokens) {
    TypedProblem typed;
    int cell = 0;
    for (const char* token : tokens) {
        cell += 4;
        typed.ExprCells[cell] = token;
    }
    typed.ExprCellCount = cell;
    return CellsToTokens(typed);
}

TEST(CellsToTokens, BeginsWithASign) {
    EXPECT_EQ(FromCells({"4", "+", "2"}), (Tokens{"+", "4", "+", "2"}));
    EXPECT_EQ(FromCells({"-", "4"}), (Tokens{"-", "4"}));
    EXPECT_EQ(FromCells({"1/2", "{", "3/4"}), (Tokens{"+", "1/2", "/", "3/4"}));
}

TEST(CellsToTokens, FindsALiteralDivisionByZero) {
    for (const auto& cells : {std::initializer_list<const char*>{"1/0"},
                              {"1/0", "+", "3"},
                              {"1/0", "*", "3"},
                              {"1/0.0"},
                              {"1/0.0", "-", "2"},
                              {"x", "/", "0"}}) {
        try {
            FromCells(cells);
            ADD_FAILURE() << *cells.begin();
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Kind(), FailureKind::DivisionByZero);
        }
    }
    EXPECT_NO_THROW(FromCells({"1/0.00"}));
    EXPECT_NO_THROW(FromCells({"1/0.5"}));
    EXPECT_NO_THROW(FromCells({"1/05"}));
}

}  // namespace
}  // namespace numerello
