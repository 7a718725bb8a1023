#include "topics/triangles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "core/number.h"
#include "core/text.h"
#include "topics/geometry_common.h"
#include "topics/refusals.h"
#include "topics/results.h"

namespace numerello {

namespace {

/// Squares, their sums and their differences have twice the decimals of the sides; rounding takes
/// the noise of Doubles away.
double Square(std::string_view side) {
    const double value = ToNumber(side);
    return Round(Checked(value * value), 2 * DecimalPlaces(side));
}

double SumOfSquares(std::string_view one, std::string_view other) {
    const int places = 2 * std::max(DecimalPlaces(one), DecimalPlaces(other));
    return Round(Checked(Square(one) + Square(other)), places);
}

double DifferenceOfSquares(std::string_view longer, std::string_view shorter) {
    const int places = 2 * std::max(DecimalPlaces(longer), DecimalPlaces(shorter));
    return Round(Square(longer) - Square(shorter), places);
}

void SolveLongestSide(Problem& problem, std::string_view a, std::string_view b) {
    StepLog& log = problem.log;
    if (!AllPositive({a, b})) {
        RefuseTriangleSides(log);
        return;
    }
    const std::string aSquare = NumberText(Square(a));
    const std::string bSquare = NumberText(Square(b));
    log.Write(Text(aSquare, " + ", bSquare, " = c^2^"),
              Text("Calculate ", a, "^2^ and ", b, "^2^."));
    const double sum = SumOfSquares(a, b);
    log.Write(Text(NumberText(sum), " = c^2^"), Text("Add ", aSquare, " and ", bSquare, "."));
    log.Write(Text(RoundedResult(problem, std::sqrt(sum)), " = c"),
              "Take the square root of both sides.");
}

/// Whether a leg can stand beside this longest side; writes the refusal when not.
bool TakesSides(StepLog& log, std::string_view leg, std::string_view c) {
    // A negative side is told the same: kept as it is.
    if (AllPositive({leg, c}) && ToNumber(c) >= ToNumber(leg)) {
        return true;
    }
    log.Write("Side c must be the longest side in a right triangle.",
              "If side c is not longer than side a and b in a right triangle, it would not be able "
              "to connect to side a and b.");
    return false;
}

void SolveB(Problem& problem, std::string_view a, std::string_view c) {
    StepLog& log = problem.log;
    if (!TakesSides(log, a, c)) {
        return;
    }
    const std::string aSquare = NumberText(Square(a));
    log.Write(Text(aSquare, " + b^2^ = ", NumberText(Square(c))),
              Text("Calculate ", a, "^2^ and ", c, "^2^."));
    const double difference = DifferenceOfSquares(c, a);
    log.Write(Text("b^2^ = ", NumberText(difference)),
              Text("Subtract ", aSquare, " from both sides."));
    log.Write(Text("b = ", RoundedResult(problem, std::sqrt(difference))),
              "Take the square root of both sides.");
}

void SolveA(Problem& problem, std::string_view b, std::string_view c) {
    StepLog& log = problem.log;
    if (!TakesSides(log, b, c)) {
        return;
    }
    const std::string bSquare = NumberText(Square(b));
    log.Write(Text("a^2^ + ", bSquare, " = ", NumberText(Square(c))),
              Text("Calculate ", b, "^2^ and ", c, "^2^."));
    const double difference = DifferenceOfSquares(c, b);
    log.Write(Text("a^2^ = ", NumberText(difference)),
              Text("Subtract ", bSquare, " from both sides."));
    log.Write(Text("a = ", RoundedResult(problem, std::sqrt(difference))),
              "Take the square root of both sides.");
}

/// The sentences for one pair of sides: {s} is the side of the first triangle, {P} the proportion
/// and {r} the result.
struct SideWords {
    std::string_view proportion;
    std::string_view use;
    std::string_view useNote;
    std::string_view substitute;
    std::string_view substituteNote;
    std::string_view result;
    std::string_view resultNote;
};

constexpr std::array<SideWords, 3> kSides{{
    {"#a1/a2# = proportion", "#a1/a2# = {P}", "Use {P} to calculate a2.", "#{s}/a2# = {P}",
     "Substitute the value of a1 ({s}) into the equation.", "a2 = {r}", "Solve for a2."},
    {"#b1/b2# = proportion", "#b1/b2# = {P}", "Use {P} to calculate b2.", "#{s}/b2# = {P}",
     "Substitute the value of b1 ({s}) into the equation.", "b2 = {r}", "Solve for b2."},
    {"#c1/c2# = proportion", "#c1/c2# = {P}", "Use {P} to calculate c2.", "#{s}/c2# = {P}",
     "Substitute the value of c1 ({s}) into the equation.", "c2 = {r}", "Solve for c2."},
}};

using Sides = std::array<std::string_view, 3>;

/// The proportion as it is shown and used.
std::string WorkProportion(Problem& problem, std::string_view first, std::string_view second,
                           const SideWords& words) {
    StepLog& log = problem.log;
    std::string P = RoundedResult(problem, Divide(ToNumber(first), ToNumber(second)));
    log.Write(std::string(words.proportion),
              "Use the side of the triangle given on both triangles to determine the other side's "
              "proportions.");
    log.Write(Text("#", first, "/", second, "# = ", P),
              Text("Divide ", first, " by ", second, "."));
    log.Write(Text("#a1/a2# = #b1/b2# = #c1/c2# = ", P),
              Text("The ratio of every side must equal ", P, "."));
    return P;
}

void WorkSide(Problem& problem, std::string_view first, const std::string& P,
              const SideWords& words) {
    StepLog& log = problem.log;
    const auto filled = [first, &P](std::string_view sentence) {
        return Replace(Replace(sentence, "{P}", P), "{s}", first);
    };
    log.Write(filled(words.use), filled(words.useNote));
    log.Write(filled(words.substitute), filled(words.substituteNote));
    const std::string r = RoundedResult(problem, Divide(ToNumber(first), ToNumber(P)));
    log.Write(Replace(words.result, "{r}", r), std::string(words.resultNote));
}

}  // namespace

void PythagoreanTheorem(Problem& problem, std::string_view a, std::string_view b,
                        std::string_view c) {
    enum class Unknown { A, B, C, None };
    const Unknown unknown = a.empty()   ? Unknown::A
                            : b.empty() ? Unknown::B
                            : c.empty() ? Unknown::C
                                        : Unknown::None;
    const auto asked = [unknown](Unknown side, std::string_view text, std::string_view word) {
        return unknown == side ? word : text;
    };
    StepLog& log = problem.log;
    log.Write(Text("a = ", asked(Unknown::A, a, "?"), ", b = ", asked(Unknown::B, b, "?"),
                   ", c = ", asked(Unknown::C, c, "?")),
              "");
    log.Write(
        "a^2^ + b^2^ = c^2^",
        "This is the Pythagorean Theorem, used to calculate the lengths of the sides of right "
        "triangles.");
    log.Write(Text(asked(Unknown::A, a, "a"), "^2^ + ", asked(Unknown::B, b, "b"),
                   "^2^ = ", asked(Unknown::C, c, "c"), "^2^"),
              "Substitute the given values.");
    switch (unknown) {
        case Unknown::A:
            return SolveA(problem, b, c);
        case Unknown::B:
            return SolveB(problem, a, c);
        case Unknown::C:
            return SolveLongestSide(problem, a, b);
        case Unknown::None:
            return;
    }
}

void SimilarTriangles(Problem& problem, std::string_view a1, std::string_view b1,
                      std::string_view c1, std::string_view a2, std::string_view b2,
                      std::string_view c2) {
    StepLog& log = problem.log;
    log.Write(Text("a1 = ", a1, ", b1 = ", b1, ", c1 = ", c1, ", a2 = ", a2, ", b2 = ", b2,
                   ", c2 = ", c2),
              "");
    if (!AllPositive({a1, b1, c1})) {
        log.Write("All sides of a triangle must have a length greater than zero.",
                  "A triangle must have three sides.");
        return;
    }
    log.Write("The sides of a similar triangle are equally proportioned:",
              "In other words, #a1/a2# = #b1/b2# = #c1/c2#");

    const Sides first{a1, b1, c1};
    const Sides second{a2, b2, c2};
    std::size_t given = 0;
    while (given + 1 < second.size() && second[given].empty()) {
        ++given;
    }
    if (!AllPositive({second[given]})) {
        log.Write("All sides of a triangle must have a length greater than zero.",
                  "It is impossible for a triangle to have a side less than or equal to 0.");
        return;
    }
    const std::string P = WorkProportion(problem, first[given], second[given], kSides[given]);
    for (std::size_t i = 0; i < second.size(); ++i) {
        if (second[i].empty()) {
            WorkSide(problem, first[i], P, kSides[i]);
        }
    }
}

}  // namespace numerello
