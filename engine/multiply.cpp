#include <algorithm>
#include <cmath>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/display.h"
#include "engine/engine.h"
#include "engine/letters.h"
#include "engine/number_forms.h"

namespace numerello {

namespace {

constexpr int kCalculatingRoots = 82;
constexpr int kOrdinaryStep = 2;
constexpr int kProductPlaces = 4;

/// The numbers of a factor, its constant powers worked out; both are magnitudes.
struct FactorNumbers {
    double over = 1;
    double under = 1;
};

bool IsNumberPower(const std::string& letters) {
    return letters.starts_with('^');
}

/// A negative power goes to the other side of the line.
void TakePower(double base, float power, double& side, double& otherSide) {
    if (base == 0 && power <= 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    double& place = power < 0 ? otherSide : side;
    place = Checked(place * PowerOf(base, std::fabs(power)));
}

FactorNumbers NumbersOf(const Term& factor) {
    FactorNumbers numbers;
    TakePower(factor.numOver, IsNumberPower(factor.NumText) ? factor.NumPower : 1, numbers.over,
              numbers.under);
    TakePower(factor.numUnder, IsNumberPower(factor.DenText) ? factor.DenPower : 1, numbers.under,
              numbers.over);
    return numbers;
}

bool IsRoot(const Term& factor) {
    return factor.NumText.starts_with('~');
}

double Radicand(const Term& factor) {
    return ToNumber(std::string_view(factor.NumText).substr(1));
}

/// A factor behind a bracket ends at the next sign, product or pair.
bool EndsFactor(const Tokens& tokens, std::size_t at) {
    constexpr std::string_view kEnds = "*()=|";
    return kEnds.find(tokens[at]) != std::string_view::npos ||
           (IsSign(tokens[at]) && !IsExponentSign(tokens, at));
}

std::string RoundedProduct(double value) {
    return NumberText(Round(value, kProductPlaces));
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
    const FactorNumbers first = NumbersOf(one);
    const FactorNumbers second = NumbersOf(other);
    const double over = Checked(first.over * second.over);
    const double under = Checked(first.under * second.under);
    if (under == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
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
    if (IsNumberPower(factor.NumText) && factor.DenText.empty() && factor.numUnder == 1) {
        const FactorNumbers numbers = NumbersOf(factor);
        const std::string over = NumberText(numbers.over);
        return numbers.under == 1 ? over : Text("#", over, "/", NumberText(numbers.under), "#");
    }
    const Tokens named(tokens.begin() + static_cast<std::ptrdiff_t>(factor.begin) + 1,
                       tokens.begin() + static_cast<std::ptrdiff_t>(factor.end));
    return DisplayText(named, problem.topic.ProblemType);
}

bool Engine::MultiplyPair(std::size_t group) {
    const std::vector<Term>& terms = tables.groups.at(group).terms;
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
    if (!HasGroup(group) || !MultiplyPair(group)) {
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
    Because("Reorder the polynomial.", kOrdinaryStep);
    ReplaceBetween(begin, end, Text("(+", TextBetween(tokens, begin, end), ")"));
    RecordStep();
    if (power) {
        ExpandPowers(group + 1);
    }
    return true;
}

}  // namespace numerello
