#include "operands.h"

namespace numerello {
namespace {

/// The ink of a text: digits fill the upper part of their cell, 3 to 15 units below its top at 12
/// points.
struct Ink {
    explicit Ink(const TextMark& mark)
        : mark(&mark),
          left(mark.x),
          right(mark.x + PlainMetrics().Width(mark.text, mark.font)),
          top(mark.y + 0.25 * mark.font.size),
          bottom(mark.y + 1.25 * mark.font.size) {}

    bool Meets(const Ink& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }

    bool IsCrossedBy(const StrokeMark& rule) const {
        return rule.x1 < right && left < rule.x2 && rule.y1 + rule.width / 2 > top &&
               rule.y1 - rule.width / 2 < bottom;
    }

    bool IsAgain(const Ink& other) const {
        return mark->text == other.mark->text && left == other.left && top == other.top;
    }

    const TextMark* mark;
    double left, right, top, bottom;
};

std::vector<Ink> InkOf(const Frame& frame) {
    std::vector<Ink> ink;
    for (const Mark& mark : frame.marks) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            ink.emplace_back(*text);
        }
    }
    return ink;
}

/// No text lies on another one or on a rule, and all of them lie on the sheet.
void ExpectReadable(const Frame& frame, double sheetHeight) {
    const std::vector<Ink> ink = InkOf(frame);
    for (std::size_t i = 0; i < ink.size(); ++i) {
        EXPECT_GE(ink[i].left, 0) << Written(*ink[i].mark);
        EXPECT_LE(ink[i].right, 800) << Written(*ink[i].mark);
        EXPECT_LE(ink[i].bottom, sheetHeight) << Written(*ink[i].mark);
        for (std::size_t k = i + 1; k < ink.size(); ++k) {
            EXPECT_TRUE(!ink[i].Meets(ink[k]) || ink[i].IsAgain(ink[k]))
                << Written(*ink[i].mark) << " and " << Written(*ink[k].mark);
        }
        for (const Mark& mark : frame.marks) {
            const auto* const stroke = std::get_if<StrokeMark>(&mark);
            EXPECT_FALSE(stroke != nullptr && stroke->width == 2 && ink[i].IsCrossedBy(*stroke))
                << Written(*ink[i].mark) << " and " << Written(*stroke);
        }
    }
}

constexpr double kSheetHeight = 657;
/// A quotient of nine digits or more makes the sheet longer.
constexpr double kLongerSheet = 657 + 46;

class Overlap : public testing::TestWithParam<int> {};

TEST_P(Overlap, NeverHappensHoweverLongTheNumbersAre) {
    Operands operands(static_cast<unsigned>(GetParam()));
    for (int i = 0; i < 300 && !HasFailure(); ++i) {
        const std::string Text1 = operands.Draw(10);
        const std::string Text2 = operands.Draw(10);
        SCOPED_TRACE(Text1 + ", " + Text2);
        Film film(GetParam(), Text1, Text2, false);
        film.Play();
        if (film.failure != FailureKind::Overflow) {
            ExpectReadable(film.Last(), GetParam() == kDivision ? kLongerSheet : kSheetHeight);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllFour, Overlap,
                         testing::Values(kAddition, kSubtraction, kMultiplication, kDivision));

TEST(Overlap, NeverHappensInTheLongestProblems) {
    const std::string nines = "9999999999";
    ExpectReadable(Film(kAddition, nines, nines, false).Play().Last(), kSheetHeight);
    ExpectReadable(Film(kSubtraction, "2111111110", "1222222222", false).Play().Last(),
                   kSheetHeight);
    ExpectReadable(Film(kMultiplication, nines, nines, false).Play().Last(), kSheetHeight);
    ExpectReadable(Film(kMultiplication, nines, "999999", false).Play().Last(), kSheetHeight);
    ExpectReadable(Film(kDivision, "2147483647", "1073741824", false).Play().Last(), kSheetHeight);
    ExpectReadable(Film(kDivision, "99999999", "1", false).Play().Last(), kSheetHeight);
    ExpectReadable(Film(kDivision, "2147483647", "1", false).Play().Last(), kLongerSheet);
}

}  // namespace
}  // namespace numerello
