#include "notation/typing_point.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "core/topic_codes.h"

namespace numerello {

namespace {

/// Within a number, as in 1.5E+10; letters of a line are lower case.
constexpr char kPowerOfTen = 'E';

}  // namespace

bool IsOperandEnd(Role role) {
    switch (role) {
        case Role::Digit:
        case Role::ExponentDigit:
        case Role::Letter:
        case Role::CloseParen:
        case Role::BarEnd:
        case Role::RootEnd:
        case Role::Percent:
            return true;
        default:
            return false;
    }
}

TypingPoint ReadLine(std::string_view line, int ProblemType) {
    TypingPoint point;
    for (const char character : line) {
        point.Pass(character, ProblemType);
    }
    return point;
}

void TypingPoint::Pass(char character, int ProblemType) {
    if (IsDigit(character) || character == '.') {
        PassNumber(character);
    } else if (character == kPowerOfTen || key == kPowerOfTen) {
        last = Role::Digit;
    } else if (IsLetter(character)) {
        PassLetter();
    } else if (character == '/') {
        PassSlash(ProblemType);
    } else if (const MarkProcedure pass = ProcedureOf(character)) {
        (this->*pass)();
    } else {
        return;
    }
    key = character;
}

TypingPoint::MarkProcedure TypingPoint::ProcedureOf(char mark) {
    struct Row {
        char mark;
        MarkProcedure pass;
    };
    static constexpr auto kRows = std::to_array<Row>({
        {'+', &TypingPoint::PassOperator},
        {'-', &TypingPoint::PassMinus},
        {'*', &TypingPoint::PassOperator},
        {'~', &TypingPoint::PassRoot},
        {'|', &TypingPoint::PassBar},
        {'(', &TypingPoint::PassOpenParen},
        {')', &TypingPoint::PassCloseParen},
        {'^', &TypingPoint::PassCaret},
        {'=', &TypingPoint::PassEqualSign},
        {',', &TypingPoint::PassComma},
        {':', &TypingPoint::PassColon},
        {'%', &TypingPoint::PassPercent},
    });
    const auto* const row = std::find_if(kRows.begin(), kRows.end(),
                                         [mark](const Row& each) { return each.mark == mark; });
    return row == kRows.end() ? nullptr : row->pass;
}

void TypingPoint::PassNumber(char character) {
    if (InExponent) {
        last = Role::ExponentDigit;
        return;
    }
    if (last != Role::Digit && last != Role::Point) {
        number = NumberLengths();
    }
    if (character == '.') {
        last = Role::Point;
        number.hasPoint = true;
    } else {
        last = Role::Digit;
        ++(number.hasPoint ? number.decimals : number.whole);
    }
}

void TypingPoint::PassLetter() {
    // No learner types one behind an exponent, but a worked line may go on with it.
    InExponent = InExponent && last != Role::ExponentDigit;
    last = Role::Letter;
}

void TypingPoint::PassOperator() {
    if (IsOperandEnd(last)) {
        last = Role::Operator;
        InExponent = RootOpen = false;
        LeaveFraction();
    }
}

void TypingPoint::PassMinus() {
    if (IsOperandEnd(last)) {
        PassOperator();
    } else {
        last = last == Role::Caret ? Role::ExponentSign : Role::Sign;
    }
}

void TypingPoint::PassSlash(int ProblemType) {
    InExponent = false;
    if (ProblemType == kFractionArithmetic && InFraction) {
        last = Role::DivisionSign;
        InFraction = false;
    } else {
        last = Role::FractionBar;
        InFraction = true;
        FractionDepth = ParenDepth;
    }
}

void TypingPoint::PassRoot() {
    last = RootOpen ? Role::RootEnd : Role::RootStart;
    RootOpen = !RootOpen;
}

void TypingPoint::PassBar() {
    InExponent = false;
    if (AbsOpen) {
        last = Role::BarEnd;
        InFraction = InFraction && barInFraction;
    } else {
        last = Role::BarStart;
        barInFraction = InFraction;
    }
    AbsOpen = !AbsOpen;
    AbsDepth = AbsOpen ? 1 : 0;
}

void TypingPoint::PassOpenParen() {
    // Only a parenthesis straight behind the bar belongs to the denominator: 1/2(x+4).
    if (IsOperandEnd(last)) {
        LeaveFraction();
    }
    last = Role::OpenParen;
    InExponent = RootOpen = false;
    ++ParenDepth;
}

void TypingPoint::PassCloseParen() {
    last = Role::CloseParen;
    InExponent = RootOpen = false;
    --ParenDepth;
    if (ParenDepth < FractionDepth) {
        InFraction = false;
    }
}

void TypingPoint::PassCaret() {
    last = Role::Caret;
    InExponent = true;
}

void TypingPoint::PassEqualSign() {
    last = Role::EqualSign;
    EqualsTyped = true;
    InExponent = RootOpen = false;
    LeaveFraction();
}

void TypingPoint::PassComma() {
    last = Role::Comma;
    InFraction = false;
}

void TypingPoint::PassColon() {
    last = Role::Colon;
}

void TypingPoint::PassPercent() {
    last = Role::Percent;
}

void TypingPoint::LeaveFraction() {
    const bool inBarsBelow = AbsOpen && barInFraction;
    if (ParenDepth <= FractionDepth && !inBarsBelow) {
        InFraction = false;
    }
}

}  // namespace numerello
