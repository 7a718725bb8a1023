#include "notation/line_setter.h"

#include <algorithm>
#include <utility>

#include "core/failure.h"

namespace numerello {

namespace {

void RemoveFractionMarks(std::string& marks) {
    marks.erase(std::remove(marks.begin(), marks.end(), '#'), marks.end());
}

}  // namespace

void LineSetter::Add(const std::string& token) {
    if (token == "[") {
        emphasisStart = line.size();
        emphasisDue = true;
    } else if (token == "]") {
        CloseEmphasis();
    } else {
        AddText(token);
    }
}

void LineSetter::AddText(const std::string& token) {
    TypingPoint next = point;
    next.Pass(token.front(), code);
    CloseBefore(next);
    const bool within = IsWithinDenominator();
    const int depth = point.FractionDepth;
    if (next.last == Role::FractionBar && !within) {
        OpenFraction(NumeratorStart());
    }
    if (next.last == Role::RootStart && !line.empty() && line.back().text == "1") {
        line.pop_back();
    }
    const bool opensEmphasis = std::exchange(emphasisDue, false);
    emphasisOpen = emphasisOpen || opensEmphasis;
    line.push_back({opensEmphasis ? "[" : "", next.last == Role::DivisionSign ? "{" : token, ""});

    const bool behindFractionBar = point.last == Role::FractionBar;
    for (const char character : token) {
        point.Pass(character, code);
    }
    if (within && token.find('/') != std::string::npos) {
        point.FractionDepth = depth;
    } else if (token.size() > 1 && token.find('/') != std::string::npos) {
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

/// What began within the emphasis ends within it.
void LineSetter::CloseEmphasis() {
    if (line.empty() || !std::exchange(emphasisOpen, false)) {
        return;
    }
    if (point.InExponent) {
        CloseExponent();
        point.InExponent = false;
    }
    if (point.RootOpen) {
        line.back().after += "~";
        point.RootOpen = false;
    }
    if (point.InFraction && fractionStart >= emphasisStart) {
        line.back().after += "#";
        point.InFraction = false;
    }
    line.back().after += "]";
}

/// In parentheses or bars under a fraction bar. Nobody types a fraction there, but one may arise;
/// it is written with a plain "/".
bool LineSetter::IsWithinDenominator() const {
    return point.InFraction &&
           (point.ParenDepth > point.FractionDepth || (point.AbsOpen && point.barInFraction));
}

/// Fractions within the numerator are written with a plain "/".
void LineSetter::OpenFraction(std::size_t numerator) {
    if (numerator >= line.size()) {
        throw Failure(FailureKind::Format);
    }
    for (std::size_t i = numerator; i < line.size(); ++i) {
        RemoveFractionMarks(line[i].before);
        RemoveFractionMarks(line[i].after);
    }
    // Emphasis that is still open goes around the fraction.
    std::string& before = line[numerator].before;
    const bool within = emphasisOpen && numerator == emphasisStart;
    before = within ? before + "#" : "#" + before;
    fractionStart = numerator;
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
            if (openParens.empty()) {
                throw Failure(FailureKind::Format);
            }
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

}  // namespace numerello
