#include "tests/topics/solver_log.h"

namespace numerello {
namespace {

TEST(TemperatureConversions, FahrenheitToCelsius) {
    const Log expected{
        {"68", ""},
        {"To convert 68^o^ Fahrenheit (F) to Celsius (C):",
         "Celsius can be converted to Fahrenheit using a formula."},
        {"Use the formula: C = #5/9# * (F - 32)",
         "This formula converts Fahrenheit temperatures to Celsius temperatures."},
        {"C = #5/9# * (68 - 32)", "Substitute the Fahrenheit temperature into the equation."},
        {"C = 20", "Solve for C."},
        {"68^o^ F = 20^o^ C", "Fahrenheit converted to Celsius."}};
    EXPECT_EQ(LogOf(Solved(110, "68")), expected);
}

TEST(TemperatureConversions, CelsiusToFahrenheit) {
    const Log expected{
        {"36.6", ""},
        {"To convert 36.6^o^ Celsius (C) to Fahrenheit (F):",
         "Fahrenheit can be converted to Celsius using a formula."},
        {"Use the formula: F = #9/5# * C + 32",
         "This formula converts Celsius temperatures to Fahrenheit temperatures."},
        {"F = #9/5# * 36.6 + 32", "Substitute the Celsius temperature into the equation."},
        {"F = 97.88", "Solve for F."},
        {"36.6^o^ C = 97.88^o^ F", "Celsius converted to Fahrenheit."}};
    EXPECT_EQ(LogOf(Solved(109, "36.6")), expected);
}

TEST(TemperatureConversions, ZeroIsNotZero) {
    EXPECT_EQ(LogOf(Solved(109, "0")).back().first, "0^o^ C = 32^o^ F");
    EXPECT_EQ(LogOf(Solved(110, "0")).back().first, "0^o^ F = -17.78^o^ C");
}

TEST(TemperatureConversions, RoundByTheLearnersSetting) {
    // 100 F are 37.777... C
    EXPECT_EQ(LogOf(Solved(110, "100", 1)).back().first, "100^o^ F = 37.8^o^ C");
    EXPECT_EQ(LogOf(Solved(110, "100", 5)).back().first, "100^o^ F = 37.77778^o^ C");
}

TEST(TemperatureConversions, AResultOfMinusZeroIsZero) {
    EXPECT_EQ(LogOf(Solved(110, "31.999")).back().first, "31.999^o^ F = 0^o^ C");
}

TEST(TemperatureConversions, TextThatIsNoNumberFailsAfterTheSubstitution) {
    Problem problem = ProblemOf(110, ".");
    EXPECT_EQ(FailureOf(problem), FailureKind::Format);
    EXPECT_EQ(problem.log.StepCount, 5);
}

}  // namespace
}  // namespace numerello
