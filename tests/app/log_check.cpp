#include "log_check.h"

#include <algorithm>
#include <set>

#include "core/step_log.h"
#include "last_line.h"
#include "log_numbers.h"

namespace numerello {

namespace {

constexpr double kLongestSeconds = 2;
constexpr long long kShortLimit = 32767;

enum class Existence { Exists, DividesByZero, Untold };

struct Value {
    Existence existence = Existence::Exists;
    RootSum number = RootSum(0);
};

template <class Read>
Value ValueBy(Read read) {
    try {
        return {Existence::Exists, read()};
    } catch (const std::domain_error&) {
        return {Existence::DividesByZero};
    } catch (const std::overflow_error&) {
        return {Existence::Untold};
    }
}

Value ValueOfTyped(const SolvedProblem& worked, const Point& point) {
    return ValueBy([&] { return TypedValueOf(worked.code, worked.typed, point); });
}

std::string LeftInLastLine(const SolvedProblem& worked) {
    const std::string& line = worked.lines.back();
    const Digits digits = worked.settings.UseFractions ? Digits::Fractions : Digits::Decimals;
    switch (worked.code) {
        case 76:
            // A fraction alone is left as it stands.
            return worked.lines.size() == 1 ? "" : LeftInNumber(line);
        case 82:
            return LeftInRoots(line);
        case 83:
            return LeftInPrimePowers(line);
        case 102:
        case 150:
            return LeftInPolynomial(line, digits);
        default:
            return LeftInNumber(line, digits);
    }
}

/// Lines of 103 up to the first value that is put in hold at any point.
std::size_t FirstLineWithValues(const SolvedProblem& worked) {
    std::size_t line = 0;
    while (line < worked.lines.size() && !worked.notes[line].starts_with("Replace all the")) {
        ++line;
    }
    return line;
}

std::vector<Point> FreePoints(std::string_view letters) {
    const Rational kValues[] = {{3, 2}, {-5, 3}, {7, 5}, {-2, 7}};
    std::vector<Point> points(2);
    for (std::size_t i = 0; i < letters.size(); ++i) {
        points[0].emplace(letters[i], kValues[i % 4]);
        points[1].emplace(letters[i], kValues[(i + 1) % 4]);
    }
    return points;
}

std::string WrongAt(const SolvedProblem& worked, const Point& point, std::size_t lines) {
    const Value problem = ValueOfTyped(worked, point);
    if (problem.existence != Existence::Exists) {
        return "";
    }
    for (std::size_t i = 0; i < lines; ++i) {
        const Value line = ValueBy([&] { return ValueOf(worked.lines[i], point); });
        if (line.existence == Existence::DividesByZero ||
            (line.existence == Existence::Exists && !(line.number == problem.number))) {
            return "not the value of the problem: the line behind \"" +
                   worked.notes[i].substr(0, 24) + "\"";
        }
    }
    return "";
}

std::string WrongInValues(const SolvedProblem& worked) {
    try {
        for (const Point& point : PointsFor(worked)) {
            const std::string wrong = WrongAt(worked, point, worked.lines.size());
            if (!wrong.empty()) {
                return wrong;
            }
        }
        if (worked.code == 103) {
            const Point point = FreePoints(LettersOf(worked.typed)).front();
            return WrongAt(worked, point, FirstLineWithValues(worked));
        }
    } catch (const std::logic_error& unreadable) {
        return "a line that is none of the notation";
    }
    return "";
}

bool DividesByZero(const SolvedProblem& worked) {
    for (const Point& point : PointsFor(worked)) {
        if (ValueOfTyped(worked, point).existence != Existence::DividesByZero) {
            return false;
        }
    }
    return true;
}

using NumberSet = std::set<std::string, std::less<>>;

/// What a number may have lost: nothing when it is known from the line before, unless it is so
/// large that seven digits may round others to it.
long double Slack(std::string_view digits, long double half, const NumberSet& known) {
    constexpr long double kLarge = 1e4L;
    constexpr long double kSevenDigits = 1e-6L;
    const long double number = std::stold(std::string(digits));
    return number < kLarge && known.contains(digits) ? 0 : half + number * kSevenDigits;
}

/// The numbers that stand no oftener in the new line than before.
NumberSet KnownNumbers(std::string_view before, std::string_view line) {
    std::map<std::string, int> counts;
    for (const std::string& number : NumbersOf(before)) {
        ++counts[number];
    }
    for (const std::string& number : NumbersOf(line)) {
        --counts[number];
    }
    NumberSet known;
    for (const auto& [number, count] : counts) {
        if (count >= 0) {
            known.insert(number);
        }
    }
    return known;
}

/// Whether the line holds a number that may be rounded to 0: with it goes what multiplies it.
bool HoldsAlmostZero(std::string_view line, long double half) {
    const auto anyOf = [&](Place place, auto isAlmostZero) {
        const std::vector<std::string> numbers = NumbersOf(line, place);
        return std::any_of(numbers.begin(), numbers.end(), [&](const std::string& digits) {
            return isAlmostZero(std::stold(digits));
        });
    };
    return anyOf(Place::Anywhere, [&](long double n) { return n > 0 && n < 2 * half; }) ||
           anyOf(Place::Denominator, [&](long double n) { return n * half >= 1; });
}

bool RoundsTo(const SolvedProblem& worked, std::size_t line, const Point& point) {
    const std::string& before = worked.lines[line - 1];
    const long double half = 0.5L / std::pow(10.0L, worked.settings.RoundDigits);
    if (worked.notes[line].find("(0).") != std::string::npos || HoldsAlmostZero(before, half)) {
        return true;
    }
    try {
        const Rational value = ValueOf(before, point).Plain();
        const long double number = static_cast<long double>(value.Numerator()) /
                                   static_cast<long double>(value.Denominator());
        const auto holdsBut = [&](const NumberSet& known) {
            const auto slackOf = [&](std::string_view digits) {
                return Slack(digits, half, known);
            };
            return RangeOf(worked.lines[line], point, slackOf).Holds(number);
        };
        // A new number may be written like an old one.
        return holdsBut(KnownNumbers(before, worked.lines[line])) || holdsBut({});
    } catch (const std::domain_error&) {
        // A divisor was rounded to 0.
        return true;
    } catch (const std::overflow_error&) {
        return true;
    }
}

/// Whether the tables of terms may have been too small for the line that would have followed: more
/// than fifteen powers, a hundred terms, or the log full.
bool MayPassABound(const SolvedProblem& worked) {
    const std::string line = worked.lines.empty() ? "" : worked.lines.back();
    std::set<std::string, std::less<>> exponents;
    for (std::size_t at = line.find('^'); at != std::string::npos; at = line.find('^', at + 1)) {
        exponents.insert(
            line.substr(at + 1, line.find_first_not_of("0123456789", at + 1) - at - 1));
    }
    constexpr std::size_t kFewPowers = 12;
    constexpr std::ptrdiff_t kFewTerms = 90;
    const auto terms = std::count_if(line.begin(), line.end(),
                                     [](char c) { return c == '+' || c == '-' || c == '*'; });
    return exponents.size() > kFewPowers || terms > kFewTerms ||
           worked.lines.size() + 1 >= StepLog::kTopIndex;
}

}  // namespace

std::string WrongInForm(const SolvedProblem& worked) {
    if (worked.seconds > kLongestSeconds) {
        return "too slow";
    }
    if (worked.lines.size() > StepLog::kTopIndex) {
        return "too long";
    }
    for (std::size_t i = 0; i < worked.lines.size(); ++i) {
        if (worked.lines[i].empty()) {
            return "an empty line";
        }
        if (i > 0 && worked.lines[i] == worked.lines[i - 1]) {
            return "a line repeats the one before";
        }
        if (i > 0 && worked.notes[i].empty()) {
            return "a line without a reason";
        }
    }
    return worked.lines.empty() && !worked.failure ? "an empty log" : "";
}

Verdict JudgeFailure(const SolvedProblem& worked, bool dividesByZero) {
    if (worked.failure == FailureKind::Overflow &&
        GreatestIn(worked, Place::Anywhere) > kShortLimit) {
        return {true, ""};
    }
    if (worked.failure == FailureKind::Format && MayPassABound(worked)) {
        return {true, ""};
    }
    if (dividesByZero) {
        return {false, worked.failure == FailureKind::DivisionByZero
                           ? ""
                           : "a division by zero is not refused"};
    }
    return {false, worked.failure
                       ? "a failure without a cause: " + std::string(FailureName(*worked.failure))
                       : ""};
}

std::vector<Point> PointsFor(const SolvedProblem& worked) {
    const std::string letters = LettersOf(worked.typed);
    if (letters.empty()) {
        return {Point()};
    }
    if (worked.code != 103) {
        return FreePoints(letters);
    }
    std::vector<Point> points(1);
    for (std::size_t i = 0; i < letters.size(); ++i) {
        points[0].emplace(letters[i], Rational::Of(worked.answers[i]));
    }
    return points;
}

Verdict JudgeExactLines(const SolvedProblem& worked) {
    const std::string form = WrongInForm(worked);
    if (!form.empty()) {
        return {false, form};
    }
    const bool dividesByZero = DividesByZero(worked);
    if (dividesByZero || worked.failure) {
        return JudgeFailure(worked, dividesByZero);
    }
    if (IsBeyondSingles(worked)) {
        return {true, ""};
    }
    const std::string wrong = WrongInValues(worked);
    return {false, wrong.empty() ? LeftInLastLine(worked) : wrong};
}

Verdict JudgeRoundedLines(const SolvedProblem& worked) {
    const std::string form = WrongInForm(worked);
    if (!form.empty()) {
        return {false, form};
    }
    if (worked.failure || GreatestIn(worked, Place::Anywhere) >= kSinglesLimit ||
        DividesByZero(worked)) {
        return {true, ""};
    }
    try {
        for (const Point& point : PointsFor(worked)) {
            if (!WrongAt(worked, point, 1).empty()) {
                return {false, "the first line is not the problem"};
            }
            for (std::size_t i = 1; i < worked.lines.size(); ++i) {
                if (!RoundsTo(worked, i, point)) {
                    return {false, "further off than rounding goes: the line behind \"" +
                                       worked.notes[i].substr(0, 24) + "\""};
                }
            }
        }
    } catch (const std::logic_error& unreadable) {
        return {false, "a line that is none of the notation"};
    }
    return {false, LeftInLastLine(worked)};
}

}  // namespace numerello
