#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "core/bounds.h"
#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/engine.h"
#include "engine/letters.h"
#include "engine/reasons.h"
#include "engine/step_levels.h"
#include "engine/term_text.h"

namespace numerello {

namespace {

/// The numbers of a term, written out as factors.
struct WrittenOut {
    std::vector<std::string> over;
    std::vector<std::string> under;
    bool zeroPower = false;
    bool negativePower = false;
};

/// A number over the line. With a negative power it goes under it.
WrittenOut WriteOut(double base, float power) {
    if (base == 0 && power <= 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    const int times = ToInteger32(static_cast<double>(std::fabs(power)));
    CheckIndex(times, TermTables::kTopTerm);
    WrittenOut out;
    out.zeroPower = power == 0;
    out.negativePower = power < 0;
    std::vector<std::string>& factors = out.negativePower ? out.under : out.over;
    if (out.zeroPower) {
        factors.emplace_back("1");
    } else {
        factors.assign(static_cast<std::size_t>(times), NumberText(base));
    }
    return out;
}

/// One written over the other.
WrittenOut Quotient(WrittenOut over, const WrittenOut& under) {
    over.over.insert(over.over.end(), under.under.begin(), under.under.end());
    over.under.insert(over.under.end(), under.over.begin(), under.over.end());
    over.zeroPower = over.zeroPower || under.zeroPower;
    over.negativePower = over.negativePower || under.negativePower;
    return over;
}

std::string Joined(const std::vector<std::string>& factors) {
    std::string text;
    for (const std::string& factor : factors) {
        text += text.empty() ? "" : "*";
        text += factor;
    }
    return text;
}

WrittenOut Factors(const Term& term) {
    WrittenOut over = WriteOut(term.numOver, term.NumText.starts_with('^') ? term.NumPower : 1);
    const bool hasPower = term.DenText.starts_with('^');
    if (term.numUnder == 1 && !hasPower) {
        return over;
    }
    return Quotient(std::move(over), WriteOut(term.numUnder, hasPower ? term.DenPower : 1));
}

/// The term with its powers of numbers written out, without its sign.
std::string WrittenOutText(const Term& term, const WrittenOut& factors) {
    const std::string lettersOver = LettersText(ReadLetters(term.NumText));
    const std::string lettersUnder = LettersText(ReadLetters(term.DenText));
    std::string over = Joined(factors.over) + lettersOver;
    if (over.empty()) {
        over = "1";
    }
    const std::string under = Joined(factors.under) + lettersUnder;
    if (under.empty()) {
        return over;
    }
    const bool product = factors.under.size() > 1 || factors.negativePower;
    return Text(factors.over.size() > 1 ? Text("(", over, ")") : over, "/",
                product ? Text("(", under, ")") : under);
}

struct ExpandedTerm {
    std::string text;
    bool zeroPower = false;
};

/// A negative power beside a denominator of its own stands as a fraction by itself.
ExpandedTerm Expanded(const Term& term) {
    const bool splits = term.NumText.starts_with('^') && term.NumPower < 0 && term.DivideMark &&
                        !term.DenText.starts_with('^');
    Term power = term;
    if (splits) {
        power.numUnder = 1;
        power.DenText.clear();
    }
    const WrittenOut factors = Factors(power);
    const std::string rest =
        splits ? "*" + TermText("", RatioText(1, term.numUnder), "", term.DenText) : "";
    return {term.OpMark + WrittenOutText(power, factors) + rest, factors.zeroPower};
}

}  // namespace

bool Engine::ExpandPowers(std::size_t group) {
    const int depth = tables.Depth;
    if (!ExpandConstantTerms(group)) {
        return false;
    }
    while (tables.Depth > depth) {
        for (std::size_t i = 0; i < tables.groups.size(); ++i) {
            while (MultiplyPair(i)) {
            }
        }
        if (!RemoveAndRecord()) {
            break;
        }
    }
    MultiplyPass(group);
    if (DistributeFront(group)) {
        RecordStep();
    }
    return true;
}

bool Engine::ExpandConstantTerms(std::size_t group) {
    if (!HasGroup(group)) {
        return false;
    }
    const Group& all = GroupAt(group);
    if (std::none_of(all.terms.begin(), all.terms.end(), HasNumberPower)) {
        return false;
    }
    bool zeroPower = false;
    std::string text;
    for (const Term& term : all.terms) {
        if (!HasNumberPower(term)) {
            text += Written(term);
            continue;
        }
        const ExpandedTerm expanded = Expanded(term);
        text += expanded.text;
        zeroPower = zeroPower || expanded.zeroPower;
    }
    Because(zeroPower ? kZeroPowerReason : kWrittenOutReason, kOrdinaryStep);
    ReplaceGroup(group, text);
    RecordStep();
    return true;
}

bool Engine::ExpandFrontPower(std::size_t group) {
    if (!HasGroup(group) || !GroupAt(group).front || !HasNumberPower(*GroupAt(group).front)) {
        return false;
    }
    const Term& front = *GroupAt(group).front;
    const WrittenOut factors = Factors(front);
    std::string text = WrittenOutText(front, factors);
    if (text.ends_with(')')) {
        text += "*";
    }
    Because(factors.zeroPower ? kLetterZeroPowerReason : kWrittenOutReason, kFineStep);
    const std::size_t begin = IsOperator(TokenAt(front.begin)) ? front.begin + 1 : front.begin;
    ReplaceBetween(begin, front.end, text);
    RecordStep();
    return true;
}

bool Engine::ExpandPower(std::size_t group) {
    if (!HasGroup(group) || GroupAt(group).Power == 1) {
        return false;
    }
    const Group& base = GroupAt(group);
    const std::size_t open = base.begin - 1;
    if (base.Power < 0 && base.terms.size() == 1 && base.terms.front().numOver == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    // Also of a bracket that is 0, where a number by itself would fail: kept as it is.
    if (base.Power == 0) {
        Because(kZeroPowerReason, kOrdinaryStep);
        ReplaceBetween(open, base.tail, "(+1)");
        return true;
    }
    std::string factor = TextBetween(tokens, open, base.end + 1);
    if (base.Power < 0) {
        if (base.terms.size() != 1) {
            return false;
        }
        const Term& term = base.terms.front();
        factor = Text("(", term.OpMark, Flipped(term), ")");
    }
    const int times = ToInteger32(static_cast<double>(std::fabs(base.Power)));
    CheckIndex(times, TermTables::kTopGroup + 1);
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += factor;
    }
    Because(
        "Expand the term out by replacing it with the same number of factors as the power it is "
        "raised to.",
        kOrdinaryStep);
    ReplaceBetween(open, base.tail, text);
    return true;
}

}  // namespace numerello
