#include "topics/scientific.h"

#include <cmath>
#include <string>

#include "core/number.h"
#include "core/text.h"
#include "topics/decimal_point.h"
#include "topics/refusals.h"

namespace numerello {

namespace {

std::string Scientific(std::string_view base, std::string_view power) {
    return Text(base, " * 10^", power, "^");
}

}  // namespace

void ScientificToRegular(Problem& problem, std::string_view Base, std::string_view Power) {
    StepLog& log = problem.log;
    log.Write(Scientific(Base, Power), "");
    log.Write("To convert from scientific notation to regular notation:",
              "Regular notation is simply a number with or without decimals.");
    const double power = ToNumber(Power);
    const std::string n = NumberText(std::fabs(power));
    log.Write(power < 0 ? Text("Move the decimal point to the left ", n, " place(s):")
                        : Text("Move the decimal point to the right ", n, " place(s):"),
              "The decimal point moves to the right if the exponent is positive, or left if the "
              "exponent is negative.");
    const double powerOfTen = Checked(std::pow(10, power));
    log.Write(NumberText(Checked(ToNumber(Base) * powerOfTen)),
              "Scientific notation converted to regular notation.");
}

void RegularToScientific(Problem& problem, std::string_view Value) {
    StepLog& log = problem.log;
    log.Write(std::string(Value), "");
    log.Write("To convert from regular notation to scientific notation:",
              "Scientific notation is written: number * 10^power^");
    const auto [shifted, places] = MoveBehindFirstDigit(ToNumber(Value));
    const std::string count = WholeText(std::abs(places));
    if (places <= 0) {
        log.Write(Text("Move the decimal place to the left ", count, " time(s):"),
                  "To convert to scientific form, the decimal point should follow the first "
                  "number.");
        log.Write(shifted, "Shift the decimal point.");
        log.Write("Then multiply by 10^number of places the decimal moved^",
                  "Balance the moving of the decimal by multiplying.");
        log.Write(Scientific(shifted, count), "Regular notation converted to scientific notation.");
        return;
    }
    log.Write(Text("Move the decimal place to the right ", count, " time(s):"),
              "To convert to scientific form, the decimal point should follow the first number.");
    log.Write(shifted, "Shifted the decimal point.");
    log.Write("Then multiply by 10^number of places the decimal moved preceded by a minus sign:^",
              "Balance the moving of the decimal by multiplying.");
    log.Write(Scientific(shifted, "-" + count), "Regular notation converted to scientific.");
}

void MultiplyScientific(Problem& problem, std::string_view Base1, std::string_view Power1,
                        std::string_view Base2, std::string_view Power2) {
    StepLog& log = problem.log;
    log.Write(Text(Scientific(Base1, Power1), " * ", Scientific(Base2, Power2)), "");
    log.Write("To multiply numbers in scientific notation:",
              "Scientific notation is written: number * 10^power^");
    log.Write(Text("First, multiply the bases: ", Base1, " * ", Base2),
              "The bases are the numbers being multiplied by 10.");
    log.Write(Text("Next, add the exponents: ", Power1, " + ", Power2),
              "Exponents are the numbers in the power (written after the the 10).");
    const std::string product = NumberText(Checked(ToNumber(Base1) * ToNumber(Base2)));
    const std::string sum = NumberText(Checked(ToNumber(Power1) + ToNumber(Power2)));
    log.Write(Scientific(product, sum), "Multiplied scientific numbers.");
}

void DivideScientific(Problem& problem, std::string_view Base1, std::string_view Power1,
                      std::string_view Base2, std::string_view Power2) {
    StepLog& log = problem.log;
    log.Write(Text(Scientific(Base1, Power1), " { ", Scientific(Base2, Power2)), "");
    log.Write("To divide numbers in scientific notation:",
              "Scientific notation is written as a number * 10^power^.");
    const double divisor = ToNumber(Base2);
    if (divisor == 0) {
        RefuseDivisionByZero(log);
        return;
    }
    const std::string quotient = NumberText(Divide(ToNumber(Base1), divisor));
    log.Write(Text("First, divide the bases: #", Base1, "/", Base2, "# = ", quotient),
              "The bases are the numbers to the left of the multiplication (*) symbol.");
    const std::string difference = NumberText(Checked(ToNumber(Power1) - ToNumber(Power2)));
    log.Write(Text("Next, subtract the exponents: ", Power1, " - ", Power2, " = ", difference),
              "Exponents are the numbers in the power (written after the the 10).");
    log.Write(Scientific(quotient, difference), "Divided scientific numbers.");
}

}  // namespace numerello
