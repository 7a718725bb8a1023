#include "catalogue/guided_input.h"

#include "catalogue/input_classes.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr int kMaxDecimals = 2;
constexpr int kFirstCell = 4;

/// The lengths of the number before and behind its point.
struct NumberLengths {
    int whole = 0;
    int decimals = 0;
    bool hasPoint = false;
};

NumberLengths TypedNumber(const TypedProblem& typed) {
    NumberLengths lengths;
    for (int i = 0; i < typed.ExprCharCount; ++i) {
        if (typed.ExprChars[i] == ".") {
            lengths.hasPoint = true;
        } else {
            ++(lengths.hasPoint ? lengths.decimals : lengths.whole);
        }
    }
    return lengths;
}

/// An empty text accepts the digit.
std::string DigitRefusal(const Problem& problem) {
    const NumberLengths number = TypedNumber(problem.typed);
    if (number.decimals >= kMaxDecimals) {
        return "Please keep all decimal portions to 2 digits or less.";
    }
    if (!number.hasPoint && number.whole >= problem.topic.MaxDigits) {
        return Text("Please keep all numbers to ", WholeText(problem.topic.MaxDigits),
                    " digits or less.");
    }
    return "";
}

std::string PointRefusal(const Problem& problem) {
    return TypedNumber(problem.typed).hasPoint ? "A number can only have one decimal point." : "";
}

void JoinProblemText(TypedProblem& typed) {
    typed.ProblemText.clear();
    for (int i = 0; i < typed.ExprCharCount; ++i) {
        typed.ProblemText += typed.ExprChars[i];
    }
}

void Store(Problem& problem, std::string_view character) {
    problem.controls.Pencil = EntryControls::PencilPicture::Pencil;
    problem.typed.ExprChars[problem.typed.ExprCharCount++] = character;
    problem.input.KeyAccepted = true;
    problem.input.InputError.clear();
}

void Undo(Problem& problem) {
    if (problem.typed.ExprCharCount == 0) {
        problem.input.InputError = "Problem has already been erased.";
        return;
    }
    problem.controls.Pencil = EntryControls::PencilPicture::Eraser;
    problem.typed.ExprChars[--problem.typed.ExprCharCount].clear();
    problem.input.KeyAccepted = true;
    problem.input.InputError.clear();
}

void Judge(Problem& problem, std::string_view key) {
    if (key == kBackspace) {
        Undo(problem);
        return;
    }
    const auto refusal = ClassRefusal(key, problem.topic.InputMask, problem.topic.TopicTitle);
    if (refusal) {
        problem.input.InputError = *refusal;
        return;
    }
    CollectVariables(problem.typed);
    if (CheckKey(problem, key)) {
        Store(problem, key);
    }
}

}  // namespace

bool GrammarStands(const TopicChoice& topic) {
    return !IsTypedOnLine(topic.ProblemType) ||
           (topic.InputMask & ~(kNumbers | kDecimalPoint)) == 0;
}

void Form_KeyPress(Problem& problem, std::string_view key) {
    problem.input.KeyAccepted = false;
    if (!IsTypedOnLine(problem.topic.ProblemType) || !GrammarStands(problem.topic) ||
        !problem.playback.TypingEnabled) {
        return;
    }
    FormFilter(problem, key);
    EntryControls& controls = problem.controls;
    const bool accepted = problem.input.KeyAccepted;
    controls.Light =
        accepted ? EntryControls::LightPicture::Correct : EntryControls::LightPicture::Incorrect;
    controls.LightToolTip = accepted ? "Correct Input." : "Incorrect input.";
}

void FormFilter(Problem& problem, std::string_view key) {
    problem.input.KeyAccepted = false;
    if (problem.topic.InputMask >= 1) {
        Judge(problem, key);
    }
    if (!problem.input.KeyAccepted) {
        return;
    }
    problem.controls.SolveEnabled = problem.typed.ExprCharCount > 0;
    JoinProblemText(problem.typed);
    ChunkChars(problem.typed);
    problem.typed.DisplayLine = FormatForDisplay(problem.typed);
}

bool CheckKey(Problem& problem, std::string_view character) {
    problem.input.InputError = IsDigit(character) ? DigitRefusal(problem) : PointRefusal(problem);
    return problem.input.InputError.empty();
}

void ChunkChars(TypedProblem& typed) {
    typed.ExprCells.Clear();
    typed.ExprCellCount = 0;
    for (int i = 0; i < typed.ExprCharCount; ++i) {
        typed.ExprCells[0] += typed.ExprChars[i];
    }
}

std::string FormatForDisplay(TypedProblem& typed) {
    std::string number = typed.ExprCells[0];
    typed.ExprCells.Clear();
    typed.ExprCellCount = 0;
    if (!number.empty()) {
        typed.ExprCells[kFirstCell] = number;
        typed.ExprCellCount = kFirstCell;
    }
    return number;
}

bool LineIsComplete(const Problem& problem) {
    const TypedProblem& typed = problem.typed;
    return typed.ExprCharCount > 0 && IsDigit(typed.ExprChars[typed.ExprCharCount - 1]);
}

}  // namespace numerello
