#include "catalogue/point_rules.h"

#include <algorithm>
#include <string_view>

#include "core/text.h"
#include "core/topic_codes.h"

namespace numerello {

namespace {

constexpr std::string_view kOneComma =
    "Only one comma is necessary to separate points in '{T}'.  Click the Assistant Wiz for "
    "details.";
constexpr std::string_view kParenOnlyStarts =
    "You can't type a ( except to start off the point. [(4,6)] in '{T}'.  Click the Assistant Wiz "
    "for details.";
constexpr std::string_view kNotAllowedAfter =
    "The character you typed ({c}) is not allowed after a '{P}' in '{T}'.  Click the Assistant Wiz "
    "for details.";

/// A number goes on, or begins, as long as its digits do not pass the limit.
bool DigitFits(const Problem& problem, const TypingPoint& point) {
    return point.last != Role::Digit || point.number.whole < problem.topic.MaxDigits;
}

std::string ComparedNumberRefusal(const Problem& problem, const TypingPoint& point, char key) {
    if (key == ',') {
        const bool typed = problem.typed.ProblemText.find(',') != std::string::npos;
        return std::string(point.last == Role::Digit && !typed ? "" : kOneComma);
    }
    const bool atNumberStart = point.last == Role::LineStart || point.last == Role::Comma;
    const bool taken = (key == '-' && atNumberStart) || (IsDigit(key) && DigitFits(problem, point));
    return taken ? "" : "'{c}' is not a valid character in '{T}'.";
}

/// The line of points as far as it is typed.
struct TypedPoints {
    bool open = false;   ///< a "(" waits for its ")"
    bool comma = false;  ///< the open point has its comma
    long closed = 0;     ///< points that are complete
};

TypedPoints ReadPoints(std::string_view line) {
    TypedPoints points;
    points.closed = std::count(line.begin(), line.end(), ')');
    const std::size_t start = line.find_last_of("()");
    points.open = start != std::string_view::npos && line[start] == '(';
    points.comma = points.open && line.find(',', start) != std::string_view::npos;
    return points;
}

bool TakesPointKey(const Problem& problem, const TypingPoint& point, const TypedPoints& points,
                   char key) {
    const bool secondDue = problem.topic.ProblemType == kLineThroughTwoPoints && points.closed == 1;
    const bool atNumberStart = point.last == Role::OpenParen || point.last == Role::Comma;
    switch (key) {
        case '(':
            return point.last == Role::LineStart || (secondDue && point.last == Role::Operator);
        case ')':
            return point.last == Role::Digit && points.comma;
        case ',':
            return point.last == Role::Digit && points.open && !points.comma;
        case '-':
            return atNumberStart || (secondDue && point.last == Role::CloseParen);
        default:
            return IsDigit(key) && points.open && DigitFits(problem, point);
    }
}

std::string PointRefusal(const Problem& problem, const TypingPoint& point, char key) {
    const TypedPoints points = ReadPoints(problem.typed.ProblemText);
    if (TakesPointKey(problem, point, points, key)) {
        return "";
    }
    if (key == '(' || point.last == Role::LineStart) {
        return std::string(kParenOnlyStarts);
    }
    return std::string(key == ',' && points.comma ? kOneComma : kNotAllowedAfter);
}

}  // namespace

bool HasPointRules(int ProblemType) {
    return ProblemType == kComparingValues || ProblemType == kLineThroughTwoPoints ||
           ProblemType == kPointsQuadrant || ProblemType == kPlottingAPoint;
}

std::string PointKeyRefusal(const Problem& problem, const TypingPoint& point, char key) {
    return problem.topic.ProblemType == kComparingValues
               ? ComparedNumberRefusal(problem, point, key)
               : PointRefusal(problem, point, key);
}

}  // namespace numerello
