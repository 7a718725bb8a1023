#include <gtest/gtest.h>

#include "app/solvers.h"
#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "core/erasing.h"

namespace numerello {
namespace {

/// Answers prompts from a list and keeps what was asked and told.
class PromptedLearner : public Learner {
  public:
    explicit PromptedLearner(std::vector<std::string> answers) : answers(std::move(answers)) {}

    void MessageBox(std::string_view, std::string_view text) override { told.emplace_back(text); }
    bool Confirm(std::string_view, std::string_view) override { return true; }
    std::optional<std::string> InputBox(std::string_view title, std::string_view prompt) override {
        asked.push_back(std::string(title) + " | " + std::string(prompt));
        return asked.size() <= answers.size() ? std::optional(answers[asked.size() - 1])
                                              : std::nullopt;
    }

    std::vector<std::string> asked;
    std::vector<std::string> told;

  private:
    std::vector<std::string> answers;
};

std::vector<std::string> Evaluated(std::string_view line, PromptedLearner& learner) {
    Problem problem;
    MersenneSource random;
    Stage stage;
    TreeViewSelect("Evaluating Polynomials", problem.topic, SystemClock(), random);
    EraseProblem(problem, stage);
    for (const char key : line) {
        Form_KeyPress(problem, std::string_view(&key, 1));
    }
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
    EXPECT_EQ(learner.asked, (std::vector<std::string>{"x = ? | Enter a value for x",
                                                       "y = ? | Enter a value for y"}));
    EXPECT_TRUE(learner.told.empty());
}

TEST(EvaluatingPolynomials, AsksAgainForWhatIsNoNumber) {
    PromptedLearner learner({"two", "", "1/2", "1E999", "-4"});
    EXPECT_EQ(Evaluated("x+1", learner).back(), "-3");
    EXPECT_EQ(learner.told, std::vector<std::string>(4, "Please enter a number to replace for x"));
}

TEST(EvaluatingPolynomials, AsksAgainWithoutAWordForTooLargeANumber) {
    PromptedLearner learner({"999999999", "1000000000", "3"});
    EXPECT_EQ(Evaluated("x+1", learner).back(), "4");
    EXPECT_TRUE(learner.told.empty());
    EXPECT_EQ(learner.asked.size(), 3U);
}

TEST(EvaluatingPolynomials, EndsWhereAQuestionIsNotAnswered) {
    PromptedLearner learner({"2"});
    EXPECT_EQ(Evaluated("x+y", learner), std::vector<std::string>{"x+y"});
}

}  // namespace
}  // namespace numerello
