#pragma once

#include <algorithm>
#include <cstdint>
#include <map>

#include "core/random_source.h"
#include "film.h"

namespace numerello {

constexpr int kRandomProblems = 2000;

using Whole = std::int64_t;

inline Whole PowerOfTen(int exponent) {
    Whole power = 1;
    for (int i = 0; i < exponent; ++i) {
        power *= 10;
    }
    return power;
}

/// The digit of that place, counted from the right.
inline Whole DigitOf(Whole number, int place) {
    return number / PowerOfTen(place) % 10;
}

inline Whole ValueOf(const std::string& digits) {
    return digits.empty() ? 0 : std::stoll(digits);
}

inline std::string Say(Whole number) {
    return std::to_string(number);
}

/// Operands of 1 to `longest` digits that are the same in every run.
class Operands {
  public:
    explicit Operands(unsigned seed) : source(seed) {}

    int Below(int count) { return static_cast<int>(source.Rnd() * count); }

    /// Many zeros and nines, so that carries and borrows run far; seldom a leading zero.
    std::string Draw(int longest) {
        const int length = 1 + Below(longest);
        std::string digits;
        for (int i = 0; i < length; ++i) {
            const int kind = Below(4);
            digits += static_cast<char>(kind == 0 ? '0' : kind == 1 ? '9' : '0' + Below(10));
        }
        if (length > 1 && digits.front() == '0' && Below(10) > 0) {
            digits.front() = static_cast<char>('1' + Below(9));
        }
        return digits;
    }

  private:
    MersenneSource source;
};

/// The black texts of a row, by their X, and what they spell from left to right. Two texts at one
/// place must be the same.
inline std::map<double, std::string> RowAt(const Frame& frame, double y, Color color = kBlack) {
    std::map<double, std::string> row;
    for (const Mark& mark : frame.marks) {
        const auto* const text = std::get_if<TextMark>(&mark);
        if (text != nullptr && std::abs(text->y - y) < 1e-6 && text->color == color) {
            const auto [place, added] = row.emplace(std::round(text->x * 1000), text->text);
            EXPECT_TRUE(added || place->second == text->text);
        }
    }
    return row;
}

inline std::string Spelt(const std::map<double, std::string>& row) {
    std::string text;
    for (const auto& [x, digit] : row) {
        text += digit;
    }
    return text;
}

inline std::string SpeltAt(const Frame& frame, double y, Color color = kBlack) {
    return Spelt(RowAt(frame, y, color));
}

/// What stands at a place, empty for nothing.
inline std::string TextAt(const std::map<double, std::string>& row, double x) {
    const auto found = row.find(std::round(x * 1000));
    return found == row.end() ? "" : found->second;
}

/// Solved step by step, with what is true of every such film: the work ends with the last drawing
/// and no sooner.
inline Film Played(int code, const std::string& Text1, const std::string& Text2) {
    Film film(code, Text1, Text2);
    film.Play();
    for (const Frame& frame : film.frames) {
        EXPECT_EQ(frame.finished, &frame == &film.frames.back());
    }
    return film;
}

}  // namespace numerello
