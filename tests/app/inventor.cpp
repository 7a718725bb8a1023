#include "inventor.h"

namespace numerello {

namespace {

constexpr int kDeepest = 2;

int LettersAllowed(int code) {
    switch (code) {
        case 103:
            return 3;
        case 105:
            return 2;
        default:
            return 1;
    }
}

}  // namespace

Inventor::Inventor(int code, std::uint32_t seed) : code(code), draws(seed) {}

std::string Inventor::Problem() {
    letters = std::string(draws.Below(5) == 0 ? "nab" : "xyz")
                  .substr(0, static_cast<std::size_t>(1 + draws.Below(LettersAllowed(code))));
    switch (code) {
        case 76: {
            constexpr std::string_view kOperators[] = {"+-", "+-", "*", "*/", "+-*/", "/"};
            return Joined(kOperators[draws.Below(6)], &Inventor::FractionMostly, 2, 3);
        }
        case 81:
            return Joined("++--**/", &Inventor::NumberWithPower, 1, 4);
        case 82:
            return Joined("++--*", &Inventor::RootOrNumber, 1, 4);
        case 83:
            return Joined("*", &Inventor::FactorOfProduct, 1, 4, 0);
        case 91:
            return Joined("++--**/", &Inventor::NumberOrFraction, 1, 4);
        case 102:
            return Polynomial();
        case 103:
            return ManyLetters();
        case 120:
            return Joined("++--**", &Inventor::Bars, 1, 3, 15);
        case 121:
            return Joined("++--**/", &Inventor::NumberWithBrackets, 1, 3);
        case 150:
            return Joined("++--*", &Inventor::LetterTerm, 1, 4);
        default:
            return Equation();
    }
}

std::string Inventor::Answer() {
    if (Chance(10)) {
        return Chance(50) ? "0.5" : "-1.5";
    }
    return std::to_string(draws.Below(19) - 9);
}

std::string Inventor::Whole() {
    if (Chance(4)) {
        return "0";
    }
    return std::to_string(1 + draws.Below(Chance(85) ? 12 : 60));
}

std::string Inventor::Number() {
    if ((code == 91 || code == 120) && Chance(15)) {
        return std::to_string(draws.Below(10)) + "." + std::to_string(1 + draws.Below(9));
    }
    return Whole();
}

std::string Inventor::Fraction() {
    return Number() + "/" + Number();
}

std::string Inventor::Power(int negativePercent) {
    return std::string("^") + (Chance(negativePercent) ? "-" : "") + OneOf("222330123");
}

std::string Inventor::Root() {
    constexpr int kRadicands[] = {0,  1,  2,  3,  4,  5,  6,  8,  9,  12, 16, 18,  20,  24,
                                  25, 27, 32, 36, 45, 48, 49, 50, 72, 75, 98, 108, 144, 200};
    return (Chance(50) ? Whole() : "") + "~" +
           std::to_string(kRadicands[draws.Below(std::size(kRadicands))]) + "~";
}

std::string Inventor::Joined(std::string_view operators, Item item, int fewest, int most,
                             int minusPercent) {
    std::string joined = Chance(minusPercent) ? "-" : "";
    joined += (this->*item)();
    for (int count = fewest + draws.Below(most - fewest + 1); count > 1; --count) {
        const char sign = OneOf(operators);
        joined += sign;
        joined += Chance(minusPercent / 2) ? "-" : "";
        joined += (this->*item)();
    }
    return joined;
}

std::string Inventor::NumberOrFraction() {
    return Chance(30) ? Fraction() : Number();
}

std::string Inventor::NumberWithPower() {
    const int kind = draws.Below(10);
    if (kind < 5) {
        return Whole() + Power(0);
    }
    if (kind < 6) {
        return Whole() + Power(0) + "/" + Whole();
    }
    return kind < 7 ? Fraction() : Whole();
}

std::string Inventor::RootOrNumber() {
    return Chance(80) ? Root() : Whole();
}

std::string Inventor::FactorOfProduct() {
    return Whole() + (Chance(30) ? Power(0) : "");
}

std::string Inventor::FractionMostly() {
    return Chance(85) ? Fraction() : Whole();
}

std::string Inventor::Bars() {
    if (Chance(50)) {
        return NumberOrFraction();
    }
    const std::string bars = "|" + Joined("++--*/", &Inventor::NumberOrFraction, 1, 3, 25) + "|";
    if (Chance(15)) {
        return bars + "/" + (Chance(30) ? "-" : "") + Whole();
    }
    return Chance(7) ? Number() + "/-" + bars : bars;
}

std::string Inventor::NumberWithBrackets() {
    return depth < kDeepest && Chance(35) ? NumberBracket() : NumberWithPower();
}

std::string Inventor::NumberBracket() {
    ++depth;
    std::string bracket = "(" + Joined("++--**/", &Inventor::NumberWithBrackets, 1, 3) + ")";
    bracket += Chance(15) ? Power(0) : "";
    const int kind = draws.Below(100);
    if (kind < 25) {
        bracket.insert(0, Whole());
    } else if (kind < 30) {
        bracket.insert(0, Fraction());
    } else if (kind < 35) {
        bracket.insert(0, Whole() + Power(0));
    } else if (kind < 42) {
        bracket.insert(0, Whole() + "/");
    } else if (kind < 50) {
        bracket += "/" + Whole();
    } else if (kind < 54) {
        bracket += "/(" + Joined("+-*", &Inventor::NumberWithBrackets, 1, 2) + ")";
    }
    --depth;
    return bracket;
}

std::string Inventor::LetterTerm() {
    const int negativePercent = code == 150 ? 30 : 4;
    const int kind = draws.Below(100);
    const std::string count = Chance(25) ? "" : Whole();
    if (kind < 35) {
        return count + letters.front();
    }
    if (kind < 65) {
        return count + letters.front() + Power(negativePercent);
    }
    if (kind < 75) {
        return count + letters.front() + (Chance(50) ? Power(negativePercent) : "") + "/" + Whole();
    }
    if (kind < 85) {
        return Whole();
    }
    return kind < 92 ? Fraction() : Whole() + Power(code == 150 ? 0 : negativePercent);
}

std::string Inventor::Polynomial() {
    return Joined("+++---*", &Inventor::PolynomialItem, 1, depth == 0 ? 4 : 3);
}

std::string Inventor::PolynomialItem() {
    const bool bracket = depth < kDeepest && Chance(depth == 0 ? 40 : 20);
    return bracket ? PolynomialBracket() : LetterTerm();
}

std::string Inventor::PolynomialBracket() {
    ++depth;
    std::string bracket = "(" + Polynomial() + ")" + (Chance(12) ? Power(4) : "");
    const int kind = draws.Below(100);
    if (kind < 30) {
        bracket.insert(0, Whole());
    } else if (kind < 40) {
        bracket.insert(0, letters.substr(0, 1));
    } else if (kind < 45) {
        bracket.insert(0, Whole() + letters.front());
    } else if (kind < 48) {
        bracket.insert(0, Fraction());
    } else if (kind < 68) {
        bracket += "*(" + Polynomial() + ")";
    } else if (kind < 72) {
        bracket += "/" + Whole();
    } else if (kind < 74) {
        bracket += letters.front();
    }
    --depth;
    return bracket;
}

std::string Inventor::ManyLetters() {
    return Joined("++--*", &Inventor::ManyLetterItem, depth == 0 ? 1 : 2, depth == 0 ? 4 : 2);
}

std::string Inventor::ManyLetterItem() {
    if (depth < kDeepest && Chance(20)) {
        ++depth;
        std::string bracket = "(" + ManyLetters() + ")" + (Chance(20) ? Power(0) : "");
        if (Chance(40)) {
            bracket.insert(0, Chance(50) ? Whole() : std::string(1, OneOf(letters)));
        }
        --depth;
        return bracket;
    }
    std::string product = Chance(40) ? "" : Whole();
    for (int count = product.empty() ? 1 + draws.Below(2) : draws.Below(3); count > 0; --count) {
        product += OneOf(letters);
    }
    return product + (Chance(35) ? Power(10) : "");
}

std::string Inventor::LinearTerm() {
    if (Chance(50)) {
        return Whole();
    }
    return (Chance(30) ? "" : Whole()) + OneOf(letters);
}

std::string Inventor::Side() {
    return Joined("+-", &Inventor::LinearTerm, 1, 3);
}

std::string Inventor::Equation() {
    const int kind = draws.Below(100);
    const std::string side = Side();
    if (kind < 8) {
        return side + "=" + side;
    }
    return kind < 16 ? side + "=" + side + "+" + Whole() : side + "=" + Side();
}

}  // namespace numerello
