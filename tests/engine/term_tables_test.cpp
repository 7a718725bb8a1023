#include "engine/term_tables.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "engine/normalise.h"

namespace numerello {
namespace {

TermTables Read(std::string_view text, int Side = 0) {
    constexpr int kPolynomials = 102;
    const Tokens tokens = MergeNumberTokens(TextToTokens(text), kPolynomials);
    return BreakIntoTerms(NormaliseTokens(tokens), Side);
}

Term OnlyTerm(std::string_view text) {
    const TermTables tables = Read(text);
    EXPECT_EQ(tables.groups.size(), 1U) << text;
    EXPECT_EQ(tables.groups[0].terms.size(), 1U) << text;
    return tables.groups[0].terms.at(0);
}

TEST(BreakIntoTerms, ReadsCoefficientAndLetters) {
    const Term term = OnlyTerm("3x");
    EXPECT_EQ(term.Num, 3);
    EXPECT_EQ(term.Den, 1);
    EXPECT_EQ(term.NumText, "x");
    EXPECT_EQ(term.Degree, 1);
    EXPECT_EQ(OnlyTerm("-x").Num, -1);
    EXPECT_EQ(OnlyTerm("-2x^3y").NumText, "x^3y");
    EXPECT_EQ(OnlyTerm("-2x^3y").Degree, 3);
    EXPECT_EQ(OnlyTerm("yx^2").Degree, 1);
}

TEST(BreakIntoTerms, ReadsExponents) {
    EXPECT_EQ(OnlyTerm("x^2").Degree, 2);
    EXPECT_EQ(OnlyTerm("x^2").NumPower, 1);
    EXPECT_EQ(OnlyTerm("x^-2").NumText, "x^-2");
    EXPECT_EQ(OnlyTerm("x^-2").Degree, -2);
    const Term power = OnlyTerm("3^2");
    EXPECT_EQ(power.Num, 3);
    EXPECT_EQ(power.NumPower, 2);
    EXPECT_EQ(power.NumText, "^2");
}

TEST(BreakIntoTerms, KeepsTheExponentsOverAndUnderTheLineApart) {
    const Term over = OnlyTerm("3^2/4");
    EXPECT_EQ(over.NumPower, 2);
    EXPECT_EQ(over.DenPower, 1);
    EXPECT_EQ(over.Den, 4);
    EXPECT_TRUE(over.DivideMark);
    const Term under = OnlyTerm("3/4^2");
    EXPECT_EQ(under.NumPower, 1);
    EXPECT_EQ(under.DenPower, 2);
    EXPECT_EQ(under.DenText, "^2");
}

TEST(BreakIntoTerms, ReadsFractionsDecimalsAndRoots) {
    const Term fraction = OnlyTerm("-3/4");
    EXPECT_EQ(fraction.Num, -3);
    EXPECT_EQ(fraction.Den, 4);
    EXPECT_EQ(fraction.FractionText, "3/4");
    EXPECT_EQ(fraction.Value(), -0.75F);
    EXPECT_FALSE(fraction.DivideMark);
    EXPECT_EQ(OnlyTerm("2.5").FractionText, "2.5");
    EXPECT_EQ(OnlyTerm("25").FractionText, "");
    EXPECT_EQ(OnlyTerm("9x/6").Den, 6);
    const Term root = OnlyTerm("2~5");
    EXPECT_EQ(root.Num, 2);
    EXPECT_EQ(root.NumText, "~5");
    EXPECT_EQ(OnlyTerm("~5").Num, 1);
}

TEST(BreakIntoTerms, JoinsTermsByTheirMarks) {
    const Group group = Read("4+2*3-5").groups.at(0);
    ASSERT_EQ(group.terms.size(), 4U);
    EXPECT_EQ(group.terms[1].OpMark, "+");
    EXPECT_EQ(group.terms[2].OpMark, "*");
    EXPECT_EQ(group.terms[2].Num, 3);
    EXPECT_EQ(group.terms[3].OpMark, "-");
    EXPECT_EQ(group.terms[3].Num, -5);
    EXPECT_TRUE(group.ProductMark);
    EXPECT_FALSE(Read("4-5").groups.at(0).ProductMark);
}

TEST(BreakIntoTerms, ReadsOneSideOfAnEquation) {
    EXPECT_EQ(Read("2x+3=7", 0).groups.at(0).terms.size(), 2U);
    const Group right = Read("2x+3=7", 1).groups.at(0);
    ASSERT_EQ(right.terms.size(), 1U);
    EXPECT_EQ(right.terms[0].Num, 7);
}

TEST(BreakIntoTerms, FindsTheDeepestBrackets) {
    const TermTables tables = Read("2(x+1)+(3-(4+5))");
    EXPECT_EQ(tables.Depth, 2);
    ASSERT_EQ(tables.groups.size(), 1U);
    EXPECT_EQ(tables.groups[0].terms.size(), 2U);
    EXPECT_EQ(tables.groups[0].Coef(), -1);
}

TEST(BreakIntoTerms, ReadsTheFactorInFront) {
    EXPECT_EQ(Read("2(x+1)").groups.at(0).Coef(), 2);
    EXPECT_EQ(Read("3-2(x+1)").groups.at(0).Coef(), -2);
    EXPECT_EQ(Read("3+(x+1)").groups.at(0).Coef(), 1);
    EXPECT_FALSE(Read("3+(x+1)").groups.at(0).front.has_value());
    EXPECT_EQ(Read("x(x+1)").groups.at(0).front->NumText, "x");
    EXPECT_FALSE(Read("12/(4-2)").groups.at(0).front.has_value());
    const Group divided = Read("12/4(1+2)").groups.at(0);
    EXPECT_EQ(divided.Coef(), 12);
    EXPECT_EQ(divided.front->Den, 4);
    EXPECT_EQ(Read("x^-2(3)").groups.at(0).front->NumText, "x^-2");
}

TEST(BreakIntoTerms, LinksBracketsThatTouch) {
    const TermTables tables = Read("(x+1)*(x-1)+(2)");
    ASSERT_EQ(tables.groups.size(), 3U);
    EXPECT_EQ(tables.groups[0].NextGroup, 1);
    EXPECT_EQ(tables.groups[1].NextGroup, -1);
    EXPECT_FALSE(tables.groups[1].front.has_value());
}

TEST(BreakIntoTerms, ReadsTheBracketsPower) {
    const Group squared = Read("(x+1)^2+3").groups.at(0);
    EXPECT_EQ(squared.Power, 2);
    EXPECT_EQ(squared.tail, squared.end + 3);
    EXPECT_EQ(Read("(x+1)^-2").groups.at(0).Power, -2);
    EXPECT_EQ(Read("(x+1)").groups.at(0).Power, 1);
}

TEST(BreakIntoTerms, FailsForABracketWithoutTheExponentThatItsMarkAsksFor) {
    EXPECT_THROW(Read("(x+1)^"), Failure);
    EXPECT_THROW(Read("(x+1)^-"), Failure);
    EXPECT_THROW(Read("(x+1)^=2"), Failure);
    EXPECT_THROW(Read("2=(x+1)^", 1), Failure);
}

TEST(BreakIntoTerms, FindsNoFactorBeforeBarsThatBeginASide) {
    const Group bars = Read("x=|3|", 1).groups.at(0);
    EXPECT_TRUE(bars.IsAbsolute);
    EXPECT_FALSE(bars.front.has_value());
}

TEST(BreakIntoTerms, CountsBarsAsBrackets) {
    const TermTables tables = Read("2*|5-3|+|-2|");
    EXPECT_EQ(tables.Depth, 1);
    ASSERT_EQ(tables.groups.size(), 2U);
    EXPECT_TRUE(tables.groups[0].IsAbsolute);
    EXPECT_EQ(tables.groups[0].terms.size(), 2U);
    EXPECT_EQ(tables.groups[1].terms.at(0).Num, -2);
}

TEST(BreakIntoTerms, EndsAtItsBounds) {
    std::string terms;
    for (int i = 0; i < 100; ++i) {
        terms += "+1";
    }
    EXPECT_EQ(Read(terms).groups.at(0).terms.size(), 100U);
    EXPECT_THROW(Read(terms + "+1"), Failure);
    EXPECT_EQ(Read(std::string(20, '(') + "1" + std::string(20, ')')).Depth, 20);
    EXPECT_THROW(Read(std::string(21, '(') + "1" + std::string(21, ')')), Failure);
    std::string groups;
    for (int i = 0; i < 51; ++i) {
        groups += "+(1)";
    }
    EXPECT_EQ(Read(groups).groups.size(), 51U);
    EXPECT_THROW(Read(groups + "+(1)"), Failure);
}

TEST(BreakIntoTerms, HoldsNumbersAsSingles) {
    EXPECT_EQ(OnlyTerm("16777217").Num, 16777216.0F);
    EXPECT_THROW(Read("1E+39"), Failure);
    EXPECT_THROW(OnlyTerm("1/0").Value(), Failure);
}

}  // namespace
}  // namespace numerello
