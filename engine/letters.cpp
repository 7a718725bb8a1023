#include "engine/letters.h"

#include <vector>

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

void AddExponents(const TypedProblem& typed, std::string_view text, Exponents& exponents) {
    std::size_t at = 0;
    if (text.starts_with('^')) {
        ReadExponent(text, at);
    }
    while (at < text.size()) {
        const int letter = FindVariable(typed, text.substr(at++, 1));
        exponents[static_cast<std::size_t>(letter)] += ReadExponent(text, at);
    }
}

}  // namespace

std::string MultiplyLetters(const TypedProblem& typed, std::string_view one,
                            std::string_view other) {
    Exponents exponents(TypedProblem::kTopVariable + 1, 0);
    AddExponents(typed, one, exponents);
    AddExponents(typed, other, exponents);
    std::string product;
    for (int i = 1; i < typed.VarCount; ++i) {
        const double exponent = exponents[static_cast<std::size_t>(i)];
        if (exponent != 0) {
            product += typed.VarNames[i];
            product += exponent == 1 ? "" : "^" + NumberText(exponent);
        }
    }
    return product;
}

}  // namespace numerello
