#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "engine/tokens.h"

/// What a line consists of where its work goes on: the groups at its deepest bracket level, with
/// their terms. Outer levels wait until these are gone. Read from the tokens of one side, in
/// normal order; token indexes count from 0.
namespace numerello {

/// One term, or the factor in front of a bracket. Numbers are Singles.
struct Term {
    std::string OpMark = "+";  ///< "+", "-" or "*": what joins it to the term before
    float Num = 1;             ///< with the sign
    float Den = 1;
    float NumPower = 1;        ///< exponent on the number over the line
    float DenPower = 1;        ///< exponent on the number under it
    double numOver = 1;        ///< the number over the line as written, which a Single may not hold
    double numUnder = 1;       ///< the number under it
    float FirstExponent = 1;   ///< exponent of the first letter, where the terms tell it
    float Degree = 0;          ///< exponent of the first letter over the line
    bool DivideMark = false;   ///< a lone "/" stands in it
    std::string NumText;       ///< letters and exponents over the line: "x^2y", "^2", "~5"
    std::string DenText;       ///< the same under the line
    std::string FractionText;  ///< the number as written when it is a fraction or a decimal
    std::size_t begin = 0;     ///< its sign or "*"
    std::size_t end = 0;       ///< past its last token

    /// The coefficient. Throws Failure(DivisionByZero) for a Den of 0.
    float Value() const;
};

/// Whether a number of the term has an exponent.
bool HasNumberPower(const Term& term);

/// A bracket pair, a pair of bars, or the whole side.
struct Group {
    std::size_t begin = 0;  ///< its first token inside
    std::size_t end = 0;    ///< its closing token, or the end of the side
    bool IsAbsolute = false;
    bool ProductMark = false;  ///< a "*" joins two of its terms
    std::vector<Term> terms;

    std::optional<Term> front;  ///< the factor written before the bracket, its sign included
    float Power = 1;
    std::size_t tail = 0;  ///< past the bracket and its exponent
    int NextGroup = -1;    ///< group that multiplies this one directly, as in ")("

    /// The signed numerator written in front; 1 without a front.
    float Coef() const { return front ? front->Num : 1; }
};

struct TermTables {
    static constexpr int kTopLevel = 20;
    static constexpr int kTopGroup = 50;
    static constexpr int kTopTerm = 100;

    int Depth = 0;
    std::vector<Group> groups;  ///< those at Depth, from the left; at least one
};

/// Where the side of an equation begins and ends; a line without "=" is all left side.
struct SideRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};
SideRange RangeOfSide(const Tokens& tokens, int Side);

/// Gives every term the exponent of its first letter, 0 without one.
void TellFirstExponents(TermTables& tables);

/// Throws Failure(Format) past a bound of TermTables and for a bracket with a "^" but no exponent,
/// Failure(Overflow) past a Single.
TermTables BreakIntoTerms(const Tokens& tokens, int Side);

}  // namespace numerello
