#include <optional>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/step_levels.h"

namespace numerello {

namespace {

/// Asks until the answer is a number that is not too large.
double AskValue(Learner& learner, const std::string& letter) {
    constexpr double kTooLarge = 999999999;
    while (true) {
        const std::optional<std::string> answer =
            learner.InputBox(letter + " = ?", "Enter a value for " + letter);
        if (!answer) {
            throw Failure(FailureKind::Unanswered);
        }
        const std::optional<double> value = ReadNumber(*answer);
        if (!value) {
            learner.MessageBox("", "Please enter a number to replace for " + letter);
        } else if (*value < kTooLarge) {
            return *value;
        }
    }
}

}  // namespace

void Engine::EvaluateBySubstitution(Learner& learner) {
    const TypedProblem& typed = problem.typed;
    std::vector<std::string> values{""};
    for (int i = 1; i < typed.VarCount; ++i) {
        values.push_back(NumberText(AskValue(learner, typed.VarNames[i])));
    }
    for (int i = 1; i < typed.VarCount; ++i) {
        const std::string& letter = typed.VarNames[i];
        const std::string& value = values[static_cast<std::size_t>(i)];
        std::string text = Replace(WithoutEmphasis(ExprToText()), letter, Text("[(", value, ")]"));
        for (const std::string_view sign : {"+", "-", "*"}) {
            text = Replace(text, Text(sign, "1["), Text(sign, "["));
        }
        Because(Text("Replace all the [", letter, "]'s in the expression with ", value, " ."),
                kLightStep);
        SetText(text);
        RecordStep();
    }
    SetText(WithoutEmphasis(ExprToText()));
}

void Engine::EvaluateTopic(Learner& learner) {
    const bool oneLetter = problem.typed.VarCount <= 2;
    if (oneLetter && ExprToText().find("^-") == std::string::npos) {
        SimplifyExpression();
    }
    RecordStep();
    EvaluateBySubstitution(learner);
    SimplifyExpression();
}

}  // namespace numerello
