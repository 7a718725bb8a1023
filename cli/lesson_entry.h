#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/terminal.h"
#include "core/problem.h"

/// What the tutor in the terminal asks the learner to enter.
///
/// The letters e (example), t (another topic) and q (leave) are commands where no letter is
/// awaited: between steps, and at the beginning of a line or box of a topic without letters. Their
/// control keys are commands anywhere.
namespace numerello {

/// What comes next in a lesson: what was begun, or something else.
enum class Next { GoOn, Problem, Example, Topic, Leave };

/// The caption of a topic, of which the beginning is enough; nothing when the learner leaves.
std::optional<std::string> AskForTopic(Terminal& terminal);

/// A line that was asked for, or the command that was given in its place.
struct AskedLine {
    Next next;
    std::optional<std::string> text;  ///< only with GoOn
};
AskedLine AskLine(Terminal& terminal, const std::string& prompt);

/// What to enter for the topic, and the commands.
void SayHowToEnter(Terminal& terminal, const Problem& problem);

/// Lets the learner fill the open form: lists, boxes, line. GoOn when there is a problem to solve.
Next EnterProblem(Terminal& terminal, Problem& problem);

/// Shows what has been entered for the learner.
void SayEntry(Terminal& terminal, const Problem& problem);

/// Waits for Enter, which means `onEnter`, or a command; n asks for a new problem.
Next AskNext(Terminal& terminal, std::string_view whatEnterBrings, Next onEnter);

}  // namespace numerello
