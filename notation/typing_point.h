#pragma once

#include <string_view>

#include "core/problem.h"

/// Reading a typed line: what each of its characters is where it stands.
namespace numerello {

enum class Role {
    LineStart,  ///< nothing is typed
    Digit,
    Point,
    ExponentDigit,
    Letter,
    Operator,  ///< + - * between two operands
    Sign,      ///< a - that belongs to the operand behind it
    ExponentSign,
    FractionBar,
    DivisionSign,  ///< a / between two fractions
    RootStart,
    RootEnd,
    Caret,
    OpenParen,
    CloseParen,
    EqualSign,
    BarStart,
    BarEnd,
    Comma,
    Colon,
    Percent,
};

/// The digits of one number before and behind its point.
struct NumberLengths {
    int whole = 0;
    int decimals = 0;
    bool hasPoint = false;
};

/// Where the next key of a line lands.
struct TypingPoint : LineFlags {
    Role last = Role::LineStart;
    char key = '\0';             ///< the last character; '\0' on an empty line
    NumberLengths number;        ///< the number that the last character belongs to
    bool barInFraction = false;  ///< the last bars opened stand in a denominator

    /// Goes past a character that the line of this topic holds. Others than those of the notation
    /// are passed over.
    void Pass(char character, int ProblemType);

  private:
    using MarkProcedure = void (TypingPoint::*)();

    /// Null for what is no mark of the notation. A "/" has another meaning in some topics and is
    /// not among them.
    static MarkProcedure ProcedureOf(char mark);

    void PassNumber(char character);
    void PassLetter();
    void PassSlash(int ProblemType);
    void PassOperator();
    void PassMinus();
    void PassRoot();
    void PassBar();
    void PassOpenParen();
    void PassCloseParen();
    void PassCaret();
    void PassEqualSign();
    void PassComma();
    void PassColon();
    void PassPercent();
    void LeaveFraction();
};

TypingPoint ReadLine(std::string_view line, int ProblemType);

/// Whether an operand ends with a character of this role.
bool IsOperandEnd(Role role);

}  // namespace numerello
