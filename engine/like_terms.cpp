#include "engine/like_terms.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <utility>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/display.h"
#include "engine/letters.h"
#include "engine/reasons.h"
#include "engine/term_text.h"

namespace numerello {

namespace {

Ratio RatioOf(const Term& term) {
    return {static_cast<double>(term.Num), static_cast<double>(term.Den)};
}

/// Singles, as all sums of rows are. What has decimals stands over 1.
Ratio Sum(const Ratio& one, const Ratio& other) {
    const auto single = [](double value) { return static_cast<double>(ToSingle(value)); };
    if (one.under == 1 && other.under == 1) {
        return {single(one.over + other.over), 1};
    }
    const double over = one.over * other.under + other.over * one.under;
    const double under = one.under * other.under;
    constexpr double kExact = 9007199254740992.0;
    if (over == 0 || std::fabs(over) > kExact || under > kExact) {
        return {single(over), over == 0 ? 1 : single(under)};
    }
    const auto divisor = static_cast<double>(
        std::gcd(static_cast<std::int64_t>(over), static_cast<std::int64_t>(under)));
    return {single(over / divisor), single(under / divisor)};
}

std::string_view SignOf(double value) {
    return value < 0 ? "-" : "+";
}

bool HasZeroPower(std::string_view text) {
    if (text.find('^') == std::string_view::npos) {
        return false;
    }
    const std::vector<LetterPower> letters = ReadLetters(text);
    return std::any_of(letters.begin(), letters.end(),
                       [](const LetterPower& each) { return each.exponent == 0; });
}

/// A fraction of two numbers, as "3/4" is and "3/4/2" is not.
bool IsWrittenFraction(const Term& term) {
    return term.FractionText.find('/') != std::string::npos && !term.DivideMark;
}

/// Letters over the line, or the root.
std::string LettersOf(const Term& term) {
    return IsRoot(term) ? term.NumText : LettersText(ReadLetters(term.NumText));
}

bool HasDecimals(const Term& term, const std::string& written) {
    return HasPoint(written) || !IsWhole(term.numOver) || !IsWhole(term.numUnder);
}

LikeRow RowOf(const Term& term, const std::string& written) {
    LikeRow row;
    row.sum = RatioOf(term);
    row.written = written;
    row.isZero = term.Num == 0;
    row.first = &term;
    return row;
}

}  // namespace

LikeTerms::LikeTerms(const Problem& problem, bool keepFractions)
    : settings(problem.settings), code(problem.topic.ProblemType), keepFractions(keepFractions) {}

void LikeTerms::Take(const Term& term, const std::string& written) {
    if (term.Den == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    if (TakeZeroPower(term) || TakeNumberPower(term) || TakeConversion(term, written)) {
        return;
    }
    if (IsConstant(term)) {
        TakeConstant(term, written);
    } else {
        TakeLetters(term, written);
    }
}

void LikeTerms::Keep(const std::string& written) {
    LikeRow row;
    row.written = written;
    row.merges = false;
    letters.push_back(std::move(row));
}

std::string LikeTerms::Shown(std::string_view text) const {
    return ShownText(text, code);
}

/// Rows of the same letters count once.
void LikeTerms::AddRow(LikeRow row) {
    const bool known = std::any_of(letters.begin(), letters.end(), [&row](const LikeRow& each) {
        return each.NumText == row.NumText && each.DenText == row.DenText;
    });
    unlike += known ? 0 : 1;
    CheckIndex(unlike, kMostLetterRows);
    letters.push_back(std::move(row));
}

/// Puts a rewritten term in the term's place.
void LikeTerms::PutInPlace(const Term& term, const std::string& coefficient) {
    changed = true;
    LikeRow row;
    row.merges = false;
    row.isZero = coefficient == "0";
    row.NumText = LettersOf(term);
    row.DenText = LettersText(ReadLetters(term.DenText));
    row.written =
        TermText(SignOf(static_cast<double>(term.Num)), coefficient, term.NumText, term.DenText);
    if (IsConstant(term)) {
        constants.push_back(std::move(row));
    } else {
        AddRow(std::move(row));
    }
}

bool LikeTerms::TakeZeroPower(const Term& term) {
    if (!HasZeroPower(term.NumText) && !HasZeroPower(term.DenText)) {
        return false;
    }
    ReplaceNumbers(term);
    reason = kLetterZeroPowerReason;
    return true;
}

/// Works the numbers' powers out; letters with the exponent 0 go.
void LikeTerms::ReplaceNumbers(const Term& term) {
    Term rest = term;
    rest.NumText = LettersText(ReadLetters(term.NumText));
    rest.DenText = LettersText(ReadLetters(term.DenText));
    const Ratio numbers = NumbersOf(term);
    PutInPlace(rest, RatioText(numbers.over, numbers.under));
}

/// A constant power that stands beside letters.
bool LikeTerms::TakeNumberPower(const Term& term) {
    if (!HasNumberPower(term)) {
        return false;
    }
    ReplaceNumbers(term);
    const bool zeroPower = term.NumPower == 0 || term.DenPower == 0;
    reason = zeroPower ? kZeroPowerReason : kWrittenOutReason;
    return true;
}

/// A decimal or a fraction that is not written as the learner wants it.
bool LikeTerms::TakeConversion(const Term& term, const std::string& written) {
    const bool fraction = IsWrittenFraction(term);
    const bool decimal = HasDecimals(term, written);
    if (decimal && settings.UseFractions) {
        return ReadDecimal(term);
    }
    if (term.Den == 1 && !fraction) {
        return false;
    }
    if (settings.UseFractions) {
        return Reduce(term);
    }
    return (!fraction && !decimal && Reduce(term)) || ToDecimal(term);
}

/// Turns decimals into a fraction.
bool LikeTerms::ReadDecimal(const Term& term) {
    PutInPlace(term, NumberToFractionText(settings, {term.numOver, term.numUnder}));
    // Beside letters the sentence ends without its point: kept as it is.
    reason = IsConstant(term) ? "Convert the decimal number to a fraction."
                              : "Convert the decimal number to a fraction";
    return true;
}

/// Reduces a fraction of whole numbers. False when it is in lowest terms.
bool LikeTerms::Reduce(const Term& term) {
    const double over = term.numOver;
    const double under = term.numUnder;
    const std::string reduced = ReduceRatio(over, under);
    const std::string shown = RatioText(over, under);
    if (reduced == shown) {
        return false;
    }
    PutInPlace(term, reduced);
    if (over == 0) {
        reason = kZeroDividedReason;
        return true;
    }
    const std::string g = NumberText(ReducedBy(over, reduced));
    if (!IsWrittenFraction(term)) {
        reason = Text("Reduce fraction by dividing the numerator and denominator by ", g, ".");
        return true;
    }
    const std::size_t slash = reduced.find('/');
    const std::string n = reduced.substr(0, slash);
    const std::string d = slash == std::string::npos ? "1" : reduced.substr(slash + 1);
    reason = Text("Reduce #", shown, "# by dividing the numerator and denominator by ", g, ". ( #",
                  shown, "# = #(", n, "*", g, ")/(", d, "*", g, ")# )");
    return true;
}

/// Turns a fraction into a decimal.
bool LikeTerms::ToDecimal(const Term& term) {
    const std::string value = NumberToFractionText(settings, {term.numOver, term.numUnder});
    const std::string fraction = RatioText(term.numOver, term.numUnder);
    PutInPlace(term, value);
    reason = IsConstant(term)
                 ? Text("Convert #", fraction,
                        "# to decimal notation by dividing the numerator by the denominator (",
                        value, ").")
                 : Text("Convert #", fraction,
                        "# to decimal notation by dividing the numerator by the denominator. (",
                        value, ").");
    return true;
}

void LikeTerms::TakeConstant(const Term& term, const std::string& written) {
    LikeRow row = RowOf(term, written);
    row.merges = !keepFractions || term.Den == 1;
    const auto other = std::find_if(constants.begin(), constants.end(),
                                    [](const LikeRow& each) { return each.merges; });
    if (row.merges && other != constants.end()) {
        Merge(*other, term);
    } else {
        constants.push_back(std::move(row));
    }
}

void LikeTerms::TakeLetters(const Term& term, const std::string& written) {
    LikeRow row = RowOf(term, written);
    row.NumText = LettersOf(term);
    row.DenText = LettersText(ReadLetters(term.DenText));
    const auto like = std::find_if(letters.begin(), letters.end(), [&row](const LikeRow& each) {
        return each.merges && each.NumText == row.NumText && each.DenText == row.DenText;
    });
    if (like != letters.end()) {
        Merge(*like, term);
    } else {
        AddRow(std::move(row));
    }
}

void LikeTerms::Merge(LikeRow& row, const Term& term) {
    const std::string before = row.alone ? Shown(NameOf(*row.first)) : row.name;
    const std::string added = Shown(MagnitudeText(term));
    row.sum = Sum(row.sum, RatioOf(term));
    row.alone = false;
    const Ratio magnitude{std::fabs(row.sum.over), row.sum.under};
    row.written = row.sum.over == 0
                      ? ""
                      : TermText(SignOf(row.sum.over), NumberToFractionText(settings, magnitude),
                                 row.NumText, row.DenText);
    row.name = row.written.empty() ? "0" : Shown(row.written.substr(row.sum.over < 0 ? 0 : 1));
    changed = true;
    reason =
        term.OpMark == "-"
            ? Text("Subtract ", added, " from ", before, " to form the new term (", row.name, ").")
            : Text("Add ", before, " and ", added, " to form the new term (", row.name, ").");
}

/// A zero that no other term took. It stays among numbers and goes without a word beside letters.
bool LikeTerms::IsDropped(const LikeRow& row) const {
    return row.isZero && row.alone && !letters.empty();
}

bool LikeTerms::IsChanged() const {
    const auto dropped = [this](const LikeRow& row) { return IsDropped(row); };
    return changed || std::any_of(letters.begin(), letters.end(), dropped) ||
           std::any_of(constants.begin(), constants.end(), dropped);
}

std::string LikeTerms::GroupText() const {
    std::string text;
    for (const std::vector<LikeRow>* rows : {&letters, &constants}) {
        for (const LikeRow& row : *rows) {
            text += IsDropped(row) ? "" : row.written;
        }
    }
    return text.empty() ? "+0" : text;
}

}  // namespace numerello
