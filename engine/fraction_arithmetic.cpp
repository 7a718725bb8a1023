#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/number_forms.h"
#include "engine/reasons.h"
#include "engine/step_levels.h"
#include "engine/term_text.h"

namespace numerello {

namespace {

constexpr int kMostPasses = 20;

bool IsProductMark(const std::string& token) {
    return token == "*" || token == "/";
}

/// A fraction in lowest terms, sign first.
std::string ReducedTerm(const Term& term) {
    return TermText(term.OpMark, ReduceRatio(term.numOver, term.numUnder), term.NumText,
                    term.DenText);
}

/// A number token as a ratio.
Ratio ReadFraction(std::string_view token) {
    const std::size_t slash = token.find('/');
    return {ToNumber(token.substr(0, slash)),
            slash == std::string_view::npos ? 1 : ToNumber(token.substr(slash + 1))};
}

/// Whether a token between the group's ends passes the test.
template <class Test>
bool AnyInside(const Tokens& tokens, const Group& group, Test test) {
    return std::any_of(tokens.begin() + static_cast<std::ptrdiff_t>(group.begin),
                       tokens.begin() + static_cast<std::ptrdiff_t>(group.end), test);
}

/// A sum brought to its least common denominator, as its lines show it.
struct LcdSum {
    std::string lcd;
    std::string denominators;
    std::string shown;       ///< each fraction times what raises it
    std::string values;      ///< the raised fractions
    std::string numerators;  ///< theirs
    std::string example;
    double n = 0;  ///< the sum of the numerators
};

LcdSum SumOverLcd(const std::vector<Term>& terms) {
    LcdSum sum;
    std::vector<double> unders;
    for (const Term& term : terms) {
        unders.push_back(term.numUnder);
        sum.denominators += sum.denominators.empty() ? "" : ",";
        sum.denominators += NumberText(term.numUnder);
    }
    sum.lcd = LeastCommonMultipleText(unders);
    const double common = ToNumber(sum.lcd);
    for (const Term& term : terms) {
        const double m = Divide(common, term.numUnder);
        const double over = Checked(term.numOver * m);
        const std::string fraction = RatioText(term.numOver, term.numUnder);
        const std::string raised = RatioText(over, common);
        sum.shown += Text(term.OpMark, fraction, "*[", RatioText(m, m), "]");
        sum.values += term.OpMark + raised;
        sum.numerators += term.OpMark + NumberText(over);
        sum.n += term.OpMark == "-" ? -over : over;
        if (sum.example.empty()) {
            sum.example = Text(fraction, "#=#", raised);
        }
    }
    return sum;
}

/// A fraction over 0 is none, also that of 0.
void CheckDenominators(const std::vector<Term>& terms) {
    if (std::any_of(terms.begin(), terms.end(),
                    [](const Term& term) { return term.numUnder == 0; })) {
        throw Failure(FailureKind::DivisionByZero);
    }
}

}  // namespace

void Engine::FractionArithmetic(std::size_t group) {
    if (!HasGroup(group)) {
        return;
    }
    CheckDenominators(GroupAt(group).terms);
    const auto holds = [this, group](auto test) { return AnyInside(tokens, GroupAt(group), test); };
    const bool product = holds(IsProductMark);
    if (!product) {
        CombineCommonDenominators(group);
        ReduceAndDropZeros(group);
    }
    const bool decimals = holds([](const std::string& token) { return HasPoint(token); });
    const bool fractions =
        holds([](const std::string& token) { return token.find('/') != std::string::npos; });
    const std::size_t terms = GroupAt(group).terms.size();
    if (!problem.settings.UseFractions || !fractions || decimals || (!product && terms == 1)) {
        if (terms > 1) {
            CombineUntilStable(group);
        }
        return;
    }
    MultiplyFractions(group);
    if (holds(IsProductMark)) {
        return;
    }
    if (GroupAt(group).terms.size() > 1) {
        CombineCommonDenominators(group);
        ReduceAndDropZeros(group);
    }
    if (GroupAt(group).terms.size() > 1) {
        CombineOverLcd(group);
    }
}

/// Works products and quotients of fractions from the left, one a line. A single fraction that is
/// left comes to lowest terms.
void Engine::MultiplyFractions(std::size_t group) {
    bool found = false;
    // A pass works a product and a quotient.
    for (int work = 0; work < 2 * kMostPasses && MultiplyFractionPair(group); ++work) {
        found = true;
    }
    const Group& all = GroupAt(group);
    if (found && all.terms.size() == 1 && !AnyInside(tokens, all, IsProductMark)) {
        Because("Simplify the fraction.", kFineStep);
        ReplaceGroup(group, ReducedTerm(all.terms.front()));
        RecordStep();
    }
}

/// Multiplies the first pair, or turns the right one of a quotient over.
bool Engine::MultiplyFractionPair(std::size_t group) {
    const Group& all = GroupAt(group);
    std::size_t at = all.begin;
    while (at < all.end && !IsProductMark(tokens[at])) {
        ++at;
    }
    if (at == all.begin || at + 1 >= all.end) {
        return false;
    }
    const bool divides = tokens[at] == "/";
    const Ratio left = ReadFraction(tokens[at - 1]);
    const Ratio right = ReadFraction(tokens[at + 1]);
    if (left.under == 0 || right.under == 0 || (divides && right.over == 0)) {
        throw Failure(FailureKind::DivisionByZero);
    }
    if (divides) {
        Because(kFlipReason, kFineStep);
        ReplaceBetween(
            at - 1, at + 2,
            Text(RatioText(left.over, left.under), "*", RatioText(right.under, right.over)));
    } else {
        Because("Multiply the numerators and denominators to form the new fraction.", kFineStep);
        ReplaceBetween(
            at - 1, at + 2,
            RatioText(Checked(left.over * right.over), Checked(left.under * right.under)));
    }
    RecordStep();
    return true;
}

/// Adds the numbers that have the same denominator pair by pair, then reduces what is left; that
/// may make new pairs.
void Engine::CombineCommonDenominators(std::size_t group) {
    for (int pass = 0; pass < kMostPasses; ++pass) {
        if (!CombinePair(group) && !ReduceFractions(group)) {
            return;
        }
    }
}

bool Engine::CombinePair(std::size_t group) {
    const std::vector<Term>& terms = GroupAt(group).terms;
    for (std::size_t i = 0; i < terms.size(); ++i) {
        for (std::size_t j = i + 1; j < terms.size(); ++j) {
            if (terms[i].numUnder == terms[j].numUnder) {
                AddPair(group, i, j);
                return true;
            }
        }
    }
    return false;
}

/// The sum stands first, the others follow.
void Engine::AddPair(std::size_t group, std::size_t one, std::size_t other) {
    const std::vector<Term>& terms = GroupAt(group).terms;
    const auto first = static_cast<double>(terms[one].Num);
    const auto second = static_cast<double>(terms[other].Num);
    const int n = ToInteger16(first + second);
    const std::string sum = WholeText(n);
    const std::string under = NumberText(terms[one].numUnder);
    if (under == "1") {
        Because(Text("Combine ", NumberText(first), " and ", NumberText(second),
                     " to form the new term (", sum, ")."),
                kFineStep);
    } else {
        const std::string result = n == 0 ? "0" : Text("#", sum, "/", under, "#");
        Because(Text("Since #", terms[one].FractionText, "# and #", terms[other].FractionText,
                     "# have common denominators, combine to form ", result, "."),
                kFineStep);
    }
    std::string text = TermText(n < 0 ? "-" : "+",
                                n == 0 ? "0" : Text(WholeText(std::abs(n)), "/", under), "", "");
    for (std::size_t i = 0; i < terms.size(); ++i) {
        text += i == one || i == other ? "" : Written(terms[i]);
    }
    ReplaceGroup(group, text);
    RecordStep();
}

/// Brings the fractions that have a denominator other than 1 to lowest terms; zeros wait.
bool Engine::ReduceFractions(std::size_t group) {
    const Group& all = GroupAt(group);
    std::string text;
    for (const Term& term : all.terms) {
        text += term.Den == 1 || term.Num == 0 ? Written(term) : ReducedTerm(term);
    }
    if (text == WithoutEmphasis(TextBetween(tokens, all.begin, all.end))) {
        return false;
    }
    Because("Reduce fractions.", kFineStep);
    ReplaceGroup(group, text);
    RecordStep();
    return true;
}

/// Brings all numbers of a sum to lowest terms and drops the zeros.
void Engine::ReduceAndDropZeros(std::size_t group) {
    const Group& all = GroupAt(group);
    if (all.terms.size() == 1) {
        return;
    }
    std::string text;
    bool zeros = false;
    for (const Term& term : all.terms) {
        zeros = zeros || term.Num == 0;
        text += term.Num == 0 ? "" : HasPoint(Written(term)) ? Written(term) : ReducedTerm(term);
    }
    if (text == WithoutEmphasis(TextBetween(tokens, all.begin, all.end))) {
        return;
    }
    Because(zeros ? kZeroDividedReason : "Reduce fractions.", kFineStep);
    ReplaceGroup(group, text.empty() ? "+0" : text);
    RecordStep();
}

/// Brings the fractions of a sum to their least common denominator, adds and reduces.
void Engine::CombineOverLcd(std::size_t group) {
    const std::vector<Term> terms = GroupAt(group).terms;
    const std::string before = TextBetween(tokens, 0, GroupAt(group).begin);
    const std::string after = TextBetween(tokens, GroupAt(group).end, tokens.size());
    const auto write = [&](std::string_view text, std::string_view reason, int level) {
        Because(reason, level);
        SetText(Text(before, text, after));
        RecordStep();
    };
    const LcdSum sum = SumOverLcd(terms);
    write(sum.shown,
          Text("Find the least common denominator of all the fractions (", sum.denominators,
               "), then multiply all of the fractions by a number over itself (which will be "
               "equivalent to multiplying the fraction by 1 and will not affect the value of the "
               "fraction) that will produce the common denominator (",
               sum.lcd, ") in all the fractions."),
          kFineStep);
    write(sum.values,
          Text("Multiply to form the fractions that all have the same denominator. Remember that "
               "we haven't changed the value of the fractions, we've changed their form (ex. #",
               sum.example, "#)."),
          kFineStep);
    write(Text("+(", sum.numerators, ")/", sum.lcd),
          "Combine the numerators of each fraction and place over the common denominator.",
          kFineStep);
    const int n = ToInteger32(sum.n);
    const std::string sign = n < 0 ? "-" : "+";
    const double magnitude = std::fabs(sum.n);
    write(Text(sign, NumberText(magnitude), "/", sum.lcd),
          "Combine all the terms in the numerator using arithmetic.", kLightStep);
    write(sign + ReduceRatio(magnitude, ToNumber(sum.lcd)),
          n == 0 ? kZeroDividedReason : "Simplify the fraction.", kLightStep);
}

}  // namespace numerello
