#include "topics/conversion_sentences.h"
#include "topics/conversions.h"

namespace numerello {

namespace {

using Operation = ConversionArithmetic::Operation;

using Stage = std::string (*)(Problem&, std::string_view, bool);

/// A first stage, then a step of its own that is worked on the value that the stage returned.
struct TwoStepConversion {
    ConversionLine opening;
    Stage first;
    ConversionLine fact;
    ConversionLine instruction;
    ConversionArithmetic arithmetic;
    ConversionLine step;
    ConversionLine summary;
};

constexpr ConversionLine kFeetToInches{
    "To convert feet to inches, multiply the number of feet ({f}) by 12:",
    "Multiplying by 12 will convert feet to inches."};
constexpr ConversionLine kFeetAreInches{"{f} feet = {r} inches", "Feet converted to inches."};

constexpr TwoStepConversion kInchesToYards{
    {"To convert inches to yards, first convert inches to feet:",
     "Convert inches to feet, then convert feet to yards."},
    ConvertInchesToFeet,
    kThreeFeet,
    {"To convert feet to yards, divide the number of feet ({f}) by 3:",
     "Dividing by 3 will convert feet to yards."},
    {Operation::Divide, 3, kLearnersDigits},
    {"{f} feet = {r} yards", "Convert feet to yards."},
    {"{v} inches = {r} yards", "Substitute the number of inches back into the equation."}};

constexpr TwoStepConversion kInchesToMiles{
    {"To convert inches to miles, first convert inches to feet:",
     "Convert inches to feet, then convert feet to miles."},
    ConvertInchesToFeet,
    kFeetOfMile,
    {"To convert from feet to miles, divide the number of feet ({f}) by 5280:",
     "Dividing by 5280 will convert feet to miles."},
    {Operation::Divide, 5280, 5},
    {"{f} feet = {r} miles", "Convert feet to miles."},
    {"{v} inches = {r} miles", "Substitute the number of inches back into the equation."}};

constexpr TwoStepConversion kYardsToInches{
    {"To convert yards to inches, first convert yards to feet:",
     "Convert yards to feet, then convert feet to inches."},
    ConvertYardsToFeet,
    kTwelveInches,
    kFeetToInches,
    {Operation::Multiply, 12, kEveryDigit},
    kFeetAreInches,
    {"{v} yards = {r} inches", "Substitute the number of yards into the original equation."}};

constexpr TwoStepConversion kMilesToInches{
    {"To convert miles to inches, first convert miles to feet:",
     "Convert miles to feet, then convert feet to inches."},
    ConvertMilesToFeet,
    kTwelveInches,
    kFeetToInches,
    {Operation::Multiply, 12, kEveryDigit},
    kFeetAreInches,
    {"{v} miles = {r} inches", "Substitute the number of miles into the original equation."}};

void Work(Problem& problem, const TwoStepConversion& conversion, std::string_view ValueText) {
    WriteProblemLine(problem, ValueText);
    WriteConversionLine(problem, conversion.opening, {});
    const std::string f = conversion.first(problem, ValueText, false);
    WriteConversionLine(problem, conversion.fact, {});
    WriteConversionLine(problem, conversion.instruction, {.v = ValueText, .f = f});
    const std::string r = Convert(problem, conversion.arithmetic, f);
    WriteConversionLine(problem, conversion.step, {.v = ValueText, .f = f, .r = r});
    WriteConversionLine(problem, conversion.summary, {.v = ValueText, .f = f, .r = r});
}

/// Two direct conversions, one after the other.
struct TwoStageConversion {
    ConversionLine heading;
    ConversionLine stageLine;
    Stage first;
    Stage second;
    ConversionLine summary;
};

constexpr TwoStageConversion kOuncesToTons{
    {"To convert from ounces (oz) to tons (T):",
     "First convert ounces to pounds, then convert pounds to tons."},
    {"First, convert from ounces (oz) to pounds (lb):", "Convert ounces to pounds."},
    ConvertOuncesToPounds,
    ConvertPoundsToTons,
    {"{v} oz = {r} T", "Ounces converted to tons."}};

constexpr TwoStageConversion kTonsToOunces{
    {"To convert from tons (T) to ounces (oz):",
     "First convert tons to pounds, then convert pounds to ounces."},
    {"First, convert from tons (T) to pounds (lb):", "Convert tons to pounds."},
    ConvertTonsToPounds,
    ConvertPoundsToOunces,
    {"{v} T = {r} oz", "Tons converted to ounces."}};

void Work(Problem& problem, const TwoStageConversion& conversion, std::string_view ValueText) {
    WriteProblemLine(problem, ValueText);
    WriteConversionLine(problem, conversion.heading, {});
    WriteConversionLine(problem, conversion.stageLine, {});
    const std::string a = conversion.first(problem, ValueText, false);
    const std::string b = conversion.second(problem, a, false);
    WriteConversionLine(problem, conversion.summary, {.v = ValueText, .r = b});
}

}  // namespace

void ConvertInchesToYards(Problem& problem, std::string_view ValueText) {
    Work(problem, kInchesToYards, ValueText);
}

void ConvertInchesToMiles(Problem& problem, std::string_view ValueText) {
    Work(problem, kInchesToMiles, ValueText);
}

void ConvertYardsToInches(Problem& problem, std::string_view ValueText) {
    Work(problem, kYardsToInches, ValueText);
}

void ConvertMilesToInches(Problem& problem, std::string_view ValueText) {
    Work(problem, kMilesToInches, ValueText);
}

void ConvertOuncesToTons(Problem& problem, std::string_view ValueText) {
    Work(problem, kOuncesToTons, ValueText);
}

void ConvertTonsToOunces(Problem& problem, std::string_view ValueText) {
    Work(problem, kTonsToOunces, ValueText);
}

}  // namespace numerello
