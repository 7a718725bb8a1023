#include <algorithm>
#include <cmath>
#include <string>

#include "core/text.h"
#include "engine/engine.h"
#include "engine/number_forms.h"
#include "engine/step_levels.h"
#include "engine/term_text.h"

namespace numerello {

namespace {

bool HasLetter(const Term& term, const std::string& letter) {
    return term.NumText.find(letter) != std::string::npos ||
           term.DenText.find(letter) != std::string::npos;
}

bool AnyHasLetter(const std::vector<Term>& terms, const std::string& letter) {
    return std::any_of(terms.begin(), terms.end(),
                       [&letter](const Term& term) { return HasLetter(term, letter); });
}

/// A term taken away from a side, emphasised.
std::string TakenAway(const Term& term) {
    return Text("[", term.Num < 0 ? "+" : "-", MagnitudeText(term), "]");
}

/// All terms that are to go, taken away. A zero needs no taking.
template <class Goes>
std::string TakenAway(const std::vector<Term>& terms, Goes goes) {
    std::string marks;
    for (const Term& term : terms) {
        if (term.Num != 0 && goes(term)) {
            marks += TakenAway(term);
        }
    }
    return marks;
}

}  // namespace

void Engine::SimplifyBothSides() {
    UseSide(0);
    SimplifyLight();
    UseSide(1);
    SimplifyLight();
    UseSide(0);
}

void Engine::UseSide(int side) {
    currentSide = side;
    RecordStep(Record::Refresh);
}

std::vector<Term> Engine::TermsOf(int side) const {
    if (isRead && side == readSide) {
        return tables.groups.front().terms;
    }
    TermTables read = BreakIntoTerms(tokens, side);
    if (firstExponents == FirstExponents::Told) {
        TellFirstExponents(read);
    }
    return read.groups.front().terms;
}

std::string Engine::SideText(int side) const {
    const SideRange range = RangeOfSide(tokens, side);
    return TextBetween(tokens, range.begin, range.end);
}

bool Engine::SolveFor(const std::string& variable) {
    if (problem.typed.VarCount < 2) {
        return StateTruth("x", TruthLine::Own);
    }
    if (const float exponent = FirstExponent(); exponent >= 2) {
        return SolveByFactoring(exponent);
    }
    UseSide(1);
    MoveTermsRight(variable);
    CombineUntilStable(0, NegativeExponents::Keep);
    UseSide(0);
    CombineUntilStable(0, NegativeExponents::Keep);
    if (ExprToText().find(variable) != std::string::npos && MoveTermsLeft(variable)) {
        CombineUntilStable(0, NegativeExponents::Keep);
        UseSide(1);
        CombineUntilStable(0, NegativeExponents::Keep);
        UseSide(0);
    }
    const std::vector<Term> left = TermsOf(0);
    const std::string line = ExprToText();
    const bool letterLeft = std::any_of(tokens.begin(), tokens.end(),
                                        [](const std::string& token) { return IsLetter(token); });
    if (line.find(variable) != std::string::npos && !left.empty() && left.front().Num != 0) {
        if (problem.log.LastStepLine.find('[') != std::string::npos) {
            Because("Remove cancelled terms from both sides.", kOrdinaryStep);
            RecordStep();
        }
        DivideBothSides(variable, SignedRatio(left.front()));
        Because(Text("Simplify the fractions to solve for [", variable, "]."), kOrdinaryStep);
        RecordStep();
        return true;
    }
    return letterLeft ? SolveForOther(variable) : StateTruth(variable, TruthLine::Last);
}

/// The letter asked for has gone; another one has not.
bool Engine::SolveForOther(const std::string& variable) {
    const std::string& first = problem.typed.VarNames[1];
    const std::string other = first == variable ? problem.typed.VarNames[2] : first;
    Because(Text("This cannot be solved for ", variable,
                 " because it has been cancelled out of the equation. Instead we will solve for ",
                 other, "."),
            kOrdinaryStep);
    RecordStep();
    SimplifyBothSides();
    return SolveFor(other);
}

/// Without letters an equation holds always or never.
bool Engine::StateTruth(const std::string& variable, TruthLine line) {
    StepLog& log = problem.log;
    const auto value = [this](int side) {
        const std::vector<Term> terms = TermsOf(side);
        const Ratio number = terms.empty() ? Ratio{0, 1} : SignedRatio(terms.front());
        return Shown(NumberToFractionText(problem.settings, number));
    };
    const std::string left = value(0);
    const std::string right = value(1);
    if (left == right) {
        log.StepReason =
            Text("Since ", left, " equals ", right, " then ", variable, " can be any real number.");
        log.StepNote[log.StepCount - 1] = log.StepReason;
        return false;
    }
    if (line == TruthLine::Own) {
        constexpr int kSecondLine = 3;
        log.StepCount = std::max(log.StepCount, kSecondLine);
    }
    UseSide(1);
    // The problem itself when no step has been shown since, as none is for 0x=3: kept as it is.
    log.StepText[log.StepCount - 1] = Text(left, "$", right);
    log.StepNote[log.StepCount - 1] =
        Text("Since ", left, " does not equal ", right, ", this equation has no solutions.");
    return false;
}

void Engine::SwapSides() {
    SetText(Text(SideText(1), "=", SideText(0)));
    RecordStep();
}

void Engine::AddToBothSides(const std::string& marks) {
    SetText(Text(SideText(0), marks, "=", SideText(1), marks));
    RecordStep();
}

bool Engine::MoveTermsLeft(const std::string& variable) {
    const std::vector<Term> left = TermsOf(0);
    const std::vector<Term> right = TermsOf(1);
    if (left.size() == 1 && right.size() == 1 && AnyHasLetter(left, variable)) {
        return false;
    }
    if (!AnyHasLetter(left, variable) && AnyHasLetter(right, variable)) {
        Because(Text("Reorder the equation so the ", variable,
                     " is on the left hand side.  This step is not required but make the answer "
                     "easier to see."),
                kOrdinaryStep);
        SwapSides();
        return true;
    }
    const std::string marks =
        TakenAway(left, [&variable](const Term& term) { return !HasLetter(term, variable); });
    if (marks.empty()) {
        return false;
    }
    Because(Text("Solve the left-hand side of the equation for [", variable,
                 "] by moving all terms not containing [", variable, "] to the right-hand side."),
            kOrdinaryStep);
    AddToBothSides(marks);
    return true;
}

bool Engine::MoveTermsRight(const std::string& variable) {
    const std::vector<Term> right = TermsOf(1);
    if (!AnyHasLetter(right, variable)) {
        return false;
    }
    if (!AnyHasLetter(TermsOf(0), variable)) {
        Because(Text("Reorder the equation so that the ", variable, " is on the left hand side."),
                kFineStep);
        SwapSides();
        return true;
    }
    const std::string marks =
        TakenAway(right, [&variable](const Term& term) { return HasLetter(term, variable); });
    if (marks.empty()) {
        return false;
    }
    Because(Text("Solve the right-hand side of the equation for [", variable,
                 "] by moving all terms containing [", variable, "] to the left-hand side."),
            kFineStep);
    AddToBothSides(marks);
    return true;
}

void Engine::SetEqualToZero() {
    UseSide(1);
    const std::string marks = TakenAway(TermsOf(1), [](const Term&) { return true; });
    Because("Set the polynomial equal to zero.", kOrdinaryStep);
    AddToBothSides(marks);
    CombineUntilStable(0);
    UseSide(0);
    CombineUntilStable(0);
    RecordStep();
}

/// Shows every term over the divisor and goes on with the quotients.
void Engine::DivideBothSides(const std::string& variable, const Ratio& divisor) {
    const std::string by = NumberToFractionText(problem.settings, divisor);
    std::string shown;
    std::string worked;
    for (const int side : {0, 1}) {
        shown += side == 0 ? "" : "=";
        worked += side == 0 ? "" : "=";
        bool first = true;
        for (const Term& term : TermsOf(side)) {
            const Ratio number = SignedRatio(term);
            const Ratio quotient{number.over * divisor.under, number.under * divisor.over};
            const bool negative = (quotient.over < 0) != (quotient.under < 0) && quotient.over != 0;
            const Ratio magnitude{std::fabs(quotient.over), std::fabs(quotient.under)};
            const std::string sign = term.Num < 0 ? "-" : first ? "" : "+";
            shown += Text(sign, "#", Shown(MagnitudeText(term)), "/[", by, "]#");
            worked +=
                TermText(negative ? "-" : "+", NumberToFractionText(problem.settings, magnitude),
                         term.NumText, term.DenText);
            first = false;
        }
    }
    if (by != "1") {
        // Past the recorder: it would take the working line for this one.
        problem.log.Write(shown, Text("Solve for ", variable,
                                      " by dividing both sides of the equation by ", by, "."));
    }
    SetText(worked);
    RecordStep(Record::Refresh);
    for (const int side : {0, 1}) {
        UseSide(side);
        CombineUntilStable(0, NegativeExponents::Keep);
    }
    UseSide(0);
}

std::string Engine::SideToPlainText() const {
    std::string text;
    for (const int side : {0, 1}) {
        std::string plain;
        for (const Term& term : TermsOf(side)) {
            if (term.Num == 0) {
                continue;
            }
            plain += Text(term.Num < 0 ? "-" : "+", SingleValueText(std::fabs(term.Num)), "/",
                          SingleValueText(std::fabs(term.Den)), Replace(term.NumText, "^", "^+"));
        }
        text += side == 0 ? "" : "=";
        text += plain.empty() ? "+0" : plain;
    }
    return text;
}

}  // namespace numerello
