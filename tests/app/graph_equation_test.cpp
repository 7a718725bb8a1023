#include <gtest/gtest.h>

#include "app/solvers.h"
#include "tests/catalogue/typing.h"
#include "tests/learners.h"

namespace numerello {
namespace {

Problem Graphed(std::string_view equation, PromptedLearner& learner) {
    Problem problem = Typed("Graphing A Linear Equation", equation);
    Stage stage;
    compute_Click(problem, AllSolvers(), learner, stage);
    return problem;
}

std::vector<std::string> Cells(const Problem& problem) {
    std::vector<std::string> cells;
    for (int i = 0; !problem.typed.ExprVariants[i].empty(); ++i) {
        cells.push_back(problem.typed.ExprVariants[i]);
    }
    return cells;
}

TEST(GraphEquation, LeavesNumbersTogetherAndLettersAlone) {
    PromptedLearner learner({});
    const Problem problem = Graphed("2x+3y=6", learner);
    EXPECT_EQ(problem.graph.GraphMode, 3);
    EXPECT_TRUE(problem.controls.GraphEnabled);
    EXPECT_EQ(Cells(problem), (std::vector<std::string>{"+", "1/1", "y", "^", "+", "1", "=", "-",
                                                        "2/3", "x", "+", "2/1"}));
}

TEST(GraphEquation, AsksWhichOfTwoOtherLettersUntilItIsOneOfThem) {
    PromptedLearner learner({"q", "", "b"});
    const Problem problem = Graphed("a+b=3", learner);
    const std::string prompt = "Which variable do you want to solve for?";
    EXPECT_EQ(learner.asked, (std::vector<std::string>{prompt, prompt, prompt}));
    EXPECT_EQ(problem.log.StepText[problem.log.StepCount - 1], "b=-a+3");
}

TEST(GraphEquation, TakesTheAnswerInCapitalsToo) {
    PromptedLearner learner({"B"});
    EXPECT_EQ(Graphed("a+b=3", learner).graph.GraphMode, 3);
    EXPECT_EQ(learner.asked.size(), 1U);
}

TEST(GraphEquation, TellsThatTheLetterAskedForHasGone) {
    PromptedLearner learner({});
    const Problem problem = Graphed("0y+x=3", learner);
    EXPECT_EQ(problem.graph.GraphMode, 3);
    EXPECT_EQ(problem.log.StepText[2], "x=3");
    EXPECT_EQ(problem.log.StepNote[2],
              "This cannot be solved for y because it has been cancelled out of the equation. "
              "Instead we will solve for x.");
}

TEST(GraphEquation, AsksNothingWhenYStandsFirst) {
    PromptedLearner learner({});
    EXPECT_EQ(Graphed("y=5", learner).graph.GraphMode, 3);
    EXPECT_EQ(Graphed("x=3", learner).graph.GraphMode, 3);
    EXPECT_EQ(Graphed("y-2x=4", learner).graph.GraphMode, 3);
    EXPECT_TRUE(learner.asked.empty());
}

TEST(GraphEquation, EndsWithoutAnAnswer) {
    PromptedLearner learner({});
    const Problem problem = Graphed("a+b=3", learner);
    EXPECT_EQ(problem.graph.GraphMode, 0);
    EXPECT_FALSE(problem.controls.GraphEnabled);
    EXPECT_EQ(problem.log.StepCount, 1);
}

TEST(GraphEquation, HasNothingToDrawWithoutALetter) {
    PromptedLearner learner({});
    const Problem problem = Graphed("y=y+3", learner);
    EXPECT_EQ(problem.graph.GraphMode, 0);
    EXPECT_FALSE(problem.controls.GraphEnabled);
    EXPECT_EQ(problem.log.StepText[problem.log.StepCount - 1], "0$3");
    EXPECT_EQ(Graphed("y+x=y+x+1", learner).graph.GraphMode, 0);
    EXPECT_EQ(Graphed("y+x=y+x", learner).graph.GraphMode, 0);
}

}  // namespace
}  // namespace numerello
