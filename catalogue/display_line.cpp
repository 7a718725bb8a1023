#include "catalogue/display_line.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "catalogue/typing_point.h"

namespace numerello {

namespace {

constexpr int kCellPitch = 4;

/// Whether a "/" in front of this character can divide two numbers.
bool CanBeginNumber(std::string_view next) {
    return next != "(" && next != "-";
}

/// Whether the character that was just passed belongs to the token before it. A fraction bar joins
/// the number before it only when a number can follow.
bool JoinsToken(const TypingPoint& before, Role role, std::string_view token,
                std::string_view next) {
    const bool behindNumber = before.last == Role::Digit || before.last == Role::Point;
    if (role == Role::Digit || role == Role::Point) {
        return behindNumber || (before.last == Role::FractionBar && token.size() > 1);
    }
    return role == Role::FractionBar && behindNumber && CanBeginNumber(next);
}

/// A token with the marks beside it.
struct MarkedToken {
    std::string before;
    std::string text;
    std::string after;
};

void RemoveFractionMarks(std::string& marks) {
    marks.erase(std::remove(marks.begin(), marks.end(), '#'), marks.end());
}

/// Goes through the tokens of a line and opens and closes fractions, exponents and roots.
class LineSetter {
  public:
    explicit LineSetter(int ProblemType) : code(ProblemType) {}

    void Add(const std::string& token);
    void CloseAll();
    const std::vector<MarkedToken>& Line() const { return line; }

  private:
    void CloseBefore(const TypingPoint& next);
    void CloseExponent();
    void OpenFraction(std::size_t numerator);
    std::size_t NumeratorStart() const;
    void NoteStarts(bool behindFractionBar);

    int code;
    TypingPoint point;
    std::vector<MarkedToken> line;
    std::vector<std::size_t> termStarts{0};  ///< by bracket level
    std::vector<std::size_t> openParens;
    std::size_t lastParen = 0;  ///< the "(" of the parentheses closed last
    std::size_t lastBar = 0;    ///< the opening bar last passed
};

void LineSetter::Add(const std::string& token) {
    TypingPoint next = point;
    next.Pass(token.front(), code);
    CloseBefore(next);
    if (next.last == Role::FractionBar) {
        OpenFraction(NumeratorStart());
    }
    if (next.last == Role::RootStart && !line.empty() && line.back().text == "1") {
        line.pop_back();
    }
    line.push_back({"", next.last == Role::DivisionSign ? "{" : token, ""});

    const bool behindFractionBar = point.last == Role::FractionBar;
    for (const char character : token) {
        point.Pass(character, code);
    }
    if (token.size() > 1 && token.find('/') != std::string::npos) {
        OpenFraction(line.size() - 1);
    }
    NoteStarts(behindFractionBar);
}

void LineSetter::CloseAll() {
    if (point.InExponent) {
        CloseExponent();
    }
    if (point.InFraction) {
        line.back().after += "#";
    }
    if (point.RootOpen) {
        line.back().after += "~";
    }
}

void LineSetter::CloseBefore(const TypingPoint& next) {
    if (point.InExponent && !next.InExponent) {
        CloseExponent();
    }
    if (point.InFraction && !next.InFraction) {
        line.back().after += "#";
    }
    if (point.RootOpen && !next.RootOpen) {
        line.back().after += "~";
    }
}

void LineSetter::CloseExponent() {
    line.back().after += point.last == Role::Caret ? "?^" : "^";
}

/// Fractions within the numerator are written with a plain "/".
void LineSetter::OpenFraction(std::size_t numerator) {
    for (std::size_t i = numerator; i < line.size(); ++i) {
        RemoveFractionMarks(line[i].before);
        RemoveFractionMarks(line[i].after);
    }
    line[numerator].before = "#";
}

std::size_t LineSetter::NumeratorStart() const {
    if (point.last == Role::CloseParen) {
        return lastParen;
    }
    if (point.last == Role::BarEnd) {
        return lastBar;
    }
    return termStarts.back();
}

/// Remembers where a numerator would begin that ends behind the token just added.
void LineSetter::NoteStarts(bool behindFractionBar) {
    const std::size_t here = line.size() - 1;
    switch (point.last) {
        case Role::OpenParen:
            openParens.push_back(here);
            termStarts.push_back(here + 1);
            break;
        case Role::CloseParen:
            lastParen = openParens.back();
            openParens.pop_back();
            termStarts.pop_back();
            break;
        case Role::BarStart:
            lastBar = here;
            termStarts.back() = here + 1;
            break;
        case Role::Sign:
            if (!behindFractionBar) {
                termStarts.back() = here + 1;
            }
            break;
        case Role::Operator:
        case Role::DivisionSign:
        case Role::EqualSign:
            termStarts.back() = here + 1;
            break;
        default:
            break;
    }
}

}  // namespace

void ChunkChars(Problem& problem) {
    TypedProblem& typed = problem.typed;
    const int code = problem.topic.ProblemType;
    typed.ExprCells.Clear();
    TypingPoint point;
    int tokens = 0;
    for (int i = 0; i < typed.ExprCharCount; ++i) {
        const std::string& character = typed.ExprChars[i];
        const TypingPoint before = point;
        point.Pass(character.front(), code);
        if (point.last == Role::RootEnd) {
            continue;
        }
        std::string& last = typed.ExprCells[std::max(tokens - 1, 0)];
        const std::string& next = typed.ExprChars[i + 1];
        if (JoinsToken(before, point.last, last, next)) {
            last += character;
        } else {
            typed.ExprCells[tokens++] = character;
        }
    }
    typed.ExprCellCount = std::max(tokens - 1, 0);
}

std::string FormatForDisplay(Problem& problem) {
    TypedProblem& typed = problem.typed;
    LineSetter setter(problem.topic.ProblemType);
    for (int i = 0; i <= typed.ExprCellCount && !typed.ExprCells[i].empty(); ++i) {
        setter.Add(typed.ExprCells[i]);
    }
    setter.CloseAll();

    typed.ExprCells.Clear();
    typed.ExprCellCount = 0;
    std::string text;
    int cell = 0;
    for (const MarkedToken& token : setter.Line()) {
        cell += kCellPitch;
        typed.ExprCells[cell - 1] = token.before;
        typed.ExprCells[cell] = token.text;
        typed.ExprCells[cell + 1] = token.after.substr(0, 1);
        typed.ExprCells[cell + 2] = token.after.empty() ? "" : token.after.substr(1);
        typed.ExprCellCount = cell;
        text += token.before + token.text + token.after;
    }
    return text;
}

}  // namespace numerello
