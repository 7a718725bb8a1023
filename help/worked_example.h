#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/column_worksheet.h"
#include "core/learner.h"
#include "help/topic_texts.h"

namespace numerello {

/// Chooses a topic and opens its entry form, as far as a problem knows of it.
void ChooseTopicForHelp(std::string_view caption, Problem& problem);

/// The example of a topic: typed through the filter, solved by the driver and played to its end,
/// as a learner does it.
class WorkedExample {
  public:
    /// A line of the solution, empty where it is a drawing in columns, and its reason.
    struct Step {
        std::string line;
        std::string reason;
    };

    /// Throws HelpError when a key is refused, or when the example cannot be solved without a
    /// message. The metrics must outlive the example.
    WorkedExample(const TopicText& topic, const TextMetrics& metrics);

    WorkedExample(const WorkedExample&) = delete;
    WorkedExample& operator=(const WorkedExample&) = delete;

    const Problem& Solved() const { return problem; }

    /// The lines behind the problem's own, or a reason for each drawing in columns.
    const std::vector<Step>& Steps() const { return steps; }

    /// The questions that were answered, in order.
    const std::vector<std::string>& Questions() const { return learner.questions; }

    /// What stands on the first sheet at the end.
    const Surface& Drawing() const { return worksheet.SheetAt(0).surface; }

    /// The number line that was drawn before the solution, where there is one.
    const std::optional<NumberLineRequest>& NumberLine() const { return worksheet.numberLine; }

  private:
    /// Answers from the example; any message means that it is none.
    class Answerer : public Learner {
      public:
        explicit Answerer(const TopicText& topic) : topic(topic) {}

        void MessageBox(std::string_view title, std::string_view text) override;
        bool Confirm(std::string_view title, std::string_view text) override;
        std::optional<std::string> InputBox(std::string_view title,
                                            std::string_view prompt) override;

        std::vector<std::string> questions;
        std::string message;

      private:
        const TopicText& topic;
    };

    /// Keeps what is asked to be drawn beside the lines; playing uses it up.
    class Desk : public ColumnWorksheet {
      public:
        Desk(Problem& problem, const TextMetrics& metrics, Learner& learner)
            : ColumnWorksheet(problem, metrics, learner), playback(problem.playback) {}

        void ShowNextStep() override;

        std::optional<NumberLineRequest> numberLine;

      private:
        const Playback& playback;
    };

    void Enter(const TopicText& topic);
    void Play();

    Problem problem;
    Answerer learner;
    Desk worksheet;
    std::vector<Step> steps;
};

}  // namespace numerello
