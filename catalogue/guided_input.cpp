#include "catalogue/guided_input.h"

#include "catalogue/display_line.h"
#include "catalogue/input_classes.h"
#include "catalogue/key_rules.h"
#include "catalogue/point_rules.h"
#include "core/failure.h"
#include "core/text.h"

namespace numerello {

namespace {

/// The words for a key that the grammar of expressions refuses, where line start and exponent have
/// words of their own.
std::string Recast(const std::string& refusal, const TypingPoint& point, char key) {
    if (point.last == Role::LineStart && key != '^') {
        return "You can't start the problem with a '{c}'.";
    }
    const bool namesLastKey = refusal.find("{P}") != std::string::npos;
    if (point.last == Role::Caret && namesLastKey) {
        return "You can't type a '{c}' in an exponent.";
    }
    return refusal;
}

void JoinProblemText(TypedProblem& typed) {
    typed.ProblemText.clear();
    for (int i = 0; i < typed.ExprCharCount; ++i) {
        typed.ProblemText += typed.ExprChars.Get(i);
    }
}

void Store(Problem& problem, std::string_view character) {
    problem.controls.Pencil = EntryControls::PencilPicture::Pencil;
    problem.typed.ExprChars[problem.typed.ExprCharCount++] = character;
    problem.input.KeyAccepted = true;
}

void RemoveLast(TypedProblem& typed) {
    typed.ExprChars[--typed.ExprCharCount].clear();
}

/// An exponent's caret goes with its digit.
void Undo(Problem& problem) {
    TypedProblem& typed = problem.typed;
    if (typed.ExprCharCount == 0) {
        problem.input.InputError = "Problem has already been erased.";
        return;
    }
    problem.controls.Pencil = EntryControls::PencilPicture::Eraser;
    problem.input.KeyAccepted = true;
    RemoveLast(typed);
    if (typed.ExprCharCount > 0 && typed.ExprChars.Get(typed.ExprCharCount - 1) == "^") {
        RemoveLast(typed);
    }
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
    const std::string character = LowerCase(key);
    if (CheckKey(problem, character)) {
        Store(problem, character);
    }
}

/// What the line shows, allows and leaves open follows from its characters alone, also after a
/// Backspace.
void SetOutLine(Problem& problem) {
    TypedProblem& typed = problem.typed;
    JoinProblemText(typed);
    static_cast<LineFlags&>(problem.input) = ReadLine(typed.ProblemText, problem.topic.ProblemType);
    problem.controls.SolveEnabled = typed.ExprCharCount > 0;
    ChunkChars(problem);
    typed.DisplayLine = FormatForDisplay(problem);
}

}  // namespace

bool IsJudged(const Problem& problem, std::string_view key) {
    return IsTypedOnLine(problem.topic.ProblemType) && problem.playback.TypingEnabled &&
           (key == kBackspace || problem.typed.ExprCharCount < kLongestLine);
}

void Form_KeyPress(Problem& problem, std::string_view key) {
    problem.input.KeyAccepted = false;
    if (!IsJudged(problem, key)) {
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
    problem.input.InputError.clear();
    if (problem.topic.InputMask >= 1) {
        Judge(problem, key);
    }
    if (problem.input.KeyAccepted) {
        SetOutLine(problem);
    }
}

void StoreDigitUnjudged(Problem& problem, std::string_view digit) {
    if (!IsDigit(digit)) {
        throw Failure(FailureKind::Format);
    }
    problem.input.InputError.clear();
    Store(problem, digit);
    SetOutLine(problem);
}

bool CheckKey(Problem& problem, std::string_view character) {
    const int code = problem.topic.ProblemType;
    const TypingPoint point = ReadLine(problem.typed.ProblemText, code);
    const char key = character.front();
    std::string refusal = HasPointRules(code) ? PointKeyRefusal(problem, point, key)
                                              : KeyRefusal(problem, point, key);
    if (!refusal.empty() && !HasPointRules(code)) {
        refusal = Recast(refusal, point, key);
    }
    refusal = Replace(refusal, "{c}", character);
    refusal = Replace(refusal, "{P}", std::string_view(&point.key, 1));
    problem.input.InputError = Replace(refusal, "{T}", problem.topic.TopicTitle);
    return problem.input.InputError.empty();
}

}  // namespace numerello
