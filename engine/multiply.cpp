#include <algorithm>

#include "core/number.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "engine/engine.h"
#include "engine/letters.h"
#include "engine/reasons.h"
#include "engine/step_levels.h"
#include "engine/term_text.h"

namespace numerello {

namespace {

constexpr int kProductPlaces = 4;

double Radicand(const Term& factor) {
    return ToNumber(std::string_view(factor.NumText).substr(1));
}

/// A factor behind a bracket ends at the next sign, product or pair.
bool EndsFactor(const Tokens& tokens, std::size_t at) {
    constexpr std::string_view kEnds = "*()=|";
    return kEnds.find(tokens[at]) != std::string_view::npos ||
           (IsSign(tokens[at]) && !IsExponentSign(tokens, at));
}

/// A product that would round to nothing keeps its digits.
std::string RoundedProduct(double value) {
    const double rounded = Round(value, kProductPlaces);
    return NumberText(rounded == 0 ? value : rounded);
}

/// Letters or root of the product over the line.
std::string LettersOver(const TypedProblem& typed, const Term& one, const Term& other) {
    if (IsRoot(one) && IsRoot(other)) {
        return "~" + NumberText(Checked(Radicand(one) * Radicand(other)));
    }
    if (IsRoot(one) || IsRoot(other)) {
        return IsRoot(one) ? one.NumText : other.NumText;
    }
    return MultiplyLetters(typed, one.NumText, other.NumText);
}

std::string ProductText(const TypedProblem& typed, const Term& one, const Term& other) {
    const Ratio first = NumbersOf(one);
    const Ratio second = NumbersOf(other);
    const double over = Checked(first.over * second.over);
    const double under = Checked(first.under * second.under);
    if (over == 0) {
        return "0";
    }
    const std::string lettersUnder = MultiplyLetters(typed, one.DenText, other.DenText);
    std::string text = RoundedProduct(over) + LettersOver(typed, one, other);
    if (under != 1 || !lettersUnder.empty()) {
        text += "/" + RoundedProduct(under) + lettersUnder;
    }
    return text;
}

}  // namespace

/// How a reason names a factor: without its sign, a constant power worked out.
std::string Engine::FactorText(const Term& factor) const {
    if (factor.NumText.starts_with('^') && factor.DenText.empty() && factor.numUnder == 1) {
        const Ratio numbers = NumbersOf(factor);
        return Shown(TermText("", RatioText(numbers.over, numbers.under), "", ""));
    }
    return Shown(Written(factor).substr(IsOperator(factor.OpMark) ? 1 : 0));
}

bool Engine::MultiplyPair(std::size_t group) {
    if (!HasGroup(group)) {
        return false;
    }
    const std::vector<Term>& terms = GroupAt(group).terms;
    const auto second = std::find_if(terms.begin(), terms.end(),
                                     [](const Term& term) { return term.OpMark == "*"; });
    if (second == terms.end() || second == terms.begin()) {
        return false;
    }
    const Term& other = *second;
    const Term& one = *(second - 1);
    problem.log.StepLevel = kOrdinaryStep;
    problem.log.StepReason =
        IsRoot(one) && IsRoot(other)
            ? "When multiplying square roots multiply values under radical to form the new square "
              "root."
            : Text("Multiply ", FactorText(one), " by ", FactorText(other),
                   " using the order of operations.");
    SetText(Text(TextBetween(tokens, 0, one.begin), one.OpMark,
                 ProductText(problem.typed, one, other),
                 TextBetween(tokens, other.end, tokens.size())));
    RecordStep();
    return true;
}

bool Engine::MultiplyPass(std::size_t group) {
    if (!MultiplyPair(group)) {
        return false;
    }
    while (MultiplyPair(group)) {
    }
    if (problem.topic.ProblemType != kCalculatingRoots) {
        ExpandPowers(tables.groups.size() - 1);
        CombineUntilStable(tables.groups.size() - 1);
    }
    return true;
}

bool Engine::ReorderFactor(std::size_t group) {
    if (!HasGroup(group)) {
        return false;
    }
    const Group& pair = GroupAt(group);
    const bool multiplied =
        !pair.IsAbsolute && tables.Depth > 0 && pair.Power == 1 && TokenAt(pair.tail) == "*";
    const bool divides = pair.begin > 1 && TokenAt(pair.begin - 2) == "/";
    if (!multiplied || divides) {
        return false;
    }
    const std::size_t begin = pair.tail + 1;
    std::size_t end = begin;
    bool power = false;
    while (end < tokens.size() && !EndsFactor(tokens, end)) {
        power = power || (tokens[end] == "^" && TokenAt(end + 1) > "1");
        ++end;
    }
    if (end == begin || tokens[end - 1] == "/") {
        return false;
    }
    Because(kReorderReason, kOrdinaryStep);
    ReplaceBetween(begin, end, Text("(+", TextBetween(tokens, begin, end), ")"));
    RecordStep();
    if (power) {
        ExpandPowers(group + 1);
    }
    return true;
}

}  // namespace numerello
