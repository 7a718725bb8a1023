#include "catalogue/key_rules.h"

#include <string_view>

#include "core/number.h"
#include "core/text.h"
#include "core/topic_codes.h"

namespace numerello {

namespace {

constexpr int kMaxDecimals = 2;
constexpr int kMaxParenDepth = 10;

constexpr std::string_view kNotAfter = "You can't type a '{c}' after a '{P}' in '{T}'.";

std::string UnlessTaken(bool taken, std::string_view refusal) {
    return std::string(taken ? "" : refusal);
}

bool IsList(int ProblemType) {
    return ProblemType >= kRanges && ProblemType <= kMeans;
}

/// Whether the last character is an operator, a sign or a "/".
bool IsOperatorOrSign(Role role) {
    return role == Role::Operator || role == Role::Sign || role == Role::FractionBar ||
           role == Role::DivisionSign;
}

std::string ExponentDigitRefusal(const TypingPoint& point) {
    const bool first = point.last == Role::Caret || point.last == Role::ExponentSign;
    return UnlessTaken(first, "Exponents can't be greater than one digit.");
}

std::string DigitRefusal(const Problem& problem, const TypingPoint& point) {
    if (point.InExponent) {
        return ExponentDigitRefusal(point);
    }
    const bool inNumber = point.last == Role::Digit || point.last == Role::Point;
    if (point.last == Role::CloseParen || point.last == Role::BarEnd ||
        point.last == Role::Letter) {
        return "You can't type a number after a '{P}'.";
    }
    if (IsOperandEnd(point.last) && !inNumber) {
        return std::string(kNotAfter);
    }
    if (!inNumber) {
        return "";
    }
    if (point.number.decimals >= kMaxDecimals) {
        return "Please keep all decimal portions to 2 digits or less.";
    }
    if (!point.number.hasPoint && point.number.whole >= problem.topic.MaxDigits) {
        return Text("Please keep all numbers to ", WholeText(problem.topic.MaxDigits),
                    " digits or less.");
    }
    return "";
}

/// Whether the term that is being typed holds the letter already.
bool TermHolds(std::string_view line, char letter) {
    constexpr std::string_view kTermStarts = "+-*/(=";
    const std::size_t start = line.find_last_of(kTermStarts);
    const std::string_view term = start == std::string_view::npos ? line : line.substr(start + 1);
    return term.find(letter) != std::string_view::npos;
}

std::string LetterRefusal(const Problem& problem, const TypingPoint& point, char letter) {
    if (point.InExponent) {
        return "You can't have a variable in an exponent.";
    }
    if (point.InFraction) {
        return "You can't have a variable in the denominator of a fraction after a '{P}'.  Please "
               "see Equarello for this functionality.";
    }
    if (point.key == letter) {
        return "You can't type the same variable twice in a row in '{T}'.";
    }
    if (TermHolds(problem.typed.ProblemText, letter)) {
        return std::string(kNotAfter);
    }
    const int letters = problem.typed.VarCount - 1;
    const int limit = problem.topic.MaxVariables;
    if (FindVariable(problem.typed, std::string_view(&letter, 1)) != 0 || letters < limit) {
        return "";
    }
    if (limit == 1) {
        return "Only one different variable is allowed in '{T}'.";
    }
    return Text("Only ", WholeText(limit), " different variables are allowed in '{T}'.");
}

bool TakesSlash(const Problem& problem, const TypingPoint& point) {
    const std::string_view line = problem.typed.ProblemText;
    const int code = problem.topic.ProblemType;
    if (code == kMixedToFraction && line.find('+') == std::string_view::npos) {
        return false;
    }
    switch (point.last) {
        case Role::Digit:
            // Between two fractions it divides the one by the other.
            return !point.InFraction || code == kFractionArithmetic;
        case Role::ExponentDigit:
        case Role::Letter:
        case Role::CloseParen:
        case Role::BarEnd:
            return !point.InFraction;
        default:
            return false;
    }
}

std::string SlashRefusal(const Problem& problem, const TypingPoint& point) {
    return UnlessTaken(TakesSlash(problem, point), "You can't type a '/' after a '{P}'.");
}

bool TakesRoot(const TypingPoint& point) {
    if (point.RootOpen) {
        return point.last == Role::Digit;
    }
    return point.last == Role::LineStart || IsOperatorOrSign(point.last) ||
           point.last == Role::OpenParen || (point.last == Role::Digit && !point.InFraction);
}

std::string RootRefusal(const TypingPoint& point) {
    // The blank at the end belongs to the text.
    return UnlessTaken(TakesRoot(point), "You can't type a ~~ after a '{P}'. ");
}

std::string ExponentRefusal(const TypingPoint& point) {
    const bool isBase =
        point.last == Role::Digit || point.last == Role::Letter || point.last == Role::CloseParen;
    if (isBase && !point.InFraction) {
        return "";
    }
    if (point.last == Role::LineStart) {
        return "You can't start the problem with an exponent.";
    }
    if (point.InExponent) {
        return "You can't type another exponent inside an exponent.";
    }
    return "You can't have an exponent after a '{P}'.";
}

std::string OpenParenRefusal(const TypingPoint& point) {
    if (point.ParenDepth >= kMaxParenDepth) {
        return "Close the last parenthesis before opening a new one.";
    }
    switch (point.last) {
        case Role::CloseParen:  // (x+1)*(x-1) is typed with its sign
        case Role::Caret:
        case Role::ExponentSign:
        case Role::Point:
        case Role::BarEnd:
        case Role::RootStart:
        case Role::RootEnd:
            return std::string(kNotAfter);
        default:
            return UnlessTaken(!point.RootOpen, kNotAfter);
    }
}

std::string CloseParenRefusal(const TypingPoint& point) {
    if (point.last == Role::OpenParen) {
        return "You must have at least one term inside the parenthesis before it can be closed.";
    }
    if (point.ParenDepth == 0) {
        return "The ')' is not allowed because there are no open parenthesis.";
    }
    return UnlessTaken(IsOperandEnd(point.last), kNotAfter);
}

std::string EqualSignRefusal(const TypingPoint& point) {
    if (point.ParenDepth > 0) {
        return "You must close the parenthesis before typing the equal sign (=).";
    }
    return UnlessTaken(!point.EqualsTyped && IsOperandEnd(point.last), kNotAfter);
}

std::string PointRefusal(const TypingPoint& point) {
    switch (point.last) {
        case Role::Digit:
        case Role::Point:
            return point.number.hasPoint ? "A number can only have one decimal point." : "";
        case Role::LineStart:
        case Role::OpenParen:
        case Role::EqualSign:
        case Role::BarStart:
        case Role::Comma:
        case Role::Colon:
            return "";
        default:
            return UnlessTaken(IsOperatorOrSign(point.last), kNotAfter);
    }
}

std::string BarRefusal(const TypingPoint& point) {
    const bool opens = point.last == Role::LineStart || point.last == Role::Operator ||
                       point.last == Role::Sign || point.last == Role::OpenParen ||
                       point.last == Role::EqualSign;
    const bool taken = point.AbsOpen ? IsOperandEnd(point.last) : opens;
    return UnlessTaken(taken, kNotAfter);
}

std::string ColonRefusal(const Problem& problem, const TypingPoint& point) {
    const bool typed = problem.typed.ProblemText.find(':') != std::string::npos;
    return UnlessTaken(point.last == Role::Digit && !typed, kNotAfter);
}

std::string BehindDigitOnly(const TypingPoint& point) {
    return UnlessTaken(point.last == Role::Digit, kNotAfter);
}

bool TakesOperator(const Problem& problem, char key) {
    const int code = problem.topic.ProblemType;
    if (code == kMixedToFraction) {
        constexpr std::string_view kDigits = "0123456789";
        return key == '+' &&
               problem.typed.ProblemText.find_first_not_of(kDigits) == std::string::npos;
    }
    return !IsList(code) && code != kRegularToScientific && code != kFractionToMixed;
}

bool TakesSign(const Problem& problem, const TypingPoint& point) {
    const int code = problem.topic.ProblemType;
    const bool atStart = point.last == Role::LineStart;
    if (code == kMixedToFraction) {
        return false;
    }
    if (IsList(code)) {
        return atStart || point.last == Role::Comma;
    }
    if (code == kRegularToScientific || code == kFractionToMixed) {
        return atStart;
    }
    if (point.last == Role::Caret) {
        return code == kSimplifyingPolynomials || code == kEvaluatingPolynomials ||
               code == kNegativeExponents;
    }
    return atStart || point.last == Role::OpenParen || point.last == Role::EqualSign ||
           point.last == Role::BarStart ||
           (IsOperatorOrSign(point.last) && point.last != Role::Sign);
}

std::string SignRefusal(const Problem& problem, const TypingPoint& point, char key) {
    const bool taken = IsOperandEnd(point.last) ? TakesOperator(problem, key)
                                                : key == '-' && TakesSign(problem, point);
    return UnlessTaken(taken, kNotAfter);
}

}  // namespace

std::string KeyRefusal(const Problem& problem, const TypingPoint& point, char key) {
    switch (key) {
        case '/':
            return SlashRefusal(problem, point);
        case '~':
            return RootRefusal(point);
        case '^':
            return ExponentRefusal(point);
        case '(':
            return OpenParenRefusal(point);
        case ')':
            return CloseParenRefusal(point);
        case '=':
            return EqualSignRefusal(point);
        case '.':
            return PointRefusal(point);
        case '|':
            return BarRefusal(point);
        case ',':
        case '%':
            return BehindDigitOnly(point);
        case ':':
            return ColonRefusal(problem, point);
        case '+':
        case '-':
        case '*':
            return SignRefusal(problem, point, key);
        default:
            return IsDigit(key) ? DigitRefusal(problem, point) : LetterRefusal(problem, point, key);
    }
}

}  // namespace numerello
