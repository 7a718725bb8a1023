#include "app/graph_equation.h"

#include <optional>
#include <string>

#include "core/failure.h"
#include "core/text.h"
#include "engine/engine.h"

namespace numerello {

namespace {

/// The letter that an equation is solved for, and the other one.
struct Letters {
    std::string solved;
    std::string other;  ///< empty when there is none
};

bool Holds(const std::string& text, const std::string& letter) {
    return !letter.empty() && text.find(letter) != std::string::npos;
}

Letters ChooseLetters(const TypedProblem& typed, Learner& learner) {
    const std::string& first = typed.VarNames[1];
    const std::string& second = typed.VarNames[2];
    if (first == "x" && second == "y") {
        return {"y", "x"};
    }
    if (second.empty() || (first == "y" && second == "x")) {
        return {first, second};
    }
    while (true) {
        const std::optional<std::string> answer =
            learner.InputBox("", "Which variable do you want to solve for?");
        if (!answer) {
            throw Failure(FailureKind::Unanswered);
        }
        // Letters are typed small, whatever the key.
        const std::string letter = LowerCase(*answer);
        if (FindVariable(typed, letter) != 0) {
            return {letter, letter == first ? second : first};
        }
    }
}

/// The graph knows x and y alone.
std::string RenamedForGraph(const std::string& text, const Letters& letters) {
    std::string named = text;
    if (!Holds(text, letters.solved)) {
        named = Holds(text, letters.other) ? Replace(text, letters.other, "X") : text;
    } else if (letters.solved != "y" && letters.other.empty()) {
        named = Replace(text, letters.solved, "X");
    } else {
        named = Replace(text, letters.solved, "Y");
        named = letters.other.empty() ? named : Replace(named, letters.other, "X");
    }
    named = Replace(Replace(named, "X", "x"), "Y", "y");
    return Replace(Replace(named, "x=", "x^+1="), "y=", "y^+1=");
}

bool IsNumberPart(const std::string& token) {
    return token == "/" || IsFraction(token) || IsNumberToken(token);
}

/// Digits and slashes stay together; letters and signs stand alone.
void FillVariants(TypedProblem& typed, const std::string& text, int ProblemType) {
    typed.ExprVariants.Clear();
    int cell = -1;
    bool behindNumber = false;
    for (const std::string& token : MergeNumberTokens(TextToTokens(text), ProblemType)) {
        const bool number = IsNumberPart(token);
        if (!number || !behindNumber) {
            ++cell;
        }
        typed.ExprVariants[cell] += token;
        behindNumber = number;
    }
}

}  // namespace

void GraphEquation(SolveRun& run) {
    Problem& problem = run.problem;
    problem.controls.GraphEnabled = true;
    CollectVariables(problem.typed);
    const Letters letters = ChooseLetters(problem.typed, run.learner);
    Engine engine(problem);
    engine.Open();
    engine.SimplifyBothSides();
    if (!engine.SolveFor(letters.solved)) {
        // No letter is left: there is nothing to draw.
        problem.controls.GraphEnabled = false;
        return;
    }
    const std::string text = engine.SideToPlainText();
    FillVariants(problem.typed, RenamedForGraph(text, letters), problem.topic.ProblemType);
    problem.graph.GraphMode = kEquationGraph;
}

}  // namespace numerello
