#include "help/worked_example.h"

#include <utility>

#include "app/solvers.h"
#include "catalogue/box_keys.h"
#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "core/erasing.h"
#include "core/text.h"
#include "help/help_error.h"
#include "worksheet/shown_note.h"

namespace numerello {

namespace {

constexpr int kViewWidth = 800;
/// More than any example that a page has room for.
constexpr int kMostSteps = 60;

[[noreturn]] void Refuse(std::string_view caption, std::string_view why) {
    throw HelpError(Text("the example of \"", caption, "\" ", why));
}

}  // namespace

void ChooseTopicForHelp(std::string_view caption, Problem& problem) {
    const FixedClock clock(0);
    MersenneSource random;
    TreeViewSelect(caption, problem.topic, clock, random);
    if (problem.topic.ProblemType == 0) {
        throw HelpError(Text("there is no topic \"", caption, "\""));
    }
    Stage noStage;
    EraseProblem(problem, noStage);
}

void WorkedExample::Answerer::MessageBox(std::string_view /*title*/, std::string_view text) {
    message = text;
}

bool WorkedExample::Answerer::Confirm(std::string_view /*title*/, std::string_view text) {
    message = text;
    return true;
}

std::optional<std::string> WorkedExample::Answerer::InputBox(std::string_view /*title*/,
                                                             std::string_view prompt) {
    if (questions.size() >= topic.answers.size()) {
        return std::nullopt;
    }
    questions.emplace_back(prompt);
    return topic.answers[questions.size() - 1];
}

void WorkedExample::Desk::ShowNextStep() {
    if (playback.NumberLine) {
        numberLine = playback.NumberLine;
    }
    ColumnWorksheet::ShowNextStep();
}

WorkedExample::WorkedExample(const TopicText& topic, const TextMetrics& metrics)
    : learner(topic), worksheet(problem, metrics, learner) {
    ChooseTopicForHelp(topic.caption, problem);
    worksheet.Open(kViewWidth);
    Enter(topic);
    if (!problem.controls.SolveEnabled) {
        Refuse(topic.caption, "is not complete");
    }
    const auto failure = compute_Click(problem, AllSolvers(), learner, worksheet);
    if (failure) {
        Refuse(topic.caption, Text("fails: ", FailureName(*failure)));
    }
    Play();
    if (!learner.message.empty()) {
        Refuse(topic.caption, Text("brings a message: ", learner.message));
    }
    if (learner.questions.size() != topic.answers.size()) {
        Refuse(topic.caption, "has an answer that nobody asks for");
    }
}

void WorkedExample::Enter(const TopicText& topic) {
    for (const std::string& key : Characters(topic.problem)) {
        Form_KeyPress(problem, key);
        if (!problem.input.KeyAccepted) {
            Refuse(topic.caption, Text("has a key that is refused: ", key));
        }
    }
    for (std::size_t i = 0; i < topic.boxes.Text.size(); ++i) {
        for (const std::string& key : Characters(topic.boxes.Text[i])) {
            if (!BoxKey(problem, static_cast<int>(i) + 1, key)) {
                Refuse(topic.caption, Text("has a key that a box refuses: ", key));
            }
        }
    }
    problem.boxes.ListIndex = topic.boxes.ListIndex;
    CheckBoxesReady(problem);
}

void WorkedExample::Play() {
    const auto& log = std::as_const(problem.log);
    const bool inColumns = problem.columns.Any();
    const auto take = [&] {
        const int shown = problem.playback.ShownStep;
        const bool hasLine = !inColumns && shown > 1 && shown < log.StepCount;
        if (inColumns || hasLine) {
            steps.push_back({hasLine ? log.StepText[shown] : "", std::string(ShownNote(problem))});
        }
    };
    take();
    while (worksheet.ArrowVisible() && steps.size() < kMostSteps) {
        worksheet.blinker_Click();
        take();
    }
    if (worksheet.ArrowVisible()) {
        Refuse(problem.topic.TopicTitle, "is too long for a page");
    }
}

}  // namespace numerello
