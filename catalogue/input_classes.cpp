#include "catalogue/input_classes.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace numerello {

namespace {

/// {c} is the character typed, {T} the topic's caption.
struct ClassRow {
    std::string_view characters;
    int bit;  ///< 0: no topic lets these in
    std::string_view refusal;
};

constexpr ClassRow kDigits{
    "0123456789", kNumbers,
    "Numbers are not allowed in '{T}'.  Click the Assistant Wiz for details."};

constexpr ClassRow kLetters{
    "", kVariables, "Variables are not allowed in '{T}'.  Click the Assistant Wiz for details."};

constexpr ClassRow kOthers{
    "", 0, "The '{c}' is not allowed in '{T}'.  Click the Assistant Wiz for details."};

constexpr std::array kMarks{
    ClassRow{"+-", kSigns,
             "The '{c}' sign is not allowed in '{T}'.  Enter a number without using + or -.  Click "
             "the Assistant Wiz for details."},
    ClassRow{"*", kMultiplication,
             "The '*' is not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{"/", kDivision,
             "The division symbol is not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{"^", kExponents,
             "Exponents are not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{"()", kParentheses,
             "The '{c}' is not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{"=", kEqualSign,
             "The '=' is not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{"~", kSquareRoots,
             "Square roots (~ ~) are not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{"|", kAbsoluteValues,
             "Absolute Values (|) are not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{".", kDecimalPoint,
             "Decimals (.) are not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{",", kComma,
             "Commas (,) are not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{":", kRatioColon,
             "Ratios (:) are not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{"%", kPercent,
             "Percents (%) are not allowed in '{T}'.  Click the Assistant Wiz for details."},
    ClassRow{"[#]", 0,
             "This symbol is not allowed in '{T}'.  Click the Assistant Wiz for details."},
};

const ClassRow& ClassOf(std::string_view character) {
    if (IsDigit(character)) {
        return kDigits;
    }
    if (IsLetter(character)) {
        return kLetters;
    }
    const auto* const row =
        std::find_if(kMarks.begin(), kMarks.end(), [character](const auto& each) {
            return character.size() == 1 &&
                   each.characters.find(character) != std::string_view::npos;
        });
    return row == kMarks.end() ? kOthers : *row;
}

}  // namespace

std::optional<std::string> ClassRefusal(std::string_view character, int InputMask,
                                        std::string_view TopicTitle) {
    const ClassRow& row = ClassOf(character);
    if ((row.bit & InputMask) != 0) {
        return std::nullopt;
    }
    return Replace(Replace(row.refusal, "{c}", character), "{T}", TopicTitle);
}

}  // namespace numerello
