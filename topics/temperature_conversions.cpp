#include <array>

#include "core/number.h"
#include "topics/conversion_sentences.h"
#include "topics/conversions.h"
#include "topics/results.h"

namespace numerello {

namespace {

struct TemperatureConversion {
    std::array<ConversionLine, 3> beforeResult;
    std::array<ConversionLine, 2> withResult;
    double (*compute)(double degrees);
};

// In both, the first reason names the opposite direction: kept as it is.
constexpr TemperatureConversion kFahrenheitToCelsius{
    {{{"To convert {v}^o^ Fahrenheit (F) to Celsius (C):",
       "Celsius can be converted to Fahrenheit using a formula."},
      {"Use the formula: C = #5/9# * (F - 32)",
       "This formula converts Fahrenheit temperatures to Celsius temperatures."},
      {"C = #5/9# * ({v} - 32)", "Substitute the Fahrenheit temperature into the equation."}}},
    {{{"C = {r}", "Solve for C."}, {"{v}^o^ F = {r}^o^ C", "Fahrenheit converted to Celsius."}}},
    [](double degrees) { return (degrees - 32) * (5.0 / 9.0); }};

constexpr TemperatureConversion kCelsiusToFahrenheit{
    {{{"To convert {v}^o^ Celsius (C) to Fahrenheit (F):",
       "Fahrenheit can be converted to Celsius using a formula."},
      {"Use the formula: F = #9/5# * C + 32",
       "This formula converts Celsius temperatures to Fahrenheit temperatures."},
      {"F = #9/5# * {v} + 32", "Substitute the Celsius temperature into the equation."}}},
    {{{"F = {r}", "Solve for F."}, {"{v}^o^ C = {r}^o^ F", "Celsius converted to Fahrenheit."}}},
    [](double degrees) { return degrees * (9.0 / 5.0) + 32; }};

void Work(Problem& problem, const TemperatureConversion& conversion, std::string_view ValueText) {
    WriteProblemLine(problem, ValueText);
    for (const ConversionLine& line : conversion.beforeResult) {
        WriteConversionLine(problem, line, {.v = ValueText});
    }
    const double result = Checked(conversion.compute(ToNumber(ValueText)));
    const std::string r = RoundedResult(problem, result);
    for (const ConversionLine& line : conversion.withResult) {
        WriteConversionLine(problem, line, {.v = ValueText, .r = r});
    }
}

}  // namespace

void ConvertFahrenheitToCelsius(Problem& problem, std::string_view ValueText) {
    Work(problem, kFahrenheitToCelsius, ValueText);
}

void ConvertCelsiusToFahrenheit(Problem& problem, std::string_view ValueText) {
    Work(problem, kCelsiusToFahrenheit, ValueText);
}

}  // namespace numerello
