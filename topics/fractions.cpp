#include "topics/fractions.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "topics/refusals.h"

namespace numerello {

namespace {

/// The largest whole number above 1 that divides both; 0 when there is none.
std::int32_t CommonDivisor(double numerator, double denominator) {
    const std::int64_t divisor =
        std::gcd(static_cast<std::int64_t>(numerator), static_cast<std::int64_t>(denominator));
    return divisor > 1 ? ToInteger32(static_cast<double>(divisor)) : 0;
}

/// Whether a fraction has a mixed number; writes why not, or what it is instead.
bool IsAboveOne(StepLog& log, std::string_view FractionText, double numerator, double denominator) {
    if (denominator == 0) {
        RefuseFractionOverZero(log);
        return false;
    }
    if (numerator == denominator) {
        log.Write(Text("#", FractionText, "# = 1"),
                  "A number other than 0 divided by itself equals 1.");
        return false;
    }
    if (numerator < denominator) {
        log.Write(
            "The numerator must be greater than the denominator to convert to mixed notation.",
            "If the numerator is not greater than the denominator, then the denominator can't "
            "divide into the numerator to form a whole number.");
        return false;
    }
    return true;
}

void WriteWholeAndRest(StepLog& log, std::string_view FractionText, const std::string& q,
                       const std::string& r) {
    const std::string division =
        Text("#", FractionText, "# = ", q, " with a remainder of ", r, ".");
    log.Write(Text("The numerator divides evenly into the denominator ", q, " times."), division);
    log.Write(Text(q, " becomes the whole number."),
              "The remainder of the division will become the numerator of the fraction portion of "
              "the mixed number.");
    log.Write("The remainder of that division becomes the numerator of the fraction:", division);
    // The denominator stays unknown until the last line fills it in.
    log.Write(Text(q, " #", r, "/?#"), "Mixed number format.");
}

}  // namespace

SplitParts SplitAt(std::string_view text, char mark) {
    const std::size_t place = text.find(mark);
    if (place == std::string_view::npos) {
        throw Failure(FailureKind::Format);
    }
    return {text.substr(0, place), text.substr(place + 1)};
}

ReducedFraction GreatestDivisorText(std::string_view FractionText) {
    const auto [a, b] = SplitAt(FractionText, '/');
    const double numerator = ToNumber(a);
    const double denominator = ToNumber(b);
    if (denominator == 0) {
        return {"", -1};
    }
    if (!IsExactWhole(numerator) || !IsExactWhole(denominator)) {
        return {std::string(FractionText), 0};
    }
    ReducedFraction reduced;
    reduced.FractionDivisor = CommonDivisor(numerator, denominator);
    const double divisor = std::max(reduced.FractionDivisor, 1);
    reduced.text = NumberText(numerator / divisor);
    if (denominator / divisor != 1) {
        reduced.text += "/" + NumberText(denominator / divisor);
    }
    return reduced;
}

void SimplifyFraction(Problem& problem, std::string_view FractionText, bool Standalone) {
    StepLog& log = problem.log;
    if (Standalone) {
        log.Write(Text("#", FractionText, "#"), "");
    }
    log.Write(Text("#", FractionText, "# simplified:"),
              "To simplify a fraction, divide the numerator and denominator by the largest number "
              "that divides evenly into both.");

    const auto [result, FractionDivisor] = GreatestDivisorText(FractionText);
    if (FractionDivisor < 0) {
        log.Write("This is not valid because division by 0 is illegal.",
                  "It is impossible to divide any number by 0.");
        return;
    }
    if (FractionDivisor != 0) {
        const std::string divisor = WholeText(FractionDivisor);
        log.Write(Text(divisor, " can be divided evenly into the numerator and denominator:"),
                  Text(divisor,
                       " is the largest whole number that divides evenly into both the "
                       "numerator and denominator."));
    }
    if (result.find('/') == std::string::npos) {
        log.Write(result, "The numerator divided evenly into the denominator.");
    } else if (result != FractionText) {
        log.Write(Text("#", result, "#"), Text("#", FractionText, "# simplified: #", result, "#"));
    } else {
        log.Write("Already simplified.",
                  "There is no whole number that divides evenly into the numerator and "
                  "denominator.");
    }
}

void MixedToFraction(Problem& problem, std::string_view Whole, std::string_view Fraction) {
    const std::string_view w = Whole;
    StepLog& log = problem.log;
    log.Write(Text(w, "#", Fraction, "#"), "");
    const auto [a, b] = SplitAt(Fraction, '/');
    const double denominator = ToNumber(b);
    if (denominator == 0) {
        log.Write("This is not valid because division by 0 is not allowed.",
                  "It is mathematically impossible to divide any number by 0.");
        return;
    }
    log.Write(
        Text("To convert ", w, "#", Fraction, "# from a mixed number to fractional notation:"),
        Text(w, "#", Fraction, "# is the same as writing ", w, " + #", Fraction, "#."));

    log.Write(
        "Multiply the whole number by the denominator of the fraction:",
        "The whole number is the number on the left (without a denominator), and the fraction "
        "portion is on the right.");
    const double product = Checked(ToNumber(w) * denominator);
    const std::string wb = NumberText(product);
    log.Write(Text(w, " * ", b, " = ", wb), "Multiply.");

    log.Write("Add the numerator of the fraction to the result:",
              "The numerator is the number on top in a fraction.");
    const std::string sum = NumberText(Checked(product + ToNumber(a)));
    log.Write(Text(wb, " + ", a, " = ", sum), "Add.");

    log.Write("Keep the denominator of the original fraction:",
              "The original fraction is the fraction in the original mixed number.");
    // Called mixed notation though it is a plain fraction: kept as it is.
    log.Write(Text("#", sum, "/", b, "#"), "This is mixed notation.");
    SimplifyFraction(problem, Text(sum, "/", b), false);
}

void FractionToMixed(Problem& problem, std::string_view FractionText) {
    StepLog& log = problem.log;
    log.Write(Text("#", FractionText, "#"), "");
    log.Write(Text("To convert #", FractionText, "# from fractional notation to a mixed number:"),
              "A mixed number is a whole number, followed by a fraction.");
    const auto [a, b] = SplitAt(FractionText, '/');
    const double numerator = ToNumber(a);
    const double denominator = ToNumber(b);
    if (!IsAboveOne(log, FractionText, numerator, denominator)) {
        return;
    }
    const double quotient = std::trunc(numerator / denominator);
    const double remainder = numerator - quotient * denominator;
    const std::string q = NumberText(quotient);
    const std::string r = NumberText(remainder);
    WriteWholeAndRest(log, FractionText, q, r);
    if (remainder == 0) {
        log.Write("Since the numerator is 0, the fraction portion is not necessary.",
                  "The fraction portion equals 0, since 0 divided by any number (other than 0) "
                  "equals 0.");
        log.Write(q, "Whole number format.");
        return;
    }
    log.Write("Keep the denominator of the original fraction:",
              "The denominator is the number on the bottom of a fraction.");
    log.Write(Text(q, " #", r, "/", b, "#"), "Mixed number format.");
}

void RatioToFraction(Problem& problem, std::string_view RatioText) {
    StepLog& log = problem.log;
    log.Write(std::string(RatioText), "");
    const auto [a, b] = SplitAt(RatioText, ':');
    log.Write("The proper notation for ratios:", "A ratio is written as a fraction.");
    log.Write(Text("The first number (", a, ") becomes the numerator:"),
              "The number to the left of the ':' becomes the top number in the fraction.");
    log.Write(Text("The second number (", b, ") becomes the denominator:"),
              "The number to the right of the ':' becomes the bottom number in the fraction.");
    log.Write(Text("#", a, "/", b, "#"), Text("#", a, "/", b, "# is a ", a, " to ", b, " ratio."));
}

}  // namespace numerello
