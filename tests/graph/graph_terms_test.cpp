#include <gtest/gtest.h>

#include "core/failure.h"
#include "core/number.h"
#include "graph/graph_terms.h"

namespace numerello {
namespace {

/// "2x^1 -3" for the terms of a side.
std::string Shown(const std::vector<GraphTerm>& side) {
    std::string text;
    for (const GraphTerm& term : side) {
        text += (text.empty() ? "" : " ") + NumberText(term.coefficient);
        if (term.letter != '\0') {
            text += std::string(1, term.letter) + "^" + NumberText(term.power);
        }
    }
    return text;
}

std::string Shown(std::string_view equation) {
    const GraphTerms terms = ReadGraphTerms(equation);
    return Shown(terms.left) + " = " + Shown(terms.right);
}

TEST(GraphTerms, ASideIsItsTermsWithCoefficientLetterAndPower) {
    EXPECT_EQ(Shown("+1/1y^+1=+2/1x+3/1"), "1y^1 = 2x^1 3");
    EXPECT_EQ(Shown("+1/1y^+1=-3/4x-1/2"), "1y^1 = -0.75x^1 -0.5");
    EXPECT_EQ(Shown("+1/1x^+1=+0"), "1x^1 = 0");
    EXPECT_EQ(Shown("3=y"), "3 = 1y^1");
}

TEST(GraphTerms, WhatIsMissingIsOne) {
    EXPECT_EQ(Shown("y=x"), "1y^1 = 1x^1");
    EXPECT_EQ(Shown("-y=-x^2"), "-1y^1 = -1x^2");
}

TEST(GraphTerms, APowerMayHaveASignAndBeAFraction) {
    EXPECT_EQ(Shown("y^+2=x^-1"), "1y^2 = 1x^-1");
    EXPECT_EQ(Shown("y=x^1/2+4"), "1y^1 = 1x^0.5 4");
    EXPECT_EQ(Shown("y=x^-3/4-x"), "1y^1 = 1x^-0.75 -1x^1");
}

TEST(GraphTerms, NumbersOfATermMultiply) {
    EXPECT_EQ(Shown("y=2x3/4"), "1y^1 = 1.5x^1");
    EXPECT_EQ(Shown("y=1.5x"), "1y^1 = 1.5x^1");
    EXPECT_EQ(Shown("y=--2x"), "1y^1 = 2x^1");
}

TEST(GraphTerms, TheMarksOfNotationArePassedOver) {
    EXPECT_EQ(Shown(" y = [2]x + #1/2# "), "1y^1 = 2x^1 0.5");
}

TEST(GraphTerms, AnEmptySideHasNoTerms) {
    EXPECT_EQ(Shown("y^+1="), "1y^1 = ");
}

FailureKind FailureOf(const std::string& equation) {
    try {
        ReadGraphTerms(equation);
    } catch (const Failure& failure) {
        return failure.Kind();
    }
    ADD_FAILURE() << equation << " was read";
    return FailureKind::Unanswered;
}

TEST(GraphTerms, WhatIsNoEquationOfTermsFails) {
    for (const char* equation :
         {"", "y", "y=x=3", "y=(x+1)", "y=|x|", "y=2*x", "y=xy", "y=xx", "y=z", "y=x^", "y=x^x",
          "y=+", "y=2/", "y=/2", "y=1..2", "y=.", "y=~x~", "y=x^+"}) {
        EXPECT_EQ(FailureOf(equation), FailureKind::Format) << equation;
    }
}

TEST(GraphTerms, ADenominatorZeroDivides) {
    EXPECT_EQ(FailureOf("y=2/0x"), FailureKind::DivisionByZero);
    EXPECT_EQ(FailureOf("x=0/0"), FailureKind::DivisionByZero);
}

TEST(GraphTerms, ASideHolds33Terms) {
    std::string equation = "y=";
    for (int i = 0; i < 33; ++i) {
        equation += "+x";
    }
    EXPECT_EQ(ReadGraphTerms(equation).right.size(), 33U);
    EXPECT_EQ(FailureOf(equation + "+x"), FailureKind::Format);
}

TEST(GraphTerms, TheCellsOfAProblemAreTheirTextTogether) {
    TypedProblem typed;
    EXPECT_EQ(EquationText(typed), "");
    const std::vector<std::string> cells{"+", "1/1", "y", "^", "+", "1", "=", "-", "2/3", "x"};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        typed.ExprVariants[static_cast<int>(i)] = cells[i];
    }
    EXPECT_EQ(EquationText(typed), "+1/1y^+1=-2/3x");
}

}  // namespace
}  // namespace numerello
