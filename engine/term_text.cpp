#include "engine/term_text.h"

#include <cmath>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/letters.h"

namespace numerello {

namespace {

/// A number with its power: a negative one takes it under the line.
Ratio PowerRatio(double base, float power) {
    if (base == 0 && power <= 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    const double value = Checked(std::pow(base, std::fabs(power)));
    return power < 0 ? Ratio{1, value} : Ratio{value, 1};
}

}  // namespace

bool IsRoot(const Term& term) {
    return term.NumText.starts_with('~');
}

bool IsConstant(const Term& term) {
    return !HasLetters(term.NumText) && !HasLetters(term.DenText) && !IsRoot(term);
}

bool HasPoint(std::string_view number) {
    return number.find('.') != std::string_view::npos && number.find('E') == std::string_view::npos;
}

Ratio NumbersOf(const Term& term) {
    const Ratio over = PowerRatio(term.numOver, term.NumText.starts_with('^') ? term.NumPower : 1);
    const Ratio under =
        PowerRatio(term.numUnder, term.DenText.starts_with('^') ? term.DenPower : 1);
    const Ratio numbers{Checked(over.over * under.under), Checked(over.under * under.over)};
    if (numbers.under == 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    return numbers;
}

Ratio SignedRatio(const Term& term) {
    return {term.Num < 0 ? -term.numOver : term.numOver, term.numUnder};
}

std::string TermText(std::string_view sign, std::string_view coefficient, std::string_view NumText,
                     std::string_view DenText) {
    const std::size_t slash = coefficient.find('/');
    std::string_view over = coefficient.substr(0, slash);
    std::string_view under =
        slash == std::string_view::npos ? std::string_view() : coefficient.substr(slash + 1);
    if (over == "1" && !NumText.empty()) {
        over = "";
    }
    if (under == "1") {
        under = "";
    }
    const bool line = !under.empty() || !DenText.empty();
    return Text(sign, over, NumText, line ? "/" : "", under, DenText);
}

std::string RatioText(double over, double under) {
    return Text(NumberText(over), "/", NumberText(under));
}

std::string MagnitudeText(const Term& term) {
    return TermText("", RatioText(term.numOver, term.numUnder), term.NumText, term.DenText);
}

std::string NameOf(const Term& term) {
    return (term.Num < 0 ? "-" : "") + MagnitudeText(term);
}

std::string Flipped(const Term& term) {
    return TermText("", RatioText(term.numUnder, term.numOver), term.DenText, term.NumText);
}

}  // namespace numerello
