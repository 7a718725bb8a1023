#include "cli/lesson.h"

#include <functional>
#include <iomanip>
#include <optional>
#include <sstream>
#include <utility>

#include "app/solvers.h"
#include "catalogue/examples/example_click.h"
#include "catalogue/guided_input.h"
#include "catalogue/topic_choice.h"
#include "cli/column_picture.h"
#include "cli/column_stage.h"
#include "cli/lesson_entry.h"
#include "cli/mark_fields.h"
#include "cli/terminal.h"
#include "cli/terminal_text.h"
#include "core/erasing.h"
#include "core/text.h"

namespace numerello {

namespace {

/// A product of more than 100 cells is cut off there and never finished.
constexpr int kMostDrawings = 101;

/// Tells and asks in the terminal.
class TerminalLearner : public Learner {
  public:
    explicit TerminalLearner(Terminal& terminal) : terminal(terminal) {}

    void MessageBox(std::string_view title, std::string_view text) override {
        terminal.Say(Text(title, title.empty() ? "" : "  ", TerminalText(text)));
    }
    bool Confirm(std::string_view /*title*/, std::string_view /*text*/) override { return true; }
    std::optional<std::string> InputBox(std::string_view title, std::string_view prompt) override {
        std::string text;
        if (command == Next::Solve) {
            command = AskLine(terminal, Text(prompt, title.empty() ? "" : "  ", title, " "), text);
        }
        return command == Next::Solve ? std::optional(text) : std::nullopt;
    }

    /// The command that was given in place of an answer, once; Solve when there was none.
    Next TakeCommand() { return std::exchange(command, Next::Solve); }

  private:
    Terminal& terminal;
    Next command = Next::Solve;
};

/// The entry form while an example is put into it.
class ExampleForm : public FillingForm {
  public:
    ExampleForm(Problem& problem, std::function<void()> solve)
        : problem(problem), solve(std::move(solve)) {}

    void ShowEntry() override {}
    void Form_KeyPress(std::string_view key) override { numerello::Form_KeyPress(problem, key); }
    void compute_Click() override { solve(); }

  private:
    Problem& problem;
    std::function<void()> solve;
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
            next = next == Next::Topic     ? AskTopic()
                   : next == Next::Example ? WorkExample()
                                           : WorkProblem();
        }
    }

  private:
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
        return next == Next::Solve ? SolveAndPlay() : next;
    }

    Next WorkExample() {
        MersenneSource digits;
        MersenneSource direct;
        ExampleDraws draws(clock, digits, direct);
        Stage noStage;
        Next next = Next::Problem;
        ExampleForm form(problem, [&] {
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
        if (next != Next::Solve) {
            return next;
        }
        if (!failed) {
            next = problem.columns.Any() || stage.Finished() ? PlayColumns(stage) : PlayLines();
        }
        return next == Next::Solve ? AskNext(terminal, "another problem", Next::Problem) : next;
    }

    /// Next::Solve when all has been shown.
    Next PlayLines() {
        const StepLog& log = problem.log;
        if (log.StepCount > 1) {
            terminal.Say(Text("\n", TerminalText(log.StepText[1]), "\n"));
        }
        for (int i = 2; i < log.StepCount; ++i) {
            const Next next = AskNext(terminal, "next step", Next::Solve);
            if (next != Next::Solve) {
                return next;
            }
            SayStep(i - 1, log.StepText[i], log.StepNote[i]);
        }
        if (problem.graph.GraphMode != 0) {
            terminal.Say("The graph of this problem is drawn in the window.");
        }
        return Next::Solve;
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
        for (int drawing = 1;; ++drawing) {
            SayDrawing(stage);
            if (!problem.columns.Any() || drawing == kMostDrawings) {
                return Next::Solve;
            }
            const Next next = AskNext(terminal, "next step", Next::Solve);
            if (next != Next::Solve) {
                return next;
            }
            ++problem.playback.ShownStep;
            if (Trapped(problem, learner, [&stage] { stage.DrawColumns(); })) {
                return Next::Solve;
            }
        }
    }

    void SayDrawing(const ColumnStage& stage) {
        const StepLog& log = problem.log;
        terminal.Say("");
        for (const std::string& row : ColumnPicture(MarksOf(stage.Page()))) {
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
