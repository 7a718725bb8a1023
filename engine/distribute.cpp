#include <algorithm>
#include <cmath>
#include <string>

#include "core/bounds.h"
#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/letters.h"
#include "engine/number_forms.h"
#include "engine/step_levels.h"
#include "engine/term_text.h"

namespace numerello {

namespace {

constexpr int kTopProduct = 100;

bool HasNumberPowers(const Group& group) {
    return std::any_of(group.terms.begin(), group.terms.end(), HasNumberPower);
}

/// Whether a pair ends at this token, its exponent included.
bool EndsPair(const Tokens& tokens, std::size_t at) {
    std::size_t base = at;
    if (at >= 2 && tokens[at - 1] == "^") {
        base = at - 2;
    } else if (at >= 3 && tokens[at - 1] == "-" && tokens[at - 2] == "^") {
        base = at - 3;
    }
    return tokens[base] == ")" || tokens[base] == "|";
}

/// The product of two terms, sign first. Numbers multiply as Singles.
std::string Product(const TypedProblem& typed, const Term& one, const Term& other) {
    const float over = ToSingle(static_cast<double>(one.Num) * static_cast<double>(other.Num));
    const float under = ToSingle(static_cast<double>(one.Den) * static_cast<double>(other.Den));
    if (under == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    if (over == 0) {
        return "+0";
    }
    return TermText(over < 0 ? "-" : "+",
                    Text(SingleValueText(std::fabs(over)), "/", SingleValueText(under)),
                    MultiplyLetters(typed, one.NumText, other.NumText),
                    MultiplyLetters(typed, one.DenText, other.DenText));
}

}  // namespace

bool Engine::DistributeFront(std::size_t group) {
    if (!HasGroup(group)) {
        return false;
    }
    DropStar(group);
    const Group& factor = GroupAt(group);
    if (!factor.front || factor.IsAbsolute || factor.Power != 1 || factor.ProductMark) {
        return false;
    }
    if (HasNumberPowers(factor)) {
        return ExpandPowers(group);
    }
    if (HasNumberPower(*factor.front)) {
        return ExpandFrontPower(group);
    }
    if (ReduceFront(group)) {
        return DistributeFront(group);
    }
    const Term& front = *factor.front;
    std::string products;
    for (const Term& term : factor.terms) {
        products += Product(problem.typed, front, term);
    }
    const std::string name = Shown(NameOf(front));
    Because(factor.terms.size() == 1
                ? Text("Multiply the ", name, " by the term inside the parenthesis.")
                : Text("Multiply the ", name, " by each one of the terms inside the parenthesis."),
            kOrdinaryStep);
    const std::string_view begin = TokenAt(front.begin);
    const std::string_view joint = begin == "*" ? "*" : IsSign(begin) ? "+" : "";
    ReplaceBetween(front.begin, factor.end, Text(joint, "(", products));
    return true;
}

/// A "*" between a factor and its bracket goes without a word.
void Engine::DropStar(std::size_t group) {
    const Group& factor = GroupAt(group);
    const std::size_t open = factor.begin - 1;
    const bool starred = tables.Depth > 0 && !factor.IsAbsolute && factor.Power == 1 && open > 1 &&
                         TokenAt(open - 1) == "*";
    if (starred && !EndsPair(tokens, open - 2)) {
        ReplaceBetween(open - 1, open, "");
        RecordStep(Record::Refresh);
    }
}

/// Brings a factor before a bracket to lowest terms and records the line.
bool Engine::ReduceFront(std::size_t group) {
    const Group& factor = GroupAt(group);
    const Term& front = *factor.front;
    const double over = front.numOver;
    const double under = front.numUnder;
    if (under == 1 || over == 0 || !IsWhole(over) || !IsWhole(under)) {
        return false;
    }
    const std::string reduced = ReduceRatio(over, under);
    if (reduced == RatioText(over, under)) {
        return false;
    }
    Because("Reduce the term in front of the parenthesis before multiplying.", kOrdinaryStep);
    ReplaceBetween(front.begin, front.end,
                   TermText(front.OpMark, reduced, front.NumText, front.DenText));
    RecordStep();
    return true;
}

bool Engine::MultiplyGroups(std::size_t first) {
    if (!HasGroup(first) || !HasGroup(first + 1)) {
        return false;
    }
    const Group& one = GroupAt(first);
    const Group& other = GroupAt(first + 1);
    const bool touching = one.NextGroup >= 0 && one.Power == 1 && other.Power == 1;
    const std::size_t open = one.begin - 1;
    if (!touching || one.ProductMark || other.ProductMark ||
        (open > 0 && TokenAt(open - 1) == "/")) {
        return false;
    }
    if (HasNumberPowers(one) || HasNumberPowers(other)) {
        return ExpandPowers(HasNumberPowers(one) ? first : first + 1);
    }
    CheckIndex(static_cast<int>(one.terms.size() * other.terms.size()), kTopProduct + 1);
    std::string products;
    for (const Term& left : one.terms) {
        for (const Term& right : other.terms) {
            products += Product(problem.typed, left, right);
        }
    }
    Because(ProductReason(one.terms, other.terms, products), kOrdinaryStep);
    ReplaceBetween(open, other.end + 1, Text("(", products, ")"));
    return true;
}

std::string Engine::ProductReason(const std::vector<Term>& one, const std::vector<Term>& other,
                                  const std::string& products) const {
    const std::string left = Shown(NameOf(one.front()));
    const std::string right = Shown(NameOf(other.front()));
    if (one.size() > 1 && other.size() > 1) {
        return "Multiply the polynomials together by multiplying each term of the first by every "
               "term in the second.";
    }
    if (one.size() > 1 || other.size() > 1) {
        return Text("Multiply the polynomial inside the parenthesis by ",
                    one.size() == 1 ? left : right, ".");
    }
    if (IsConstant(one.front()) && IsConstant(other.front())) {
        const std::size_t plus = products.starts_with('+') ? 1 : 0;
        return Text("Multiply the ", left, " by ", right, " to form the new term (",
                    Shown(products.substr(plus)), ").");
    }
    return Text("Multiply ", left, " by ", right, " using the order of operations.");
}

}  // namespace numerello
