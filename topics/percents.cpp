#include "topics/percents.h"

#include <string>

#include "core/number.h"
#include "core/text.h"
#include "topics/decimal_point.h"
#include "topics/fractions.h"
#include "topics/refusals.h"
#include "topics/results.h"

namespace numerello {

namespace {

std::string_view WithoutPercentSign(std::string_view PercentText) {
    return PercentText.substr(0, PercentText.size() - (PercentText.ends_with('%') ? 1 : 0));
}

}  // namespace

void DecimalToFraction(Problem& problem, std::string_view ValueText, bool Standalone) {
    const std::string_view v = ValueText;
    StepLog& log = problem.log;
    if (Standalone) {
        log.Write(std::string(v), "");
    }
    log.Write(Text("The fractional notation of ", v, " is:"),
              "Fractional notation is shown as: #numerator/denominator#");
    log.Write("Move the decimal to the far right and divide by 10^number of times decimal moved^:",
              "For every position the place value moves to the right, divide by 10.");

    const auto [digits, count] = MoveToWhole(ToNumber(v));
    log.Write(digits, Text("The number moved to the right ", WholeText(count), " times."));
    const std::string powerOfTen = "1" + std::string(static_cast<std::size_t>(count), '0');
    const std::string fraction = Text(digits, "/", powerOfTen);
    log.Write(Text("#", fraction, "#"), Text(v, " written as a fraction."));
    SimplifyFraction(problem, fraction, false);
}

void DecimalToPercent(Problem& problem, std::string_view ValueText, bool Standalone) {
    const std::string_view v = ValueText;
    StepLog& log = problem.log;
    if (Standalone) {
        log.Write(std::string(v), "");
    }
    log.Write(
        "Multiply by 100 and add a % symbol:",
        Text("The percent symbol denotes that the number has been divided by 100.  To add a % "
             "to ",
             v, ", it must be multiplied by 100."));
    log.Write(Text(NumberText(Checked(ToNumber(v) * 100)), "%"), Text(v, " in percent format."));
}

void FractionToDecimal(Problem& problem, std::string_view FractionText) {
    StepLog& log = problem.log;
    log.Write(Text("#", FractionText, "#"), "");
    log.Write(Text(FractionText, " converted to decimal:"),
              "To convert to decimal notation, the division symbol must be eliminated.");
    if (FractionText.find('/') == std::string_view::npos) {
        log.Write(Text("#", FractionText, "# is already in decimal form."),
                  "No division symbol was in the original fraction.");
        return;
    }
    const auto [a, b] = SplitAt(FractionText, '/');
    const double denominator = ToNumber(b);
    if (denominator == 0) {
        RefuseFractionOverZero(log);
        return;
    }
    log.Write("Divide the numerator by the denominator:",
              "Divide the number above the division symbol by the number below the division "
              "symbol.");
    log.Write(NumberText(Divide(ToNumber(a), denominator)),
              Text("#", FractionText, "# in decimal form."));
}

void FractionToPercent(Problem& problem, std::string_view FractionText) {
    StepLog& log = problem.log;
    log.Write(Text("#", FractionText, "#"), "");
    log.Write(
        Text("To convert #", FractionText, "# to percent notation:"),
        "To convert to percent notation, divide the numerator by the denominator, multiply by "
        "100 and add a % symbol.");
    const auto [a, b] = SplitAt(FractionText, '/');
    const double denominator = ToNumber(b);
    if (denominator == 0) {
        RefuseDivisionByZero(log);
        return;
    }
    log.Write(
        "Divide the numerator by the denominator:",
        "The numerator is the number above the division symbol, the denominator is the number "
        "below.");
    const double quotient = Divide(ToNumber(a), denominator);
    const std::string decimal = RoundedResult(problem, quotient);
    log.Write(decimal, "Divide.");
    DecimalToPercent(problem, decimal, false);
}

void PercentToDecimal(Problem& problem, std::string_view PercentText) {
    const std::string_view v = WithoutPercentSign(PercentText);
    StepLog& log = problem.log;
    log.Write(std::string(PercentText), "");
    log.Write("Remove the % symbol and multiply by .01:",
              "The percent symbol denotes that the number has been divided by 100.  Multiplying by "
              ".01 is the same as dividing by 100.");
    log.Write(NumberText(ToNumber(v) / 100), Text(v, "% in decimal format."));
}

void PercentToFraction(Problem& problem, std::string_view PercentText) {
    const std::string_view v = WithoutPercentSign(PercentText);
    StepLog& log = problem.log;
    log.Write(std::string(PercentText), "");
    log.Write("Remove the % symbol and multiply by .01:",
              "Multiplying by .01 is the same as dividing by 100.");
    const std::string decimal = NumberText(ToNumber(v) / 100);
    log.Write(decimal, Text(v, " multiplied by .01."));
    DecimalToFraction(problem, decimal, false);
}

}  // namespace numerello
