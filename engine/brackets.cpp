#include <cmath>
#include <string>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/reasons.h"
#include "engine/step_levels.h"
#include "engine/term_text.h"

namespace numerello {

namespace {

/// Whether a "/" stands in the term.
bool IsDivided(const Term& term) {
    return term.DivideMark || term.FractionText.find('/') != std::string::npos;
}

/// Where the divisor that begins at `begin` ends; `begin` when a pair stands there.
std::size_t EndOfDivisor(const Tokens& tokens, std::size_t begin) {
    std::size_t end = begin;
    while (end < tokens.size() && (!IsOperator(tokens[end]) || IsExponentSign(tokens, end)) &&
           std::string_view("()|=[]").find(tokens[end]) == std::string_view::npos) {
        ++end;
    }
    return end;
}

}  // namespace

bool Engine::RemoveParens() {
    if (tables.Depth == 0) {
        return false;
    }
    if (!Holds("(")) {
        return RemoveBars();
    }
    for (std::size_t i = tables.groups.size(); i-- > 0;) {
        if (GroupAt(i).IsAbsolute ? RemoveAbsolute(i) : TakeParensAway(i)) {
            return true;
        }
    }
    return false;
}

bool Engine::RemoveBars() {
    for (std::size_t i = 0; i < tables.groups.size(); ++i) {
        if (RemoveAbsolute(i)) {
            return true;
        }
    }
    return false;
}

/// Whether a pair of parentheses is safe to take away: nothing beside it binds it, and what it
/// holds keeps its value.
bool Engine::MayGo(const Group& pair) const {
    const std::size_t open = pair.begin - 1;
    const std::string_view before = open > 0 ? TokenAt(open - 1) : "";
    const std::string_view after = TokenAt(pair.tail);
    const bool oneTerm = pair.terms.size() == 1;
    if (before == "/" && after == "(" && oneTerm) {
        return true;
    }
    if (after == "(" || !IsOperator(before) || pair.NextGroup >= 0 || pair.front ||
        pair.Power != 1) {
        return false;
    }
    if (!oneTerm) {
        return IsSign(before) && after != "*" && after != "/";
    }
    return before != "*" || after == "/" || open < 2 || !IsFraction(TokenAt(open - 2));
}

bool Engine::TakeParensAway(std::size_t group) {
    const Group& pair = GroupAt(group);
    if (!MayGo(pair)) {
        return false;
    }
    const std::size_t open = pair.begin - 1;
    const std::string_view before = TokenAt(open - 1);
    const Term& first = pair.terms.front();
    if (first.Den == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    const bool divided = before == "/";
    if (divided && IsDivided(first)) {
        Because(kFlipReason, kOrdinaryStep);
        ReplaceBetween(open - 1, pair.tail, Text("*", first.OpMark, Flipped(first)));
        return true;
    }
    if (TokenAt(pair.tail) == "/" && IsDivided(first)) {
        return TurnWhatFollows(pair);
    }
    Because(kRemoveParensReason, kOrdinaryStep);
    const bool joins = before == "*" || divided;
    const std::size_t inner = pair.begin + (joins && first.OpMark == "+" ? 1 : 0);
    ReplaceBetween(joins ? open : open - 1, pair.tail, TextBetween(tokens, inner, pair.end));
    return true;
}

/// A fraction in a bracket is divided by what stands behind it: that is turned over, so that the
/// fraction itself is worked as it stands.
bool Engine::TurnWhatFollows(const Group& group) {
    const std::size_t begin = group.tail + 1;
    const std::size_t end = EndOfDivisor(tokens, begin);
    if (end == begin) {
        return false;
    }
    const bool joins = TokenAt(group.begin - 2) == "*";
    const bool plus = group.terms.front().OpMark == "+";
    Because(kFlipReason, kOrdinaryStep);
    ReplaceBetween(joins ? group.begin - 1 : group.begin - 2, end,
                   Text(TextBetween(tokens, group.begin + (joins && plus ? 1 : 0), group.end),
                        "*1/", TextBetween(tokens, begin, end)));
    return true;
}

bool Engine::RemoveAbsolute(std::size_t group) {
    if (!HasGroup(group)) {
        return false;
    }
    const Group& bars = GroupAt(group);
    if (!bars.IsAbsolute || bars.terms.size() != 1) {
        return false;
    }
    const Term& term = bars.terms.front();
    const float value = term.Value();
    std::string text = NumberText(std::fabs(term.numOver));
    if (term.Den != 1) {
        text = Text(text, "/", NumberText(term.numUnder));
    }
    const std::string shown = term.Den != 1 ? Text("#", text, "#") : text;
    if (value == 0) {
        Because("The absolute value of 0 is 0.", kOrdinaryStep);
        text = "0";
    } else if (value < 0) {
        Because(Text("Since -", shown, " < 0, the absolute value of -", shown, " is ", shown, "."),
                kOrdinaryStep);
    } else {
        Because(Text("Since ", shown, " > 0, the absolute value of ", shown, " is ", shown, "."),
                kOrdinaryStep);
    }
    const std::size_t open = bars.begin - 1;
    // A fraction is not divided as it stands: what is under the line is turned over.
    const std::size_t divisor = bars.tail + 1;
    const std::size_t divisorEnd =
        TokenAt(bars.tail) == "/" ? EndOfDivisor(tokens, divisor) : divisor;
    if (term.Den != 1 && open > 0 && TokenAt(open - 1) == "/") {
        ReplaceBetween(open - 1, bars.tail, Text("*", Flipped(term)));
    } else if (term.Den != 1 && divisorEnd > divisor) {
        ReplaceBetween(open, divisorEnd,
                       Text(text, "*1/", TextBetween(tokens, divisor, divisorEnd)));
    } else {
        ReplaceBetween(open, bars.tail, text);
    }
    RecordStep();
    return true;
}

}  // namespace numerello
