#include <gtest/gtest.h>

#include "core/failure.h"
#include "engine_log.h"

namespace numerello {
namespace {

using Lines = std::vector<std::string>;

/// The lines of putting a sum's like terms together.
Lines Combined(std::string_view text, AnswerSettings settings = {}, int code = 102) {
    Problem problem = ProblemWith(text, code);
    problem.settings = settings;
    Engine engine(problem);
    engine.SetText(text);
    engine.RecordStep();
    engine.CombineUntilStable(0);
    return LinesOf(problem);
}

TEST(CombineTerms, NamesTheRowFirstWhenItAddsAndTheTermFirstWhenItSubtracts) {
    EXPECT_EQ(Combined("3x+2x"),
              (Lines{"3x+2x | ", "5x | Add 3x and 2x to form the new term (5x)."}));
    EXPECT_EQ(Combined("3x-3x"),
              (Lines{"3x-3x | ", "0 | Subtract 3x from 3x to form the new term (0)."}));
    EXPECT_EQ(Combined("-x+x"), (Lines{"-x+x | ", "0 | Add -x and x to form the new term (0)."}));
}

TEST(CombineTerms, TakesAPowerOfZeroForOne) {
    EXPECT_EQ(Combined("x^0"),
              (Lines{"x^0^ | ", "1 | Any variable or number raised to the 0th power is 1."}));
    EXPECT_EQ(Combined("-3x^0y").back(),
              "-3y | Any variable or number raised to the 0th power is 1.");
}

TEST(CombineTerms, DividesZero) {
    EXPECT_EQ(Combined("0/5"), (Lines{"#0/5# | ", "0 | 0 divided by any number equals 0."}));
}

TEST(CombineTerms, ConvertsInDecimalMode) {
    AnswerSettings decimals;
    decimals.UseFractions = false;
    EXPECT_EQ(Combined("1/4", decimals),
              (Lines{"#1/4# | ",
                     "0.25 | Convert #1/4# to decimal notation by dividing the "
                     "numerator by the denominator (0.25)."}));
    EXPECT_EQ(Combined("3x/2", decimals),
              (Lines{"#3x/2# | ",
                     "1.5x | Convert #3/2# to decimal notation by dividing the "
                     "numerator by the denominator. (1.5)."}));
}

TEST(CombineTerms, TurnsDecimalsIntoFractions) {
    EXPECT_EQ(Combined("0.125"),
              (Lines{"0.125 | ", "#1/8# | Convert the decimal number to a fraction."}));
    EXPECT_EQ(Combined("0.5x"), (Lines{"0.5x | ",
                                       "#x/2# | Convert the decimal number to a "
                                       "fraction"}));
}

/// x+x^2+x^3 and so on: terms that are all unlike.
std::string UnlikeTerms(int count) {
    std::string text;
    for (int i = count; i >= 1; --i) {
        text += text.empty() ? "" : "+";
        text += "x^" + std::to_string(i);
    }
    return text;
}

TEST(CombineTerms, HoldsFifteenUnlikeTerms) {
    EXPECT_EQ(Combined(UnlikeTerms(15)).size(), 1U);
    EXPECT_THROW(Combined(UnlikeTerms(16)), Failure);
}

TEST(CombineTerms, LeavesTheFactorsOfAProductWithARoot) {
    EXPECT_EQ(Combined("2*~3+1+2", {}, 82),
              (Lines{"2*~3~+1+2 | ", "2*~3~+3 | Add 1 and 2 to form the new term (3)."}));
}

TEST(CombineTerms, GivesTheDecreasingOrderOnce) {
    const std::string note =
        "Polynomials are written in decreasing order of terms. The largest term or the term with "
        "the highest exponent in the polynomial is usually written first. The first term in a "
        "polynomial is called the leading term. ";
    EXPECT_EQ(Combined("2+3x"), (Lines{"2+3x | ", "3x+2 | " + note}));
    EXPECT_EQ(Combined("x+x^2+x"),
              (Lines{"x+x^2^+x | ", "2x+x^2^ | Add x and x to form the new term (2x).",
                     "x^2^+2x | " + note}));
}

TEST(CombineTerms, LeavesWhatIsAloneAsItIs) {
    EXPECT_EQ(Combined("12345678901"), Lines{"12345678901 | "});
    EXPECT_EQ(Combined("1x"), Lines{"x | "});
}

TEST(SortTerms, KeepsTheOrderOfEqualDegrees) {
    Problem problem = ProblemWith("xy", 102);
    Engine engine(problem);
    engine.SetText("7+xy+3x^3-x+2x^3");
    engine.RecordStep();
    EXPECT_EQ(engine.SortTerms(0), "+3x^3+2x^3+xy-x+7");
}

TEST(CombineUntilStable, EndsAtOnceWhenNothingChanges) {
    Problem problem = ProblemWith("x", 102);
    Engine engine(problem);
    engine.SetText("x+1");
    engine.RecordStep();
    engine.CombineUntilStable(0);
    EXPECT_TRUE(problem.log.StepUnchanged);
    EXPECT_EQ(problem.log.StepCount, 2);
}

TEST(RemoveParens, TakesOnlySafeBracketsAway) {
    const auto without = [](std::string_view text) {
        Problem problem = ProblemWith(text, 102);
        Engine engine(problem);
        engine.SetText(text);
        engine.RecordStep();
        return engine.RemoveParens() ? engine.ExprToText() : "stays";
    };
    EXPECT_EQ(without("(x)+3"), "+x+3");
    EXPECT_EQ(without("(x+1)/2"), "stays");
    EXPECT_EQ(without("2(x+1)"), "stays");
    EXPECT_EQ(without("(x+1)^2"), "stays");
    EXPECT_EQ(without("3-(x+1)"), "stays");
    EXPECT_EQ(without("(x+1)(x-1)"), "stays");
    EXPECT_EQ(without("6/(2)"), "+6/2");
}

TEST(MultiplyGroups, MultipliesEachTermByEachOne) {
    Problem problem = ProblemWith("(x+1)(x-1)", 102);
    Engine engine(problem);
    engine.SetText("(x+1)(x-1)");
    engine.SimplifyExpression();
    EXPECT_EQ(LinesOf(problem),
              (Lines{"(x+1)(x-1) | ",
                     "(x^2^-x+x-1) | Multiply the polynomials together by multiplying each term of "
                     "the first by every term in the second.",
                     "x^2^-x+x-1 | Remove the parenthesis.",
                     "x^2^-1 | Add -x and x to form the new term (0)."}));
}

TEST(MultiplyGroups, FailsPastAHundredProducts) {
    Problem problem = ProblemWith("x", 102);
    Engine engine(problem);
    engine.SetText("(" + UnlikeTerms(11) + ")(" + UnlikeTerms(10) + ")");
    engine.RecordStep();
    EXPECT_THROW(engine.MultiplyGroups(0), Failure);
}

TEST(ExpandPower, WritesAPowerOfZeroAsOne) {
    Problem problem = ProblemWith("(x+1)^0", 102);
    Engine engine(problem);
    engine.SetText("(x+1)^0");
    engine.RecordStep();
    EXPECT_TRUE(engine.ExpandPower(0));
    EXPECT_EQ(problem.log.StepReason, "Any number raised to the 0th power is 1.");
    EXPECT_EQ(engine.ExprToText(), "+(+1)");
}

TEST(ExpandConstantTerms, FailsForZeroToNoOrANegativePower) {
    for (const std::string_view text : {"0^0", "0^-2", "3+0^0"}) {
        Problem problem = ProblemWith(text, 102);
        Engine engine(problem);
        engine.SetText(text);
        engine.RecordStep();
        EXPECT_THROW(engine.ExpandConstantTerms(0), Failure) << text;
    }
}

TEST(SideToPlainText, WritesBothSides) {
    Problem problem = ProblemWith("x", 105);
    Engine engine(problem);
    engine.SetText("y=-2x^2+3/4");
    engine.RecordStep();
    EXPECT_EQ(engine.SideToPlainText(), "+1/1y=-2/1x^+2+3/4");
    engine.SetText("x=0");
    engine.RecordStep();
    EXPECT_EQ(engine.SideToPlainText(), "+1/1x=+0");
}

}  // namespace
}  // namespace numerello
