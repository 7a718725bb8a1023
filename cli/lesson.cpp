#include "cli/lesson.h"

#include <iomanip>
#include <optional>
#include <sstream>
#include <utility>

#include "app/solvers.h"
#include "catalogue/bare_form.h"
#include "catalogue/examples/example_click.h"
#include "catalogue/topic_choice.h"
#include "cli/column_picture.h"
#include "cli/column_stage.h"
#include "cli/lesson_entry.h"
#include "cli/terminal.h"
#include "cli/terminal_text.h"
#include "core/erasing.h"
#include "core/text.h"

namespace numerello {

namespace {

/// Tells and asks in the terminal.
class TerminalLearner : public Learner {
  public:
    explicit TerminalLearner(Terminal& terminal) : terminal(terminal) {}

    void MessageBox(std::string_view title, std::string_view text) override {
        terminal.Say(Text(title, title.empty() ? "" : "  ", TerminalText(text)));
        if (text.find("Click the 'Erase' button") != std::string_view::npos) {
            terminal.Say("In the terminal Enter erases the problem.");
        }
    }
    bool Confirm(std::string_view /*title*/, std::string_view /*text*/) override { return true; }
    std::optional<std::string> InputBox(std::string_view title, std::string_view prompt) override {
        if (command != Next::GoOn) {
            return std::nullopt;
        }
        AskedLine line = AskLine(terminal, Text(prompt, title.empty() ? "" : "  ", title, " "));
        command = line.next;
        return std::move(line.text);
    }

    /// The command that was given in place of an answer, once; GoOn when there was none.
    Next TakeCommand() { return std::exchange(command, Next::GoOn); }

  private:
    Terminal& terminal;
    Next command = Next::GoOn;
};

class Lesson {
  public:
    explicit Lesson(std::ostream& out) : terminal(out), learner(terminal) {}

    void Hold(std::string_view caption) {
        Next next = Next::Topic;
        if (!caption.empty()) {
            Choose(caption);
            next = Next::Problem;
        }
        while (next != Next::Leave) {
            next = Work(next);
        }
    }

  private:
    Next Work(Next next) {
        switch (next) {
            case Next::Topic:
                return AskTopic();
            case Next::Example:
                return WorkExample();
            default:
                return WorkProblem();
        }
    }

    Next AskTopic() {
        const std::optional<std::string> caption = AskForTopic(terminal);
        if (!caption) {
            return Next::Leave;
        }
        Choose(*caption);
        return Next::Problem;
    }

    void Choose(std::string_view caption) {
        TreeViewSelect(caption, problem.topic, clock, random);
        terminal.Say(Text("\n", problem.topic.TopicTitle));
        SayHowToEnter(terminal, problem);
    }

    Next WorkProblem() {
        Stage noStage;
        EraseProblem(problem, noStage);
        const Next next = EnterProblem(terminal, problem);
        return next == Next::GoOn ? SolveAndPlay() : next;
    }

    Next WorkExample() {
        MersenneSource digits;
        MersenneSource direct;
        ExampleDraws draws(clock, digits, direct);
        Stage noStage;
        Next next = Next::Problem;
        BareForm form(problem, [&] {
            SayEntry(terminal, problem);
            next = SolveAndPlay();
        });
        example_Click(problem, noStage, form, draws);
        return next;
    }

    Next SolveAndPlay() {
        ColumnStage stage(problem, learner);
        const bool failed = compute_Click(problem, AllSolvers(), learner, stage).has_value();
        Next next = learner.TakeCommand();
        if (next != Next::GoOn) {
            return next;
        }
        if (!failed) {
            next = problem.columns.Any() || stage.Finished() ? PlayColumns(stage) : PlayLines();
        }
        return next == Next::GoOn ? AskNext(terminal, "another problem", Next::Problem) : next;
    }

    /// Next::GoOn when all has been shown.
    Next PlayLines() {
        const StepLog& log = problem.log;
        if (log.StepCount > 1) {
            terminal.Say(Text("\n", TerminalText(log.StepText[1]), "\n"));
        }
        for (int i = 2; i < log.StepCount; ++i) {
            const Next next = AskNext(terminal, "next step", Next::GoOn);
            if (next != Next::GoOn) {
                return next;
            }
            SayStep(i - 1, log.StepText[i], log.StepNote[i]);
        }
        if (problem.graph.GraphMode != 0) {
            terminal.Say("The graph of this problem is drawn in the window.");
        }
        return Next::GoOn;
    }

    void SayStep(int number, const std::string& line, const std::string& note) {
        std::ostringstream step;
        step << std::setw(2) << number << ". " << TerminalText(line);
        if (!note.empty()) {
            step << "\n    " << TerminalText(note);
        }
        terminal.Say(step.str());
    }

    Next PlayColumns(ColumnStage& stage) {
        while (true) {
            SayDrawing(stage);
            if (!stage.HasNext()) {
                return Next::GoOn;
            }
            const Next next = AskNext(terminal, "next step", Next::GoOn);
            if (next != Next::GoOn) {
                return next;
            }
            if (stage.NextStep()) {
                return Next::GoOn;
            }
        }
    }

    void SayDrawing(const ColumnStage& stage) {
        const StepLog& log = problem.log;
        terminal.Say("");
        for (const std::string& row : ColumnPicture(stage.Page().Marks())) {
            terminal.Say(Text("    ", row));
        }
        terminal.Say(TerminalText(log.StepNote[problem.playback.ShownStep]));
    }

    Terminal terminal;
    TerminalLearner learner;
    SystemClock clock;
    MersenneSource random;
    Problem problem;
};

}  // namespace

void HoldLesson(std::string_view caption, std::ostream& out) {
    Lesson(out).Hold(caption);
}

}  // namespace numerello
