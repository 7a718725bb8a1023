#include "engine/term_text.h"

#include <cmath>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "engine/letters.h"

namespace numerello {

namespace {

void PlacePower(double base, float power, double& side, double& otherSide) {
    if (base == 0 && power <= 0) {
        throw Failure(FailureKind::DivisionByZero);
    }
    double& place = power < 0 ? otherSide : side;
    place = Checked(place * PowerOf(base, std::fabs(power)));
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
    Ratio numbers;
    PlacePower(term.numOver, term.NumText.starts_with('^') ? term.NumPower : 1, numbers.over,
               numbers.under);
    PlacePower(term.numUnder, term.DenText.starts_with('^') ? term.DenPower : 1, numbers.under,
               numbers.over);
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
