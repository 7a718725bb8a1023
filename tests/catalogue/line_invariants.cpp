#include "line_invariants.h"

#include <algorithm>

#include "catalogue/complete_line.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr int kSquareRootsMask = 256;

bool IsOneOf(std::string_view set, char character) {
    return set.find(character) != std::string_view::npos;
}

bool IsOdd(const std::string& text, char mark) {
    return std::count(text.begin(), text.end(), mark) % 2 != 0;
}

bool Balanced(const std::string& text) {
    int depth = 0;
    for (const char character : text) {
        depth += character == '(' ? 1 : character == ')' ? -1 : 0;
        if (depth < 0) {
            return false;
        }
    }
    return depth == 0;
}

bool IsOperator(char character) {
    return IsOneOf("+-*/", character);
}

/// Behind an operator one "-" may stand as a sign, and behind a sign nothing but its operand.
bool OperatorsRunOn(const std::string& problem) {
    for (std::size_t i = 1; i < problem.size(); ++i) {
        if (!IsOperator(problem[i]) || !IsOperator(problem[i - 1])) {
            continue;
        }
        const std::string before = problem.substr(0, i - 1);
        const bool behindOpenBar = before.ends_with('|') && IsOdd(before, '|');
        const bool behindSign =
            before.empty() || behindOpenBar || IsOneOf("(=,^+-*/", before.back());
        if (problem[i] != '-' || behindSign) {
            return true;
        }
    }
    return false;
}

bool EndsInOperand(const Problem& problem) {
    const std::string last = problem.typed.ProblemText.substr(problem.typed.ProblemText.size() - 1);
    const int code = problem.topic.ProblemType;
    return IsDigit(last) || IsLetter(last) || last == ")" || last == "|" || last == "%" ||
           (last == "~" && problem.typed.ProblemText.size() > 1) ||
           (last == "," && (code == 87 || code == 88));
}

/// Every fraction holds its bar, whole parentheses and whole absolute bars, and no "/" stands
/// outside of one.
bool FractionsAreWhole(const std::string& line) {
    bool inFraction = false;
    std::string part;
    for (const char character : line + "#") {
        if (character != '#') {
            part += character;
            continue;
        }
        const bool holdsBar = part.find('/') != std::string::npos;
        if (holdsBar != inFraction || (inFraction && (!Balanced(part) || IsOdd(part, '|')))) {
            return false;
        }
        inFraction = !inFraction;
        part.clear();
    }
    return true;
}

/// The characters that the display adds or leaves out are the marks, the "?" of an exponent
/// without a digit, and the 1 before a root.
std::string WithoutMarks(const std::string& line) {
    std::string plain;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool beforeMark = i + 1 < line.size() && line[i + 1] == '~';
        const bool behindNumber = i > 0 && IsOneOf("0123456789.~", line[i - 1]);
        const bool isCoefficient = line[i] == '1' && beforeMark && !behindNumber;
        if (!isCoefficient && !IsOneOf("#^?~", line[i])) {
            plain += line[i] == '{' ? '/' : line[i];
        }
    }
    return plain;
}

int LastCell(const TypedProblem& typed) {
    constexpr int kRoom = 8;
    return std::max(typed.ExprCellCount, typed.ExprCharCount) + kRoom;
}

std::string CellText(const TypedProblem& typed) {
    std::string text;
    for (int i = 0; i <= LastCell(typed); ++i) {
        text += typed.ExprCells[i];
    }
    return text;
}

bool MarksAreApart(const TypedProblem& typed) {
    constexpr std::string_view kMarks = "#^~?";
    for (int i = 0; i <= LastCell(typed); ++i) {
        const std::string& cell = typed.ExprCells[i];
        const bool isMark = cell.size() == 1 && kMarks.find(cell) != std::string_view::npos;
        if (i % 4 != 0 && !cell.empty() && !isMark) {
            return false;
        }
        if (i % 4 == 0 && cell.empty() != (i == 0 || i > typed.ExprCellCount)) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::string WhatIsWrong(const Problem& problem) {
    const TypedProblem& typed = problem.typed;
    const std::string& line = typed.DisplayLine;
    if (WithoutMarks(line) != WithoutMarks(typed.ProblemText)) {
        return "the display line is not the problem: " + line;
    }
    if (CellText(typed) != line || !MarksAreApart(typed)) {
        return "the cells are not the display line: " + CellText(typed);
    }
    if (IsOdd(line, '#') || IsOdd(line, '^') ||
        ((problem.topic.InputMask & kSquareRootsMask) != 0 && IsOdd(line, '~'))) {
        return "a mark of the display line has no partner: " + line;
    }
    if (OperatorsRunOn(typed.ProblemText)) {
        return "an operator behind an operator: " + typed.ProblemText;
    }
    if (!LineIsComplete(problem)) {
        return "";
    }
    if (IsOdd(line, '|') || !Balanced(line) || line.find('?') != std::string::npos) {
        return "a complete line with something open: " + line;
    }
    if (!FractionsAreWhole(line)) {
        return "a fraction that is cut up: " + line;
    }
    return EndsInOperand(problem) ? "" : "a complete line without an operand at its end: " + line;
}

std::string LineDifference(const Problem& one, const Problem& other) {
    if (one.typed.ProblemText != other.typed.ProblemText) {
        return "problem " + one.typed.ProblemText + " or " + other.typed.ProblemText;
    }
    if (one.typed.DisplayLine != other.typed.DisplayLine) {
        return "line " + one.typed.DisplayLine + " or " + other.typed.DisplayLine;
    }
    if (one.typed.ExprCharCount != other.typed.ExprCharCount ||
        one.typed.ExprCellCount != other.typed.ExprCellCount) {
        return "counts of " + one.typed.ProblemText;
    }
    for (int i = 0; i <= std::max(LastCell(one.typed), LastCell(other.typed)); ++i) {
        if (one.typed.ExprChars[i] != other.typed.ExprChars[i] ||
            one.typed.ExprCells[i] != other.typed.ExprCells[i]) {
            return "cells of " + one.typed.ProblemText;
        }
    }
    const LineFlags& a = one.input;
    const LineFlags& b = other.input;
    const bool same = a.RootOpen == b.RootOpen && a.AbsOpen == b.AbsOpen &&
                      a.AbsDepth == b.AbsDepth && a.EqualsTyped == b.EqualsTyped &&
                      a.InExponent == b.InExponent && a.InFraction == b.InFraction &&
                      a.FractionDepth == b.FractionDepth && a.ParenDepth == b.ParenDepth;
    if (!same) {
        return "flags of " + one.typed.ProblemText;
    }
    return one.controls.SolveEnabled == other.controls.SolveEnabled
               ? ""
               : "Solve at " + one.typed.ProblemText;
}

}  // namespace numerello
