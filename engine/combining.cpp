#include <algorithm>
#include <string>

#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/letters.h"
#include "engine/like_terms.h"
#include "engine/number_forms.h"
#include "engine/reasons.h"
#include "engine/term_text.h"

namespace numerello {

namespace {

bool HasNegativeExponent(const Term& term) {
    return term.NumText.find("^-") != std::string::npos ||
           term.DenText.find("^-") != std::string::npos;
}

/// The term without negative exponents, its coefficient reduced.
std::string ReduceTerm(const Problem& problem, const Term& term) {
    const LetterRatio letters = DivideLetters(problem.typed, term.NumText, term.DenText);
    return TermText(term.OpMark, NumberToFractionText(problem.settings, NumbersOf(term)),
                    letters.over, letters.under);
}

/// What a negative exponent of the term stands on, and its magnitude: the last one in the term.
struct NegativePower {
    std::string base;
    std::string exponent;
};

NegativePower LastNegativePower(const Term& term) {
    const bool under = term.DenText.find("^-") != std::string::npos;
    const std::string& text = under ? term.DenText : term.NumText;
    const std::size_t at = text.rfind("^-");
    const std::size_t end = text.find_first_not_of("0123456789.", at + 2);
    const std::string exponent = text.substr(at + 2, end - at - 2);
    if (at == 0) {
        return {NumberText(under ? term.numUnder : term.numOver), exponent};
    }
    return {text.substr(at - 1, 1), exponent};
}

std::string NegativePowerReason(const NegativePower& power) {
    const std::string raised = power.exponent == "1" ? "" : Text("^", power.exponent, "^");
    return Text("Remove the negative exponent by moving the term to the denominator (ex. ",
                power.base, "^-", power.exponent, "^=#1/", power.base, raised, "#).");
}

/// Only whole degrees from 1 up are put in order.
int SortedDegree(const Term& term) {
    const int degree = ToInteger16(static_cast<double>(term.Degree));
    return term.Degree == static_cast<float>(degree) ? std::max(degree, 0) : 0;
}

bool IsJoined(const Group& group, std::size_t term) {
    const bool behind = term + 1 < group.terms.size() && group.terms[term + 1].OpMark == "*";
    return behind || group.terms[term].OpMark == "*";
}

}  // namespace

void Engine::CombineTerms(std::size_t group, NegativeExponents negatives, Record record) {
    if (!HasGroup(group)) {
        return;
    }
    termsChanged = false;
    if (negatives == NegativeExponents::Remove && tables.Depth == 0) {
        RemoveNegativeExponents(group);
    }
    const Group& all = GroupAt(group);
    LikeTerms like(problem, KeepsFractions(all));
    for (std::size_t i = 0; i < all.terms.size(); ++i) {
        const std::string written = Written(all.terms[i]);
        if (IsJoined(all, i)) {
            like.Keep(written);
        } else {
            like.Take(all.terms[i], written);
        }
    }
    Because(like.Reason().empty() ? CombiningReason() : like.Reason(), problem.log.StepLevel);
    const bool changed = like.IsChanged();
    termsChanged = changed;
    if (changed) {
        ReplaceGroup(group, like.GroupText());
    } else if (Holds("[")) {
        ReplaceGroup(group, WithoutEmphasis(TextBetween(tokens, all.begin, all.end)));
    }
    RecordSorted(group, changed, record);
}

/// The reason of a change that has no other.
std::string_view Engine::CombiningReason() const {
    return HoldsRoot() ? "Simplfy the square roots by removing any perfect squares from under the "
                         "radical."
                       : kReorderReason;
}

/// In a sum of numbers outside brackets the fractions are left to their common denominator.
bool Engine::KeepsFractions(const Group& group) const {
    const bool outside = tables.Depth == 0 || (tables.Depth == 1 && group.IsAbsolute);
    return problem.settings.UseFractions && outside &&
           std::all_of(group.terms.begin(), group.terms.end(), IsConstant);
}

/// The decreasing order gets a line of its own once a problem; afterwards lines are sorted in
/// passing.
void Engine::RecordSorted(std::size_t group, bool changed, Record record) {
    const std::string& letter = problem.typed.VarNames[1];
    const std::string line = ExprToText();
    const bool sortable = !letter.empty() && line.find(letter) != std::string::npos &&
                          line.find('*') == std::string::npos;
    const bool outside = tables.Depth == 0;
    if (!sortable || (!changed && !outside)) {
        RecordStep(record);
        return;
    }
    RecordStep(Record::Refresh);
    const std::string sorted = SortTerms(group);
    const Group& all = GroupAt(group);
    if (sorted == TextBetween(tokens, all.begin, all.end)) {
        RecordStep(record);
        return;
    }
    if (!outside || orderNoteGiven) {
        ReplaceGroup(group, sorted);
        RecordStep(record);
        return;
    }
    const std::string reason = problem.log.StepReason;
    if (changed) {
        RecordStep(record);
    }
    orderNoteGiven = true;
    ReplaceGroup(group, sorted);
    problem.log.StepReason =
        "Polynomials are written in decreasing order of terms. The largest term or the term with "
        "the highest exponent in the polynomial is usually written first. The first term in a "
        "polynomial is called the leading term. ";
    RecordStep(record);
    problem.log.StepReason = reason;
}

std::string Engine::SortTerms(std::size_t group) const {
    if (!HasGroup(group)) {
        return "";
    }
    const std::vector<Term>& terms = GroupAt(group).terms;
    std::vector<const Term*> order;
    order.reserve(terms.size());
    for (const Term& term : terms) {
        order.push_back(&term);
    }
    std::stable_sort(order.begin(), order.end(), [](const Term* one, const Term* other) {
        return SortedDegree(*one) > SortedDegree(*other);
    });
    std::string text;
    for (const Term* term : order) {
        text += Written(*term);
    }
    return text;
}

/// Moves every factor with a negative exponent to the other side of its line.
void Engine::RemoveNegativeExponents(std::size_t group) {
    const Group& all = GroupAt(group);
    std::string text;
    std::string reason;
    for (const Term& term : all.terms) {
        if (HasNegativeExponent(term)) {
            text += ReduceTerm(problem, term);
            reason = NegativePowerReason(LastNegativePower(term));
        } else {
            text += Written(term);
        }
    }
    if (reason.empty()) {
        return;
    }
    Because(reason, problem.log.StepLevel);
    ReplaceGroup(group, text);
    RecordStep();
}

}  // namespace numerello
