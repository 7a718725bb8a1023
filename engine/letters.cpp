#include "engine/letters.h"

#include <algorithm>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

using Exponents = std::vector<double>;  ///< by the index in VarNames

double ReadExponent(std::string_view text, std::size_t& at) {
    if (at >= text.size() || text[at] != '^') {
        return 1;
    }
    const std::size_t end = text.find_first_not_of("-.0123456789", at + 1);
    const std::string_view number = text.substr(at + 1, end - at - 1);
    at = end == std::string_view::npos ? text.size() : end;
    return ToNumber(number);
}

void AddExponents(const TypedProblem& typed, std::string_view text, double factor,
                  Exponents& exponents) {
    for (const LetterPower& power : ReadLetters(text)) {
        const int letter = FindVariable(typed, power.letter);
        exponents[static_cast<std::size_t>(letter)] += factor * power.exponent;
    }
}

std::vector<LetterPower> InOrder(const TypedProblem& typed, const Exponents& exponents) {
    std::vector<LetterPower> letters;
    for (int i = 1; i < typed.VarCount; ++i) {
        letters.push_back({typed.VarNames[i], exponents[static_cast<std::size_t>(i)]});
    }
    return letters;
}

}  // namespace

bool HasLetters(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char each) { return IsLetter(each); });
}

std::vector<LetterPower> ReadLetters(std::string_view text) {
    std::vector<LetterPower> letters;
    std::size_t at = 0;
    if (text.starts_with('^')) {
        ReadExponent(text, at);
    }
    while (at < text.size()) {
        std::string letter(text.substr(at++, 1));
        letters.push_back({std::move(letter), ReadExponent(text, at)});
    }
    return letters;
}

std::string LettersText(const std::vector<LetterPower>& letters) {
    std::string text;
    for (const LetterPower& power : letters) {
        if (power.exponent != 0) {
            text += power.letter;
            text += power.exponent == 1 ? "" : "^" + NumberText(power.exponent);
        }
    }
    return text;
}

std::string MultiplyLetters(const TypedProblem& typed, std::string_view one,
                            std::string_view other) {
    Exponents exponents(TypedProblem::kTopVariable + 1, 0);
    AddExponents(typed, one, 1, exponents);
    AddExponents(typed, other, 1, exponents);
    return LettersText(InOrder(typed, exponents));
}

LetterRatio DivideLetters(const TypedProblem& typed, std::string_view over,
                          std::string_view under) {
    Exponents exponents(TypedProblem::kTopVariable + 1, 0);
    AddExponents(typed, over, 1, exponents);
    AddExponents(typed, under, -1, exponents);
    std::vector<LetterPower> above = InOrder(typed, exponents);
    std::vector<LetterPower> below = above;
    for (std::size_t i = 0; i < above.size(); ++i) {
        below[i].exponent = std::max(-above[i].exponent, 0.0);
        above[i].exponent = std::max(above[i].exponent, 0.0);
    }
    return {LettersText(above), LettersText(below)};
}

}  // namespace numerello
