#include <algorithm>
#include <cmath>
#include <string>
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

/// The numbers of a term with a power, written out as factors.
struct WrittenOut {
    std::vector<std::string> over;
    std::vector<std::string> under;
    bool zeroPower = false;
    bool negativePower = false;
};

void WriteOut(double base, float power, WrittenOut& out, bool isOver) {
    const std::string factor = NumberText(base);
    std::vector<std::string>& side = (power >= 0) == isOver ? out.over : out.under;
    if (power == 0) {
        if (base == 0) {
            throw Failure(FailureKind::DivisionByZero);
        }
        out.zeroPower = true;
        side.emplace_back("1");
        return;
    }
    if (power < 0 && base == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    out.negativePower = out.negativePower || power < 0;
    const float times = std::fabs(power);
    CheckIndex(static_cast<int>(times), static_cast<int>(TermTables::kTopTerm));
    for (float i = 0; i < times; ++i) {
        side.push_back(factor);
    }
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
    WrittenOut out;
    WriteOut(term.numOver, term.NumText.starts_with('^') ? term.NumPower : 1, out, true);
    if (term.numUnder != 1 || term.DenText.starts_with('^')) {
        WriteOut(term.numUnder, term.DenText.starts_with('^') ? term.DenPower : 1, out, false);
    }
    return out;
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

/// A negative power beside a denominator of its own stands as a fraction by itself.
std::string ExpandedTerm(const Term& term, WrittenOut& factors) {
    const bool splits = term.NumText.starts_with('^') && term.NumPower < 0 && term.DivideMark &&
                        !term.DenText.starts_with('^');
    if (!splits) {
        factors = Factors(term);
        return WrittenOutText(term, factors);
    }
    Term over = term;
    over.numUnder = 1;
    over.DenText.clear();
    factors = Factors(over);
    return Text(WrittenOutText(over, factors), "*",
                TermText("", RatioText(1, term.numUnder), "", term.DenText));
}

}  // namespace

bool Engine::ExpandPowers(std::size_t group) {
    if (!HasGroup(group)) {
        return false;
    }
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
        WrittenOut factors;
        text += term.OpMark + ExpandedTerm(term, factors);
        zeroPower = zeroPower || factors.zeroPower;
    }
    Because(zeroPower ? "Any number raised to the 0th power is 1." : std::string(kWrittenOutReason),
            kOrdinaryStep);
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
    const Group& base = GroupAt(group);
    const std::size_t open = base.begin - 1;
    if (base.Power == 1) {
        return false;
    }
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
    const auto times = static_cast<int>(std::fabs(base.Power));
    CheckIndex(times, static_cast<int>(TermTables::kTopGroup) + 1);
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
