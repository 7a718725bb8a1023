#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/topics/typed_topic.h"

namespace numerello {

/// Invents problems of the expression topics with small numbers. The filter may refuse some.
class Inventor {
  public:
    Inventor(int code, std::uint32_t seed);

    std::string Problem();
    /// An answer to a prompt for a number.
    std::string Answer();

  private:
    bool Chance(int percent) { return draws.Below(100) < percent; }
    char OneOf(std::string_view characters) {
        return characters[static_cast<std::size_t>(
            draws.Below(static_cast<int>(characters.size())))];
    }

    std::string Whole();
    std::string Number();
    std::string Fraction();
    std::string Power(int negativePercent);
    std::string Root();

    using Item = std::string (Inventor::*)();
    /// Between `fewest` and `most` items with operators between them.
    std::string Joined(std::string_view operators, Item item, int fewest, int most,
                       int minusPercent = 8);

    std::string NumberOrFraction();
    std::string NumberWithPower();
    std::string RootOrNumber();
    std::string FactorOfProduct();
    std::string FractionMostly();
    std::string Bars();
    std::string NumberWithBrackets();
    std::string NumberBracket();
    std::string LetterTerm();
    std::string Polynomial();
    std::string PolynomialItem();
    std::string PolynomialBracket();
    std::string ManyLetters();
    std::string ManyLetterItem();
    std::string LinearTerm();
    std::string Side();
    std::string Equation();

    int code;
    int depth = 0;  ///< of brackets
    Draws draws;
    std::string letters;
};

}  // namespace numerello
