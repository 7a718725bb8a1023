#pragma once

#include <cctype>
#include <stdexcept>
#include <string>
#include <string_view>

#include "line_value.h"

namespace numerello {

/// A place in a text of the notation, and what is open there.
class NotationCursor {
  public:
    explicit NotationCursor(std::string_view text) : text(text) {}

    char Peek() const { return at < text.size() ? text[at] : '\0'; }
    bool AtEnd() const { return at == text.size(); }
    bool IsAt(std::string_view characters) const {
        return !AtEnd() && characters.find(Peek()) != std::string_view::npos;
    }
    bool AtDigit() const { return IsAt("0123456789."); }
    bool AtLetter() const { return std::isalpha(static_cast<unsigned char>(Peek())) != 0; }

    bool Take(char c) {
        if (AtEnd() || Peek() != c) {
            return false;
        }
        ++at;
        return true;
    }
    void Expect(char c) {
        if (!Take(c)) {
            Fail(std::string("no ") + c);
        }
    }
    char Next() { return text[at++]; }

    /// Whether the signs here, any number of them, make a negative number.
    bool TakeSigns() {
        bool negative = false;
        while (IsAt("+-")) {
            negative = (Next() == '-') != negative;
        }
        return negative;
    }
    std::string_view TakeDigits() {
        const std::size_t begin = at;
        while (AtDigit()) {
            ++at;
        }
        return text.substr(begin, at - begin);
    }
    /// A whole number with its sign.
    int TakeExponent() {
        const bool negative = TakeSigns();
        const std::string_view digits = TakeDigits();
        if (digits.empty() || digits.size() > 2) {
            Fail("no exponent");
        }
        const int exponent = std::stoi(std::string(digits));
        return negative ? -exponent : exponent;
    }

    void Open(char enclosure) { open += enclosure; }
    void Close() { open.pop_back(); }
    bool IsIn(char enclosure) const { return !open.empty() && open.back() == enclosure; }

    [[noreturn]] void Fail(const std::string& wrong) const {
        throw std::invalid_argument(wrong + " at " + std::to_string(at) + " of " +
                                    std::string(text));
    }

  private:
    std::string_view text;
    std::size_t at = 0;
    std::string open;
};

/// `refused`: the base is a number written as 0, whose power 0 is no number.
template <class Number>
Number PowerOf(const Number& one, const Number& base, int exponent, bool refused) {
    if (exponent == 0 && refused) {
        throw std::domain_error("a power 0 of 0");
    }
    Number power = one;
    for (int i = 0; i < std::abs(exponent); ++i) {
        power = power * base;
    }
    return exponent < 0 ? one / power : power;
}

}  // namespace numerello
