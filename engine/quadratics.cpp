#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/letters.h"
#include "engine/number_forms.h"
#include "engine/step_levels.h"

/// Factoring. It stands ready for a reader of terms that tells the exponent of the first letter;
/// the one in use does not, so that no typed problem comes here.
namespace numerello {

namespace {

constexpr int kRootPlaces = 5;
constexpr std::string_view kImaginary = " has imaginary solutions...cannot factor.";

/// a x^2 + b x + c.
struct Quadratic {
    double a = 0;
    double b = 0;
    double c = 0;

    bool IsImaginary() const { return b * b < 4 * a * c; }
};

Quadratic ReadQuadratic(const std::vector<Term>& terms) {
    Quadratic quadratic;
    for (const Term& term : terms) {
        const auto value = static_cast<double>(term.Value());
        double& place = term.FirstExponent == 2   ? quadratic.a
                        : term.FirstExponent == 1 ? quadratic.b
                                                  : quadratic.c;
        place += value;
    }
    return quadratic;
}

/// The root with plus, then the one with minus.
std::array<double, 2> RootsOf(const Quadratic& quadratic) {
    const double root = std::sqrt(quadratic.b * quadratic.b - 4 * quadratic.a * quadratic.c);
    return {Round(Divide(-quadratic.b + root, 2 * quadratic.a), kRootPlaces),
            Round(Divide(-quadratic.b - root, 2 * quadratic.a), kRootPlaces)};
}

/// A number split at its "/".
struct SplitNumber {
    std::string over;
    double under = 1;
};

SplitNumber Split(const std::string& text) {
    const std::size_t slash = text.find('/');
    return {text.substr(0, slash),
            slash == std::string::npos ? 1 : ToNumber(text.substr(slash + 1))};
}

/// "(+2x-1)" for the root 1/2.
std::string RootFactor(const std::string& letter, double root, const SplitNumber& number) {
    return Text("(+", NumberText(number.under), letter, root > 0 ? "-" : "+", number.over, ")");
}

/// What is left of a term inside the bracket.
std::string FactoredTerm(const Problem& problem, const Term& term, int g, float least) {
    const double value = static_cast<double>(term.Num) / g;
    const std::string sign = value < 0 ? "-" : value > 0 ? "+" : "";
    std::vector<LetterPower> letters = ReadLetters(term.NumText);
    for (LetterPower& each : letters) {
        each.exponent -= each.letter == problem.typed.VarNames[1] ? least : 0;
    }
    return Text(
        sign,
        NumberToFractionText(problem.settings, {std::fabs(value), static_cast<double>(term.Den)}),
        LettersText(letters));
}

}  // namespace

float Engine::FirstExponent() const {
    const std::vector<Term> terms = TermsOf(0);
    return terms.empty() ? 1 : terms.front().FirstExponent;
}

/// An equation of a higher degree: all to the left, then factored.
bool Engine::SolveByFactoring(float exponent) {
    SetEqualToZero();
    const std::vector<Term> right = TermsOf(1);
    if (exponent == 2 && !right.empty() && right.front().Num < 0) {
        PrepareBothSides();
    }
    const int passes = exponent == 2 ? 1 : static_cast<int>(exponent) + 1;
    for (int pass = 0; pass < passes; ++pass) {
        for (const bool withGcf : {true, false}) {
            const bool factored = FactorExpression(0, withGcf);
            RecordStep();
            if (factored) {
                return true;
            }
        }
    }
    return false;
}

void Engine::NegateBothSides() {
    const SideRange range = RangeOfSide(tokens, currentSide);
    Because(Text("Solve for ", problem.typed.VarNames[1],
                 " by multiplying both sides of the equation by a negative one."),
            kFineStep);
    ReplaceBetween(range.begin, range.end, Text("-(", SideText(currentSide), ")"));
}

void Engine::PrepareBothSides() {
    for (const int side : {0, 1}) {
        UseSide(side);
        NegateBothSides();
    }
    RecordStep();
    for (const int side : {0, 1}) {
        UseSide(side);
        if (DistributeFront(0)) {
            RecordStep();
        }
    }
    for (const int side : {0, 1}) {
        UseSide(side);
        RemoveAndRecord();
    }
    UseSide(0);
}

bool Engine::FactorExpression(std::size_t group, bool withGcf) {
    if (!HasGroup(group)) {
        return false;
    }
    problem.log.StepLevel = kLightStep;
    const std::vector<Term>& terms = GroupAt(group).terms;
    if (!withGcf && !terms.empty() && terms.front().FirstExponent == 2) {
        return FactorByRoots(group);
    }
    return FactorOutGcf(group);
}

bool Engine::FactorOutGcf(std::size_t group) {
    const std::vector<Term> terms = GroupAt(group).terms;
    if (terms.size() < 2) {
        return false;
    }
    std::string list;
    bool whole = true;
    float least = terms.front().FirstExponent;
    float highest = 0;
    for (const Term& term : terms) {
        list += NumberText(std::trunc(static_cast<double>(term.Value()))) + " ";
        whole = whole && term.Den == 1;
        least = std::min(least, term.FirstExponent);
        highest = std::max(highest, term.FirstExponent);
    }
    // With equal exponents the letter stays inside.
    if (least == highest) {
        least = 0;
    }
    int g = whole ? ToInteger16(ToNumber(GreatestCommonText(list))) : 1;
    if (terms.front().Num < 0) {
        g = -g;
    }
    if (std::abs(g) == 1 && least <= 0) {
        return false;
    }
    const std::string& letter = problem.typed.VarNames[1];
    std::string text = g < 0 ? "-" : "+";
    text += std::abs(g) == 1 ? "" : WholeText(std::abs(g));
    text += least > 0 ? Text(letter, "^", NumberText(static_cast<double>(least))) : "";
    text += "(";
    for (const Term& term : terms) {
        text += FactoredTerm(problem, term, g, least);
    }
    Because("  -  Factor out the GCF", kLightStep);
    ReplaceGroup(group, text + ")");
    return true;
}

bool Engine::FactorByRoots(std::size_t group) {
    const Quadratic quadratic = ReadQuadratic(GroupAt(group).terms);
    if (quadratic.IsImaginary()) {
        problem.log.Write(std::string(kImaginary), "");
        return false;
    }
    const std::string& letter = problem.typed.VarNames[1];
    const std::array<double, 2> roots = RootsOf(quadratic);
    const auto split = [this](double root) {
        return Split(NumberToFractionText(problem.settings, {std::fabs(root), 1}));
    };
    const SplitNumber first = split(roots[0]);
    const SplitNumber second = split(roots[1]);
    const double size = std::fabs(quadratic.a);
    if (first.under > size || second.under > size) {
        FactorQuadratic(letter);
        return true;
    }
    const double unders = first.under * second.under;
    std::string front;
    if (unders != size || quadratic.a < 0) {
        front = Text(quadratic.a < 0 ? "-" : "+",
                     NumberToFractionText(problem.settings, {size, unders}));
    }
    Because("  -  factor ", kLightStep);
    ReplaceGroup(group, Text(front, RootFactor(letter, roots[0], first),
                             RootFactor(letter, roots[1], second)));
    return true;
}

void Engine::FactorQuadratic(const std::string& variable) {
    StepLog& log = problem.log;
    const Quadratic quadratic = ReadQuadratic(GroupAt(0).terms);
    if (quadratic.IsImaginary()) {
        log.StepReason = kImaginary;
        log.Write(log.StepReason, "");
        return;
    }
    const std::array<double, 2> roots = RootsOf(quadratic);
    constexpr int kFullDetail = 3;
    if (problem.settings.DetailLevel >= kFullDetail) {
        log.StepReason = "  -  quadratic equation";
        log.Write(Text(variable, "=#-b\\~b^2^-4ac~/2a# for a", variable, "^2^+b", variable, "+c=0"),
                  log.StepReason);
    }
    log.StepReason = "  -  solve";
    std::string factors;
    std::string solutions;
    for (const double root : roots) {
        const std::string value = NumberToFractionText(problem.settings, {std::fabs(root), 1});
        factors += Text("(", variable, root > 0 ? "-" : "+", value, ")");
        solutions += Text(solutions.empty() ? "" : ",", root < 0 ? "-" : "", value);
    }
    SetText(factors + "=0");
    RecordStep();
    SetText(Text(variable, "=", solutions));
    RecordStep();
}

}  // namespace numerello
