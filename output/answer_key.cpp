#include "output/answer_key.h"

#include <utility>

#include "catalogue/box_keys.h"
#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "core/erasing.h"
#include "core/text.h"
#include "core/topic_codes.h"

namespace numerello {

namespace {

/// Answers as the key needs it; what was told last ends up in the key.
class KeyLearner : public Learner {
  public:
    explicit KeyLearner(const Problem& problem) : problem(problem) {}

    void MessageBox(std::string_view /*title*/, std::string_view text) override { told = text; }
    bool Confirm(std::string_view /*title*/, std::string_view /*text*/) override { return true; }
    std::optional<std::string> InputBox(std::string_view /*title*/,
                                        std::string_view /*prompt*/) override {
        // The letter that a line is solved for is asked where it has x and y. Asked again, the
        // answer would be the same.
        const bool wantsLetter = problem.topic.ProblemType == kGraphingAnEquation;
        return wantsLetter && !std::exchange(asked, true) ? std::optional<std::string>("y")
                                                          : std::nullopt;
    }

    std::string told;

  private:
    const Problem& problem;
    bool asked = false;
};

void EnterLine(Problem& problem, std::string_view keys) {
    for (const std::string& key : Characters(keys)) {
        FormFilter(problem, key);
        // A test keeps the digits that are too many for the line of the form.
        if (!problem.input.KeyAccepted && IsDigit(key)) {
            StoreDigitUnjudged(problem, key);
        }
    }
}

Problem Entered(const TestProblem& asked) {
    Problem problem;
    const SystemClock clock;
    MersenneSource random;
    Stage noStage;
    TreeViewSelect(asked.topic.TopicTitle, problem.topic, clock, random);
    EraseProblem(problem, noStage);
    problem.boxes = asked.boxes;
    CheckBoxesReady(problem);
    if (IsTypedOnLine(problem.topic.ProblemType)) {
        EnterLine(problem, asked.keys);
    }
    return problem;
}

Problem Worked(const TestProblem& asked, const AnswerSettings& settings, const Solvers& solvers) {
    Problem problem = Entered(asked);
    problem.settings = settings;
    KeyLearner learner(problem);
    Stage noStage;
    compute_Click(problem, solvers, learner, noStage);
    if (!learner.told.empty()) {
        problem.log.Write(learner.told, "");
    }
    return problem;
}

}  // namespace

std::vector<WorkedProblem> AnswerKey(std::span<const TestProblem> problems,
                                     const AnswerSettings& settings, const Solvers& solvers) {
    std::vector<WorkedProblem> key;
    for (const TestProblem& asked : problems) {
        key.push_back({asked.line, Worked(asked, settings, solvers)});
    }
    return key;
}

}  // namespace numerello
