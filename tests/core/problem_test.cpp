#include "core/problem.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

void TypeAll(TypedProblem& typed, std::string_view keys) {
    for (const char key : keys) {
        typed.ExprChars[typed.ExprCharCount++] = std::string(1, key);
    }
}

TEST(ResetProblem, LeavesNothingTyped) {
    Problem problem;
    TypeAll(problem.typed, "3x+y");
    problem.typed.ProblemText = "3x+y";
    CollectVariables(problem.typed);
    problem.typed.ExprCells[4] = "3";
    problem.typed.ExprCellCount = 4;
    problem.typed.ExprVariants[0] = "x";
    problem.input.EqualsTyped = problem.input.InExponent = problem.input.InFraction = true;
    problem.input.RootOpen = problem.input.AbsOpen = true;
    problem.input.ParenDepth = problem.input.AbsDepth = problem.input.FractionDepth = 2;
    problem.input.KeyAccepted = true;
    problem.input.InputError = "why";
    problem.typed.DisplayLine = "3x+y";
    problem.log.FreshProblem = false;

    ResetProblem(problem, true);

    const TypedProblem& typed = problem.typed;
    EXPECT_EQ(typed.ExprChars[0], "");
    EXPECT_EQ(typed.ExprCells[4], "");
    EXPECT_EQ(typed.ExprVariants[0], "");
    EXPECT_EQ(typed.ExprCharCount, 0);
    EXPECT_EQ(typed.ExprCellCount, 0);
    EXPECT_EQ(typed.VarCount, 0);
    EXPECT_EQ(typed.VarNames[1], "");
    EXPECT_EQ(typed.VarNames[2], "");
    EXPECT_EQ(typed.ProblemText, "");
    EXPECT_FALSE(problem.input.EqualsTyped);
    EXPECT_FALSE(problem.input.InExponent);
    EXPECT_FALSE(problem.input.InFraction);
    EXPECT_FALSE(problem.input.RootOpen);
    EXPECT_FALSE(problem.input.AbsOpen);
    EXPECT_EQ(problem.input.ParenDepth, 0);
    EXPECT_EQ(problem.input.AbsDepth, 0);
    EXPECT_EQ(problem.input.FractionDepth, 0);
    EXPECT_FALSE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.input.InputError, "");
    EXPECT_EQ(typed.DisplayLine, "");
    EXPECT_TRUE(problem.log.FreshProblem);
}

TEST(ResetProblem, LeavesOneFreeStepWhenNothingWasTyped) {
    Problem problem;
    ResetProblem(problem, true);
    EXPECT_EQ(problem.log.StepCount, 1);
    EXPECT_EQ(problem.typed.ExprCharCount, 0);
    EXPECT_EQ(problem.typed.VarCount, 0);
}

TEST(ResetProblem, ClearsTheStepsOnlyWhenTold) {
    Problem problem;
    problem.log.Write("40", "");
    problem.log.StepLevels[1] = 2;
    ResetProblem(problem, false);
    EXPECT_EQ(problem.log.StepCount, 2);
    EXPECT_EQ(problem.log.StepText[1], "40");
    EXPECT_EQ(problem.log.StepLevels[1], 2);

    problem.log.StepNote[7] = "left over";
    ResetProblem(problem, true);
    EXPECT_EQ(problem.log.StepCount, 1);
    EXPECT_EQ(problem.log.StepText[1], "");
    EXPECT_EQ(problem.log.StepNote[7], "");
    EXPECT_EQ(problem.log.StepLevels[1], 99);
}

TEST(ResetProblem, ForgetsTheLastRecordedLineWithTheSteps) {
    Problem problem;
    problem.log.LastStepLine = "5";
    problem.log.StepReason = "Subtract 5 from 10.";
    problem.log.StepUnchanged = true;
    ResetProblem(problem, false);
    EXPECT_EQ(problem.log.LastStepLine, "5");
    ResetProblem(problem, true);
    EXPECT_EQ(problem.log.LastStepLine, "");
    EXPECT_EQ(problem.log.StepReason, "");
    EXPECT_FALSE(problem.log.StepUnchanged);
}

TEST(ResetProblem, KeepsTheTopicAndTheSettings) {
    Problem problem;
    problem.topic.ProblemType = 53;
    problem.topic.InstructionText = "Enter a number.";
    problem.settings.RoundDigits = 4;
    ResetProblem(problem, true);
    EXPECT_EQ(problem.topic.ProblemType, 53);
    EXPECT_EQ(problem.topic.InstructionText, "Enter a number.");
    EXPECT_EQ(problem.settings.RoundDigits, 4);
}

TEST(CollectVariables, ListsEachLetterOnceFromIndexOne) {
    TypedProblem typed;
    TypeAll(typed, "3x+y-2x*z");
    CollectVariables(typed);
    EXPECT_EQ(typed.VarCount, 4);
    EXPECT_EQ(typed.VarNames[0], "");
    EXPECT_EQ(typed.VarNames[1], "x");
    EXPECT_EQ(typed.VarNames[2], "y");
    EXPECT_EQ(typed.VarNames[3], "z");
    EXPECT_EQ(FindVariable(typed, "y"), 2);
    EXPECT_EQ(FindVariable(typed, "w"), 0);
    EXPECT_EQ(FindVariable(typed, ""), 0);
}

TEST(CollectVariables, CountsOneWithoutLetters) {
    TypedProblem typed;
    TypeAll(typed, "3+4");
    CollectVariables(typed);
    EXPECT_EQ(typed.VarCount, 1);
}

TEST(CollectVariables, KeepsTheCellsAboveTheTwentieth) {
    TypedProblem typed;
    typed.VarNames[20] = "t";
    typed.VarNames[21] = "u";
    CollectVariables(typed);
    EXPECT_EQ(typed.VarNames[20], "");
    EXPECT_EQ(typed.VarNames[21], "u");
}

TEST(IsTypedOnLine, HoldsBetweenTheBoxTopics) {
    EXPECT_FALSE(IsTypedOnLine(0));
    EXPECT_FALSE(IsTypedOnLine(27));
    EXPECT_TRUE(IsTypedOnLine(28));
    EXPECT_TRUE(IsTypedOnLine(199));
    EXPECT_FALSE(IsTypedOnLine(200));
}

}  // namespace
}  // namespace numerello
