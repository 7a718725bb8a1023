#include "cli/lesson_entry.h"

#include <functional>
#include <utility>

#include "catalogue/box_keys.h"
#include "catalogue/entry_text.h"
#include "catalogue/guided_input.h"
#include "catalogue/input_classes.h"
#include "catalogue/topics.h"
#include "cli/terminal_text.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

using Kind = KeyPress::Kind;

constexpr std::string_view kCommands = "etq";

/// A command key, or one of the letters that are commands at the moment.
std::optional<Next> CommandOf(Terminal& terminal, const KeyPress& key, std::string_view letters) {
    const auto isLetter = [&](std::string_view letter) {
        return key.text == letter && letters.find(letter) != std::string_view::npos;
    };
    std::optional<Next> command;
    if (key.kind == Kind::Leave || isLetter("q")) {
        command = Next::Leave;
    } else if (key.kind == Kind::Example || isLetter("e")) {
        command = Next::Example;
    } else if (key.kind == Kind::Topic || isLetter("t")) {
        command = Next::Topic;
    }
    if (command) {
        terminal.Drop();
        terminal.SkipLine();
    }
    return command;
}

/// A field of the form: its prompt, what stands in it, and what a character or Backspace does.
struct Field {
    std::string prompt;
    std::function<std::string()> text;
    std::function<void(const std::string& key)> press;
    std::string_view commands;  ///< the letters that are commands while nothing stands in it
};

/// GoOn at Enter, else a command.
Next Fill(Terminal& terminal, const Field& field) {
    while (true) {
        const std::string text = field.text();
        terminal.Show(field.prompt + text);
        const KeyPress key = terminal.Read();
        if (const auto command = CommandOf(terminal, key, text.empty() ? field.commands : "")) {
            return *command;
        }
        if (key.kind == Kind::Enter) {
            terminal.Keep();
            return Next::GoOn;
        }
        field.press(key.kind == Kind::Backspace ? std::string(kBackspace) : key.text);
    }
}

/// A text that takes every character.
Field FreeField(std::string prompt, std::string& text, std::string_view commands) {
    return {std::move(prompt), [&text] { return text; },
            [&text](const std::string& key) {
                if (key != kBackspace) {
                    text += key;
                } else if (!text.empty()) {
                    text.erase(text.size() - Characters(text).back().size());
                }
            },
            commands};
}

void SayTopics(Terminal& terminal) {
    for (const std::string_view caption : IndexRows()) {
        terminal.Say(Text("    ", caption));
    }
}

/// A caption of no tree has to be written in full.
std::optional<std::string> TopicBeginning(const std::string& text) {
    if (FindTopic(text) != nullptr) {
        return text;
    }
    const std::optional<int> row = text.empty() ? std::nullopt : FindIndexRow(text);
    return row ? std::optional<std::string>(IndexRows()[static_cast<std::size_t>(*row)])
               : std::nullopt;
}

Next AskForRow(Terminal& terminal, const EntryListRows& list, Problem& problem) {
    const auto count = static_cast<int>(list.rows.size());
    for (int row = 0; row < count; ++row) {
        terminal.Say(
            Text("    ", WholeText(row + 1), "  ", list.rows[static_cast<std::size_t>(row)]));
    }
    int& choice = problem.boxes.List(list.number);
    while (true) {
        std::string text;
        const std::string prompt = Text(list.name, " (1 to ", WholeText(count), "): ");
        const Next next = Fill(terminal, FreeField(prompt, text, kCommands));
        if (next != Next::GoOn || text.empty()) {
            return next;
        }
        const std::optional<std::int16_t> row = ReadInteger16(text);
        if (row && *row >= 1 && *row <= count) {
            choice = *row - 1;
            return next;
        }
        terminal.Say(Text("Type a number from 1 to ", WholeText(count), "."));
    }
}

Next FillBoxes(Terminal& terminal, const EntryLayout& layout, Problem& problem) {
    for (const EntryBoxLayout& box : layout.boxes) {
        const std::string& text = problem.boxes.Box(box.number);
        const Field field{Text(PlainName(box), " = "), [&text] { return text; },
                          [&](const std::string& key) { BoxKey(problem, box.number, key); },
                          kCommands};
        const Next next = Fill(terminal, field);
        if (next != Next::GoOn) {
            return next;
        }
    }
    return Next::GoOn;
}

bool TakesLetters(const Problem& problem) {
    return IsTypedOnLine(problem.topic.ProblemType) && (problem.topic.InputMask & kVariables) != 0;
}

void PressKey(Terminal& terminal, Problem& problem, const std::string& key) {
    const bool judged = IsJudged(problem, key);
    Form_KeyPress(problem, key);
    if (judged && !problem.input.KeyAccepted) {
        const std::string& refusal = problem.input.InputError;
        terminal.Say(TerminalRefusal(refusal));
        if (refusal.find("Click the Assistant Wiz") != std::string::npos) {
            terminal.Say(Text("The Wiz says: ", TerminalText(problem.topic.InstructionText)));
        }
    }
}

Next FillLine(Terminal& terminal, Problem& problem) {
    const Field field{"Problem: ", [&problem] { return TerminalText(problem.typed.DisplayLine); },
                      [&](const std::string& key) { PressKey(terminal, problem, key); },
                      TakesLetters(problem) ? "" : kCommands};
    return Fill(terminal, field);
}

}  // namespace

std::optional<std::string> AskForTopic(Terminal& terminal) {
    terminal.Say("\nType the beginning of a topic; ? lists all, q leaves.");
    while (true) {
        std::string text;
        Field field = FreeField("Topic: ", text, "q");
        // Behind what is typed stands the topic that Enter takes.
        field.text = [&text] {
            const std::optional<std::string> topic = TopicBeginning(text);
            return topic ? Text(text, "  > ", *topic) : text;
        };
        const Next next = Fill(terminal, field);
        if (next == Next::Leave) {
            return std::nullopt;
        }
        if (next != Next::GoOn || text.empty()) {
            continue;
        }
        if (text == "?") {
            SayTopics(terminal);
        } else if (std::optional<std::string> topic = TopicBeginning(text)) {
            return topic;
        } else {
            terminal.Say(Text("No topic begins with \"", text, "\"."));
        }
    }
}

AskedLine AskLine(Terminal& terminal, const std::string& prompt) {
    std::string text;
    const Next next = Fill(terminal, FreeField(prompt, text, ""));
    return {next, next == Next::GoOn ? std::optional(text) : std::nullopt};
}

void SayHowToEnter(Terminal& terminal, const Problem& problem) {
    terminal.Say(TerminalText(problem.topic.InstructionText));
    terminal.Say(TakesLetters(problem)
                     ? "Enter: solve, Ctrl+E: example, Ctrl+T: another topic, Ctrl+D: leave"
                     : "Enter: solve, e: example, t: another topic, q: leave");
}

Next EnterProblem(Terminal& terminal, Problem& problem) {
    const int code = problem.topic.ProblemType;
    const EntryLayout* layout = FindEntryLayout(code);
    while (true) {
        Next next = layout == nullptr ? Next::GoOn : FillBoxes(terminal, *layout, problem);
        for (const EntryListRows& list : ListsOf(code)) {
            next = next == Next::GoOn ? AskForRow(terminal, list, problem) : next;
        }
        if (next == Next::GoOn && IsTypedOnLine(code)) {
            next = FillLine(terminal, problem);
        }
        CheckBoxesReady(problem);
        if (next != Next::GoOn || problem.controls.SolveEnabled) {
            return next;
        }
        terminal.Say(TerminalText(problem.topic.InstructionText));
    }
}

void SayEntry(Terminal& terminal, const Problem& problem) {
    const TypedProblem& typed = problem.typed;
    terminal.Say(Text("Example: ", EntryText(problem.topic.ProblemType,
                                             TerminalText(typed.DisplayLine), problem.boxes)));
}

Next AskNext(Terminal& terminal, std::string_view whatEnterBrings, Next onEnter) {
    const std::string hint =
        Text("-- Enter: ", whatEnterBrings, onEnter == Next::Problem ? "" : ", n: new problem",
             ", e: example, t: topic, q: leave --");
    while (true) {
        terminal.Show(hint);
        const KeyPress key = terminal.Read();
        if (const auto command = CommandOf(terminal, key, kCommands)) {
            return *command;
        }
        if (key.kind == Kind::Enter) {
            terminal.Drop();
            return onEnter;
        }
        terminal.SkipLine();
        if (key.text == "n") {
            terminal.Drop();
            return Next::Problem;
        }
    }
}

}  // namespace numerello
