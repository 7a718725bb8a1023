#include "catalogue/complete_line.h"

#include <gtest/gtest.h>

#include "typing.h"

namespace numerello {
namespace {

struct Case {
    const char* topic;
    const char* line;
    bool complete;

    friend void PrintTo(const Case& shown, std::ostream* out) {
        *out << shown.topic << ": " << shown.line;
    }
};

class CompleteLine : public testing::TestWithParam<Case> {};

TEST_P(CompleteLine, IsToldFromOneThatNobodyFinished) {
    const auto& [topic, line, complete] = GetParam();
    const Problem problem = Typed(topic, line);
    ASSERT_EQ(problem.typed.ProblemText, line) << topic;
    EXPECT_EQ(LineIsComplete(problem), complete) << topic << ": " << line;
}

constexpr Case kCases[] = {
    {"Arithmetic", "", false},
    {"Arithmetic", "4", true},
    {"Arithmetic", "4+", false},
    {"Arithmetic", "-", false},
    {"Arithmetic", "4.", false},
    {"Arithmetic", ".5", true},
    {"Arithmetic", "4/", false},
    {"Arithmetic", "1/0", true},
    {"Complex Arithmetic Expressions", "(4", false},
    {"Complex Arithmetic Expressions", "((4)+2)", true},
    {"Complex Arithmetic Expressions", "3^", false},
    {"Complex Arithmetic Expressions", "3^2", true},
    {"Negative Exponents", "x^-", false},
    {"Calculating Roots", "3~", false},
    {"Calculating Roots", "3~4", true},
    {"Calculating Roots", "3~4~", true},
    {"Absolute Values", "|4", false},
    {"Absolute Values", "|4|", true},
    {"Greatest Common Factors", "4,", true},
    {"Least Common Multiples", "4,6,", true},
    {"Medians", "4,6,", false},
    {"Medians", "4", true},
    {"Comparing Values", "4", false},
    {"Comparing Values", "4,", false},
    {"Comparing Values", "-3,4", true},
    {"Plotting A Point", "(4,8", false},
    {"Plotting A Point", "(4,8)", true},
    {"Calculating A Point's Quadrant", "(4,8)", true},
    {"Graphing A Line Using Two Points", "(1,2)", false},
    {"Graphing A Line Using Two Points", "(1,2)-", false},
    {"Graphing A Line Using Two Points", "(1,2)-(5,6)", true},
    {"Mixed To Fraction Notation", "2+1", false},
    {"Mixed To Fraction Notation", "2+1/2", true},
    {"Ratios", "1", false},
    {"Ratios", "1:2", true},
    {"Solving Equations", "x+3", false},
    {"Solving Equations", "x+3=", false},
    {"Solving Equations", "3=3", true},
    {"Graphing A Linear Equation", "y=2x", true},
    {"Fraction To Percent Notation", "3", false},
    {"Fraction To Mixed Notation", "7", false},
    {"Simplifying Fractions", "7", false},
    {"Simplifying Fractions", "7/2", true},
    {"Reciprocals", "7", true},
    {"Fraction To Decimal Notation", "7", true},
    {"Fraction Arithmetic", "1/2", true},
    {"Percent To Decimal Notation", "42", true},
    {"Percent To Decimal Notation", "42%", true},
    {"Decimal To Percent Notation", "42", true},
};

INSTANTIATE_TEST_SUITE_P(Cases, CompleteLine, testing::ValuesIn(kCases));

}  // namespace
}  // namespace numerello
