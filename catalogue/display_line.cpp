#include "catalogue/display_line.h"

#include <algorithm>
#include <string_view>

#include "notation/line_setter.h"

namespace numerello {

namespace {

/// Whether a "/" in front of this character can divide two numbers.
bool CanBeginNumber(std::string_view next) {
    return next != "(" && next != "-";
}

/// Whether the character that was just passed belongs to the token before it. A fraction bar joins
/// the number before it only when a number can follow.
bool JoinsToken(const TypingPoint& before, Role role, std::string_view token,
                std::string_view next) {
    const bool behindNumber = before.last == Role::Digit || before.last == Role::Point;
    if (role == Role::Digit || role == Role::Point) {
        return behindNumber || (before.last == Role::FractionBar && token.size() > 1);
    }
    return role == Role::FractionBar && behindNumber && CanBeginNumber(next);
}

}  // namespace

void ChunkChars(Problem& problem) {
    TypedProblem& typed = problem.typed;
    const int code = problem.topic.ProblemType;
    typed.ExprCells.Clear();
    TypingPoint point;
    int tokens = 0;
    for (int i = 0; i < typed.ExprCharCount; ++i) {
        const std::string& character = typed.ExprChars.Get(i);
        const TypingPoint before = point;
        point.Pass(character.front(), code);
        if (point.last == Role::RootEnd) {
            continue;
        }
        std::string& last = typed.ExprCells[std::max(tokens - 1, 0)];
        const std::string& next = typed.ExprChars.Get(i + 1);
        if (JoinsToken(before, point.last, last, next)) {
            last += character;
        } else {
            typed.ExprCells[tokens++] = character;
        }
    }
    typed.ExprCellCount = std::max(tokens - 1, 0);
}

std::string FormatForDisplay(Problem& problem) {
    TypedProblem& typed = problem.typed;
    LineSetter setter(problem.topic.ProblemType, static_cast<std::size_t>(typed.ExprCellCount) + 1);
    for (int i = 0; i <= typed.ExprCellCount && !typed.ExprCells.Get(i).empty(); ++i) {
        setter.Add(typed.ExprCells.Get(i));
    }
    setter.CloseAll();

    typed.ExprCells.Clear();
    typed.ExprCellCount = 0;
    std::string text;
    int cell = 0;
    for (const MarkedToken& token : setter.Line()) {
        cell += TypedProblem::kCellPitch;
        typed.ExprCells[cell - 1] = token.before;
        typed.ExprCells[cell] = token.text;
        typed.ExprCells[cell + 1] = token.after.substr(0, 1);
        typed.ExprCells[cell + 2] = token.after.empty() ? "" : token.after.substr(1);
        typed.ExprCellCount = cell;
        text.append(token.before).append(token.text).append(token.after);
    }
    return text;
}

}  // namespace numerello
