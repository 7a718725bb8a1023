#include "topics/conversion_sentences.h"
#include "topics/conversions.h"

namespace numerello {

namespace {

using Operation = ConversionArithmetic::Operation;

struct DirectConversion {
    ConversionArithmetic arithmetic;
    ConversionLine fact;
    ConversionLine instruction;
    ConversionLine result;
};

constexpr DirectConversion kInchesToFeet{
    {Operation::Divide, 12, 2},
    kTwelveInches,
    {"To convert inches to feet, divide the number of inches ({v}) by 12:",
     "Dividing by 12 will convert inches to feet."},
    {"{v} inches = {r} feet", "Inches converted to feet."}};

constexpr DirectConversion kFeetToInches{
    {Operation::Multiply, 12, kEveryDigit},
    kTwelveInches,
    {"To convert feet to inches, multiply the number of feet ({v}) by 12:",
     "Multiplying by 12 will convert feet to inches."},
    {"{v} feet = {r} inches", "Feet converted to inches."}};

constexpr DirectConversion kFeetToYards{
    {Operation::Divide, 3, kEveryDigit},
    kThreeFeet,
    {"To convert feet to yards, divide the number of feet ({v}) by 3:",
     "Dividing by 3 will convert feet to yards."},
    {"{v} feet = {r} yards", "Feet converted to yards."}};

constexpr DirectConversion kFeetToMiles{
    {Operation::Divide, 5280, 5},
    kFeetOfMile,
    {"To convert feet to miles, divide the number of feet ({v}) by 5280:",
     "Dividing by 5280 will convert feet to miles."},
    {"{v} feet = {r} miles", "Feet converted to miles."}};

constexpr DirectConversion kYardsToFeet{
    {Operation::Multiply, 3, kEveryDigit},
    kThreeFeet,
    {"To convert yards to feet, multiply the number of yards ({v}) by 3:",
     "Multiplying by 3 will convert yards to feet."},
    {"{v} yards = {r} feet", "Yards converted to feet."}};

constexpr DirectConversion kYardsToMiles{
    {Operation::Divide, 1760, 5},
    {"There are 1760 yards in a mile.", "1760 yards = 1 mile"},
    {"To convert yards to miles, divide the number of yards ({v}) by 1760:",
     "Dividing by 1760 will convert yards to miles."},
    {"{v} yards = {r} miles", "Yards converted to miles."}};

constexpr DirectConversion kMilesToFeet{
    {Operation::Multiply, 5280, kEveryDigit},
    kFeetOfMile,
    {"To convert miles to feet, multiply the number of miles ({v}) by 5280:",
     "Multiplying by 5280 will convert miles to feet."},
    {"{v} miles = {r} feet", "Miles converted to feet."}};

constexpr DirectConversion kMilesToYards{
    {Operation::Multiply, 1760, kEveryDigit},
    {"There are 1760 yards in a mile.", "1760 yards = 1 mile"},
    {"To convert miles to yards, multiply the number of miles ({v}) by 1760:",
     "Multiplying by 1760 will convert miles to yards."},
    {"{v} miles = {r} yards", "Miles converted to yards."}};

constexpr DirectConversion kOuncesToPounds{
    {Operation::Divide, 16, kLearnersDigits},
    {"There are 16 ounces (oz) in a pound (lb):", "16 ounces = 1 pound"},
    {"Divide the number of ounces ({v}) by 16:", "Dividing by 16 converts ounces to pounds."},
    {"{v} oz = {r} lb", "Ounces converted to pounds."}};

constexpr DirectConversion kPoundsToOunces{
    {Operation::Multiply, 16, kLearnersDigits},
    {"There are 16 ounces (oz) in a pound (lb):", "16 ounces = 1 pound"},
    {"Multiply the number of pounds ({v}) by 16:", "Multiplying by 16 converts pounds to ounces."},
    {"{v} lb = {r} oz", "Pounds converted to ounces."}};

constexpr DirectConversion kPoundsToTons{
    {Operation::Divide, 2000, 5},
    {"There are 2000 pounds (lb) in a ton (T):", "2000 pounds = 1 ton"},
    {"Divide the number of pounds ({v}) by 2000:", "Dividing by 2000 converts pounds to tons."},
    {"{v}lb = {r} T", "Pounds converted to tons."}};

constexpr DirectConversion kTonsToPounds{
    {Operation::Multiply, 2000, kLearnersDigits},
    {"There are 2000 pounds (lb) in a ton (T):", "2000 pounds = 1 ton"},
    {"Multiply the number of tons ({v}) by 2000:", "Multiplying by 2000 converts tons to pounds."},
    {"{v}T = {r} lb", "Tons converted to pounds."}};

constexpr DirectConversion kMetersToInches{
    {Operation::Multiply, 39.37, kEveryDigit},
    {"There are 39.37 inches (in) in a meter (m):", "39.37 inches = 1 meter"},
    {"Multiply the number of meters ({v}) by 39.37:",
     "Multiplying by 39.37 approximately convert meters to inches."},
    {"{v} m = {r} in", "Meters converted to inches."}};

constexpr DirectConversion kMetersToFeet{
    {Operation::Multiply, 3.3, kEveryDigit},
    {"There are 3.3 feet (ft) in a meter (m):", "3.3 feet = 1 meter"},
    {"Multiply the number of meters ({v}) by 3.3:",
     "Multiplying by 3.3 approximately convert meters to feet."},
    {"{v} m = {r} ft", "Meters converted to feet."}};

constexpr DirectConversion kInchesToMeters{
    {Operation::Divide, 39.37, kLearnersDigits},
    {"There are 39.37 inches (in) in a meter (m):", "39.37 inches = 1 meter"},
    {"Divide the number of inches ({v}) by 39.37:",
     "Dividing by 39.37 approximately convert inches to meters."},
    {"{v} in = {r} m", "Inches converted to meters."}};

constexpr DirectConversion kFeetToMeters{
    {Operation::Divide, 3.3, kLearnersDigits},
    {"There are 3.3 feet (ft) in a meter (m):", "3.3 feet = 1 meter"},
    {"Divide the number of feet ({v}) by 3.3:",
     "Dividing by 3.3 approximately convert feet to meters."},
    {"{v} ft = {r} m", "Feet converted to meters."}};

constexpr DirectConversion kKilometersToMiles{
    {Operation::Multiply, 0.621, kEveryDigit},
    {"There are 0.621 miles in a kilometer (km):", "0.621 miles = 1 kilometer"},
    {"Multiply the number of kilometers ({v}) by 0.621:",
     "Multiplying by 0.621 approximately convert kilometers to miles."},
    {"{v} km = {r} mile(s)", "Kilometers converted to miles."}};

constexpr DirectConversion kMilesToKilometers{
    {Operation::Divide, 0.621, kLearnersDigits},
    {"There are 0.621 miles in a kilometer (km):", "0.621 miles = 1 kilometer"},
    {"Divide the number of miles ({v}) by 0.621:",
     "Dividing by 0.621 approximately convert miles to kilometers."},
    {"{v} mile(s) = {r} km", "Miles converted to kilometers."}};

constexpr DirectConversion kGramsToPounds{
    {Operation::Divide, 454, 3},
    {"There are 454 grams (g) in a pound (lb):", "454 grams = 1 pound"},
    {"Divide the number of grams ({v}) by 454:", "Dividing by 454 converts grams to pounds."},
    {"{v} g = {r} lb", "Grams converted to pounds."}};

constexpr DirectConversion kPoundsToGrams{
    {Operation::Multiply, 454, kLearnersDigits},
    {"There are 454 grams (g) in a pound (lb):", "454 grams = 1 pound"},
    {"Multiply the number of pounds ({v}) by 454:", "Multiplying by 454 converts pounds to grams."},
    {"{v} lb = {r} g", "Pounds converted to grams."}};

constexpr DirectConversion kGramsToOunces{
    {Operation::Multiply, 0.03524, kLearnersDigits},
    {"There are 0.035 ounces (oz) in a gram (g):", "0.035 ounces = 1 gram"},
    {"Multiply the number of grams ({v}) by 0.035:",
     "Multiplying by 0.035 approximately converts grams to ounces."},
    {"{v} g = {r} oz", "Grams converted to ounces."}};

constexpr DirectConversion kOuncesToGrams{
    {Operation::Multiply, 28.375, kLearnersDigits},
    {"There are 28.375 grams (g) in an ounce (oz):", "28.375 grams = 1 ounce"},
    {"Multiply the number of ounces ({v}) by 28.375:",
     "Multiplying by 28.375 approximately converts ounces to grams."},
    {"{v} oz = {r} g", "Ounces converted to grams."}};

std::string Work(Problem& problem, const DirectConversion& conversion, std::string_view ValueText,
                 bool Standalone) {
    if (Standalone) {
        WriteProblemLine(problem, ValueText);
    }
    WriteConversionLine(problem, conversion.fact, {});
    WriteConversionLine(problem, conversion.instruction, {.v = ValueText});
    std::string result = Convert(problem, conversion.arithmetic, ValueText);
    WriteConversionLine(problem, conversion.result, {.v = ValueText, .r = result});
    return result;
}

}  // namespace

std::string ConvertInchesToFeet(Problem& problem, std::string_view ValueText, bool Standalone) {
    Work(problem, kInchesToFeet, ValueText, Standalone);
    // The line shows two places; what a longer conversion goes on with has the learner's.
    return Convert(problem, {Operation::Divide, 12, kLearnersDigits}, ValueText);
}

void ConvertFeetToInches(Problem& problem, std::string_view ValueText) {
    Work(problem, kFeetToInches, ValueText, true);
}

void ConvertFeetToYards(Problem& problem, std::string_view ValueText) {
    Work(problem, kFeetToYards, ValueText, true);
}

void ConvertFeetToMiles(Problem& problem, std::string_view ValueText) {
    Work(problem, kFeetToMiles, ValueText, true);
}

std::string ConvertYardsToFeet(Problem& problem, std::string_view ValueText, bool Standalone) {
    return Work(problem, kYardsToFeet, ValueText, Standalone);
}

void ConvertYardsToMiles(Problem& problem, std::string_view ValueText) {
    Work(problem, kYardsToMiles, ValueText, true);
}

std::string ConvertMilesToFeet(Problem& problem, std::string_view ValueText, bool Standalone) {
    return Work(problem, kMilesToFeet, ValueText, Standalone);
}

void ConvertMilesToYards(Problem& problem, std::string_view ValueText) {
    Work(problem, kMilesToYards, ValueText, true);
}

std::string ConvertOuncesToPounds(Problem& problem, std::string_view ValueText, bool Standalone) {
    return Work(problem, kOuncesToPounds, ValueText, Standalone);
}

std::string ConvertPoundsToOunces(Problem& problem, std::string_view ValueText, bool Standalone) {
    return Work(problem, kPoundsToOunces, ValueText, Standalone);
}

std::string ConvertPoundsToTons(Problem& problem, std::string_view ValueText, bool Standalone) {
    return Work(problem, kPoundsToTons, ValueText, Standalone);
}

std::string ConvertTonsToPounds(Problem& problem, std::string_view ValueText, bool Standalone) {
    return Work(problem, kTonsToPounds, ValueText, Standalone);
}

void ConvertMetersToInches(Problem& problem, std::string_view ValueText) {
    Work(problem, kMetersToInches, ValueText, true);
}

void ConvertMetersToFeet(Problem& problem, std::string_view ValueText) {
    Work(problem, kMetersToFeet, ValueText, true);
}

void ConvertInchesToMeters(Problem& problem, std::string_view ValueText) {
    Work(problem, kInchesToMeters, ValueText, true);
}

void ConvertFeetToMeters(Problem& problem, std::string_view ValueText) {
    Work(problem, kFeetToMeters, ValueText, true);
}

void ConvertKilometersToMiles(Problem& problem, std::string_view ValueText) {
    Work(problem, kKilometersToMiles, ValueText, true);
}

void ConvertMilesToKilometers(Problem& problem, std::string_view ValueText) {
    Work(problem, kMilesToKilometers, ValueText, true);
}

void ConvertGramsToPounds(Problem& problem, std::string_view ValueText) {
    Work(problem, kGramsToPounds, ValueText, true);
}

void ConvertPoundsToGrams(Problem& problem, std::string_view ValueText) {
    Work(problem, kPoundsToGrams, ValueText, true);
}

void ConvertGramsToOunces(Problem& problem, std::string_view ValueText) {
    Work(problem, kGramsToOunces, ValueText, true);
}

void ConvertOuncesToGrams(Problem& problem, std::string_view ValueText) {
    Work(problem, kOuncesToGrams, ValueText, true);
}

}  // namespace numerello
