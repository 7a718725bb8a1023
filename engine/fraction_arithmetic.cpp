#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/like_terms.h"
#include "engine/number_forms.h"

namespace numerello {

namespace {

constexpr int kFineStep = 3;
constexpr int kMostPasses = 20;

std::string FractionOf(double over, double under) {
    return Text(NumberText(over), "/", NumberText(under));
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

}  // namespace

void Engine::FractionArithmetic(std::size_t group) {
    const auto inside = [this, group](auto test) {
        const Group& all = GroupAt(group);
        return std::any_of(tokens.begin() + static_cast<std::ptrdiff_t>(all.begin),
                           tokens.begin() + static_cast<std::ptrdiff_t>(all.end), test);
    };
    const bool product =
        inside([](const std::string& token) { return token == "*" || token == "/"; });
    if (!product) {
        CombineCommonDenominators(group);
        DropZeros(group);
    }
    const bool decimals = inside([](const std::string& token) {
        return token.find('.') != std::string::npos && token.find('E') == std::string::npos;
    });
    const bool fractions =
        inside([](const std::string& token) { return token.find('/') != std::string::npos; });
    const std::size_t terms = GroupAt(group).terms.size();
    if (!problem.settings.UseFractions || !fractions || decimals || (!product && terms == 1)) {
        if (terms > 1) {
            CombineUntilStable(group);
        }
        return;
    }
    problem.log.StepLevel = kFineStep;
    MultiplyFractions(group);
    if (inside([](const std::string& token) { return token == "*" || token == "/"; })) {
        return;
    }
    if (GroupAt(group).terms.size() > 1) {
        CombineCommonDenominators(group);
        DropZeros(group);
    }
    if (GroupAt(group).terms.size() > 1) {
        CombineOverLcd(group);
    }
}

/// Works products and quotients of fractions from the left, one a line.
void Engine::MultiplyFractions(std::size_t group) {
    bool found = false;
    // A pass works a product and a quotient.
    for (int work = 0; work < 2 * kMostPasses; ++work) {
        const Group& all = GroupAt(group);
        const auto begin = tokens.begin() + static_cast<std::ptrdiff_t>(all.begin);
        const auto end = tokens.begin() + static_cast<std::ptrdiff_t>(all.end);
        const auto at = std::find_if(
            begin, end, [](const std::string& token) { return token == "*" || token == "/"; });
        if (at == end || at == begin || at + 1 == end) {
            break;
        }
        found = true;
        const Ratio left = ReadFraction(*(at - 1));
        const Ratio right = ReadFraction(*(at + 1));
        const auto place = static_cast<std::size_t>(at - tokens.begin());
        if (left.under == 0 || right.under == 0 || (*at == "/" && right.over == 0)) {
            throw Failure(FailureKind::DivisionByZero);
        }
        if (*at == "*") {
            Because("Multiply the numerators and denominators to form the new fraction.",
                    kFineStep);
            ReplaceBetween(
                place - 1, place + 2,
                FractionOf(Checked(left.over * right.over), Checked(left.under * right.under)));
        } else {
            Because(
                "To divide two fractions, flip the numerator and denominator of one of the "
                "fractions, then multiply the fractions.",
                kFineStep);
            ReplaceBetween(
                place - 1, place + 2,
                Text(FractionOf(left.over, left.under), "*", FractionOf(right.under, right.over)));
        }
        RecordStep();
    }
    const Group& all = GroupAt(group);
    if (found && all.terms.size() == 1) {
        Because("Simplify the fraction.", kFineStep);
        ReplaceGroup(group, ReducedTerm(all.terms.front()));
        RecordStep();
    }
}

/// Adds the numbers that have the same denominator pair by pair, then reduces what is left; that
/// may make new pairs.
bool Engine::CombineCommonDenominators(std::size_t group) {
    bool found = false;
    for (int pass = 0; pass < kMostPasses; ++pass) {
        if (!CombinePair(group) && !ReduceFractions(group)) {
            break;
        }
        found = true;
    }
    return found;
}

bool Engine::CombinePair(std::size_t group) {
    const std::vector<Term>& terms = GroupAt(group).terms;
    for (std::size_t i = 0; i < terms.size(); ++i) {
        for (std::size_t j = i + 1; j < terms.size(); ++j) {
            if (terms[i].Den == terms[j].Den) {
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

bool Engine::DropZeros(std::size_t group) {
    const std::vector<Term>& terms = GroupAt(group).terms;
    std::string text;
    for (const Term& term : terms) {
        text += term.Num == 0 ? "" : Written(term);
    }
    const bool none =
        std::none_of(terms.begin(), terms.end(), [](const Term& term) { return term.Num == 0; });
    if (none || terms.size() == 1) {
        return false;
    }
    Because("0 divided by any number equals 0.", kFineStep);
    ReplaceGroup(group, text.empty() ? "+0" : text);
    RecordStep();
    return true;
}

/// Brings the fractions of a sum to their least common denominator, adds and reduces.
void Engine::CombineOverLcd(std::size_t group) {
    const std::vector<Term> terms = GroupAt(group).terms;
    const std::string before = TextBetween(tokens, 0, GroupAt(group).begin);
    const std::string after = TextBetween(tokens, GroupAt(group).end, tokens.size());
    const auto write = [&](std::string_view text, std::string reason, int level) {
        Because(std::move(reason), level);
        SetText(Text(before, text, after));
        RecordStep();
    };

    std::vector<double> unders;
    std::string denominators;
    for (const Term& term : terms) {
        unders.push_back(term.numUnder);
        denominators += denominators.empty() ? "" : ",";
        denominators += NumberText(term.numUnder);
    }
    const std::string lcd = LeastCommonMultipleText(unders);
    const double common = ToNumber(lcd);

    std::string shown;
    std::string values;
    std::string numerators;
    double sum = 0;
    for (const Term& term : terms) {
        const double m = Divide(common, term.numUnder);
        const std::string multiplier = NumberText(m);
        const double over = Checked(term.numOver * m);
        shown += Text(term.OpMark, FractionOf(term.numOver, term.numUnder), "*[", multiplier, "/",
                      multiplier, "]");
        values += term.OpMark + FractionOf(over, common);
        numerators += term.OpMark + NumberText(over);
        sum += term.OpMark == "-" ? -over : over;
    }
    const Term& first = terms.front();
    const std::string example = FractionOf(first.numOver, first.numUnder);
    const std::string raised = values.substr(1, values.find_first_of("+-", 1) - 1);

    write(shown,
          Text("Find the least common denominator of all the fractions (", denominators,
               "), then multiply all of the fractions by a number over itself (which will be "
               "equivalent to multiplying the fraction by 1 and will not affect the value of the "
               "fraction) that will produce the common denominator (",
               lcd, ") in all the fractions."),
          kFineStep);
    write(values,
          Text("Multiply to form the fractions that all have the same denominator. Remember that "
               "we haven't changed the value of the fractions, we've changed their form (ex. #",
               example, "#=#", raised, "#)."),
          kFineStep);
    write(Text("+(", numerators, ")/", lcd),
          "Combine the numerators of each fraction and place over the common denominator.",
          kFineStep);

    constexpr int kLightStep = 1;
    const int n = ToInteger32(sum);
    const std::string sign = n < 0 ? "-" : "+";
    const std::string magnitude = NumberText(std::fabs(sum));
    write(Text(sign, magnitude, "/", lcd),
          "Combine all the terms in the numerator using arithmetic.", kLightStep);
    write(sign + ReduceRatio(std::fabs(sum), common),
          n == 0 ? "0 divided by any number equals 0." : "Simplify the fraction.", kLightStep);
}

}  // namespace numerello
