#include <gtest/gtest.h>

#include "app/solvers.h"
#include "tests/catalogue/typing.h"
#include "tests/learners.h"

namespace numerello {
namespace {

std::vector<std::string> Evaluated(std::string_view line, PromptedLearner& learner) {
    Problem problem = Typed("Evaluating Polynomials", line);
    Stage stage;
    compute_Click(problem, AllSolvers(), learner, stage);
    std::vector<std::string> lines;
    for (int i = 1; i < problem.log.StepCount; ++i) {
        lines.push_back(problem.log.StepText[i]);
    }
    return lines;
}

TEST(EvaluatingPolynomials, AsksForEachLetterInTurn) {
    PromptedLearner learner({"2", "5"});
    EXPECT_EQ(Evaluated("x+y", learner).back(), "7");
    EXPECT_EQ(learner.asked, (std::vector<std::string>{"x = ?: Enter a value for x",
                                                       "y = ?: Enter a value for y"}));
    EXPECT_TRUE(learner.messages.empty());
}

TEST(EvaluatingPolynomials, AsksAgainForWhatIsNoNumber) {
    PromptedLearner learner({"two", "", "1/2", "1E999", "-4"});
    EXPECT_EQ(Evaluated("x+1", learner).back(), "-3");
    EXPECT_EQ(learner.messages,
              std::vector<std::string>(4, "Please enter a number to replace for x"));
}

TEST(EvaluatingPolynomials, AsksAgainWithoutAWordForTooLargeANumber) {
    PromptedLearner learner({"999999999", "1000000000", "3"});
    EXPECT_EQ(Evaluated("x+1", learner).back(), "4");
    EXPECT_TRUE(learner.messages.empty());
    EXPECT_EQ(learner.asked.size(), 3U);
}

TEST(EvaluatingPolynomials, EndsWhereAQuestionIsNotAnswered) {
    PromptedLearner learner({"2"});
    EXPECT_EQ(Evaluated("x+y", learner), std::vector<std::string>{"x+y"});
}

}  // namespace
}  // namespace numerello
