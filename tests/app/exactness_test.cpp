#include "equation_check.h"
#include "judging.h"

/// Every line of the log of an invented problem has the value of the problem, and the last one is
/// worked out.
namespace numerello {
namespace {

class Exactness : public ::testing::TestWithParam<int> {};

TEST_P(Exactness, EveryLineEqualsTheProblem) {
    JudgeMany(GetParam(), 20264, kInventedProblems, AnswerSettings(), JudgeExactLines);
}

INSTANTIATE_TEST_SUITE_P(Topics, Exactness,
                         ::testing::Values(91, 121, 81, 102, 82, 83, 76, 150, 120, 103),
                         ::testing::PrintToStringParamName());

class EquationLines : public ::testing::TestWithParam<int> {};

TEST_P(EquationLines, HaveTheSolutionsOfTheProblem) {
    JudgeMany(GetParam(), 20266, kInventedProblems, AnswerSettings(), JudgeEquation);
}

INSTANTIATE_TEST_SUITE_P(Topics, EquationLines, ::testing::Values(101, 105),
                         ::testing::PrintToStringParamName());

TEST(Code122, HasTheSolutionsOfTheProblemOnEveryLine) {
    JudgeMany(122, 20268, kInventedProblems / 10, AnswerSettings(), JudgeEquation);
}

class Rounding : public ::testing::TestWithParam<int> {};

TEST_P(Rounding, GoesNoFurtherThanTheDigits) {
    AnswerSettings decimals;
    decimals.UseFractions = false;
    JudgeMany(GetParam(), 20265, kInventedProblems / 5, decimals, JudgeRoundedLines);
}

INSTANTIATE_TEST_SUITE_P(Topics, Rounding, ::testing::Values(91, 121, 81, 102, 120),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace numerello
