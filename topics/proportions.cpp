#include "topics/proportions.h"

#include <string>

#include "core/number.h"
#include "core/text.h"
#include "topics/asked.h"

namespace numerello {

namespace {

constexpr std::string_view kUnknown = "x";

void RefuseZero(StepLog& log) {
    log.Write("Division by 0 is not allowed.", "It is impossible to divide any number by 0.");
}

bool IsZero(std::string_view part) {
    return part != kUnknown && ToNumber(part) == 0;
}

std::string Proportion(std::string_view A, std::string_view B, std::string_view C,
                       std::string_view D) {
    return Text("#", A, "/", B, "# = #", C, "/", D, "#");
}

void SolveForN(StepLog& log, std::string_view a, std::string_view b) {
    log.Write(Text("#N/100# [* 100] = #", a, "/", b, "# [* 100]"), "Multiply both sides by 100.");
    const double base = ToNumber(b);
    if (base == 0) {
        RefuseZero(log);
        return;
    }
    log.Write(Text("N = ", NumberText(Checked(Divide(ToNumber(a), base) * 100)), "%"),
              "Solve for N.");
}

void SolveForAmount(StepLog& log, std::string_view n, std::string_view b) {
    log.Write(Text("#", n, "/100# [* ", b, "] = #amount / ", b, "# [* ", b, "]"),
              Text("Multiply both sides by ", b, "."));
    log.Write(Text(NumberText(Checked(ToNumber(n) / 100 * ToNumber(b))), " = amount"),
              "Solve for amount.");
}

void SolveForBase(StepLog& log, std::string_view a, std::string_view n) {
    log.Write(Text("#", n, " * base/[", n, "]# = #100 * ", a, "/[", n, "]#"),
              Text("Divide both sides by ", n, "."));
    const double percent = ToNumber(n);
    if (percent == 0) {
        RefuseZero(log);
        return;
    }
    log.Write(Text("base = ", NumberText(Divide(Checked(100 * ToNumber(a)), percent))),
              "Solve for base.");
}

}  // namespace

void SolveProportion(Problem& problem, std::string_view A, std::string_view B, std::string_view C,
                     std::string_view D) {
    StepLog& log = problem.log;
    log.Write(Proportion(A, B, C, D), "");
    if (IsZero(B) || IsZero(D)) {
        RefuseZero(log);
        return;
    }
    log.Write("Two fractions (ratios) are proportional if the cross products are equal.",
              "To find out if the cross products are equal, multiply the numerator of the first "
              "fraction by the denominator of the second fraction and determine if that amount is "
              "equal to multiplying the denominator of the first fraction by the numerator of the "
              "second fraction.");
    log.Write(Proportion(A, B, C, D), "Substitute known values.");
    log.Write(Text(A, " * ", D, " = ", B, " * ", C), "Cross multiply.");

    const bool onLeft = A == kUnknown || D == kUnknown;
    const std::string_view factor = A == kUnknown ? D : D == kUnknown ? A : B == kUnknown ? C : B;
    log.Write(Text("#", A, " * ", D, "/[", factor, "]# = #", B, " * ", C, "/[", factor, "]#"),
              Text("Divide both sides by ", factor, "."));
    const double divisor = ToNumber(factor);
    if (divisor == 0) {
        RefuseZero(log);
        return;
    }
    const double product = onLeft ? ToNumber(B) * ToNumber(C) : ToNumber(A) * ToNumber(D);
    const std::string x = NumberText(Divide(Checked(product), divisor));
    log.Write(onLeft ? Text("x = ", x) : Text(x, " = x"), "Solve for x.");
    const auto orX = [&x](std::string_view part) {
        return part == kUnknown ? std::string_view(x) : part;
    };
    log.Write(Proportion(orX(A), orX(B), orX(C), orX(D)),
              "Replace the value of x into the fraction to show the correct proportion.");
}

void AmountOfBase(Problem& problem, std::string_view Amount, std::string_view N,
                  std::string_view Base) {
    const std::string_view a = Amount;
    const std::string_view n = N;
    const std::string_view b = Base;
    StepLog& log = problem.log;
    log.Write(Text("amount = ", OrAsked(a, "amount"), ", N = ", OrAsked(n, "N"),
                   ", base = ", OrAsked(b, "base")),
              "");
    log.Write(Text(a, " = ", n, "% of ", b),
              "This is the formula for calculating the amount, base, or percent of a number.");
    log.Write("#N/100# = #amount/base#", "Written as a proportion.");
    log.Write(Text("#", n, "/100# = #", a, "/", b, "#"),
              "Substitute given values into the equation.");
    if (n == "N") {
        SolveForN(log, a, b);
    } else if (a == "amount") {
        SolveForAmount(log, n, b);
    } else {
        SolveForBase(log, a, n);
    }
}

}  // namespace numerello
