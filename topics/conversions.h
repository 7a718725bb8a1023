#pragma once

#include <string>
#include <string_view>

#include "core/problem.h"

/// The unit conversions. Each takes the value as typed and repeats it as typed; factors and words
/// are the tutor's own, rough ones included. A text that is no number fails (Failure) at the
/// first line that computes, with the lines before it written.
namespace numerello {

// Length.
void ConvertFeetToInches(Problem& problem, std::string_view ValueText);
void ConvertFeetToYards(Problem& problem, std::string_view ValueText);
void ConvertFeetToMiles(Problem& problem, std::string_view ValueText);
void ConvertYardsToMiles(Problem& problem, std::string_view ValueText);
void ConvertMilesToYards(Problem& problem, std::string_view ValueText);
void ConvertInchesToYards(Problem& problem, std::string_view ValueText);
void ConvertInchesToMiles(Problem& problem, std::string_view ValueText);
void ConvertYardsToInches(Problem& problem, std::string_view ValueText);
void ConvertMilesToInches(Problem& problem, std::string_view ValueText);

// Weight.
void ConvertOuncesToTons(Problem& problem, std::string_view ValueText);
void ConvertTonsToOunces(Problem& problem, std::string_view ValueText);

// Between the two systems.
void ConvertMetersToInches(Problem& problem, std::string_view ValueText);
void ConvertMetersToFeet(Problem& problem, std::string_view ValueText);
void ConvertInchesToMeters(Problem& problem, std::string_view ValueText);
void ConvertFeetToMeters(Problem& problem, std::string_view ValueText);
void ConvertKilometersToMiles(Problem& problem, std::string_view ValueText);
void ConvertMilesToKilometers(Problem& problem, std::string_view ValueText);
void ConvertGramsToPounds(Problem& problem, std::string_view ValueText);
void ConvertPoundsToGrams(Problem& problem, std::string_view ValueText);
void ConvertGramsToOunces(Problem& problem, std::string_view ValueText);
void ConvertOuncesToGrams(Problem& problem, std::string_view ValueText);

// These also serve as stages of longer conversions: without `Standalone` they write no problem
// line. The result is the number text that the next stage goes on with.
std::string ConvertInchesToFeet(Problem& problem, std::string_view ValueText, bool Standalone);
std::string ConvertYardsToFeet(Problem& problem, std::string_view ValueText, bool Standalone);
std::string ConvertMilesToFeet(Problem& problem, std::string_view ValueText, bool Standalone);
std::string ConvertOuncesToPounds(Problem& problem, std::string_view ValueText, bool Standalone);
std::string ConvertPoundsToOunces(Problem& problem, std::string_view ValueText, bool Standalone);
std::string ConvertPoundsToTons(Problem& problem, std::string_view ValueText, bool Standalone);
std::string ConvertTonsToPounds(Problem& problem, std::string_view ValueText, bool Standalone);

// UnitKind: what the metric units of a list measure.
inline constexpr int kLengthUnits = 1;
inline constexpr int kMassUnits = 2;

/// The ladder of the metric units. The factors are two of MetricFactor's; any other fails (Format).
void ConvertMetric(Problem& problem, std::string_view ValueText, double FromFactor, double ToFactor,
                   int UnitKind);

/// The factor of a row of the unit lists, 0 (a thousandth) to 6 (a thousand). Throws
/// Failure(Format) outside them, as for a list without a choice.
double MetricFactor(int ListIndex);

/// The row of a unit list as the learner reads it: "mm (0.001 meters)". Throws as MetricFactor.
std::string_view MetricItem(int ListIndex, int UnitKind);
inline constexpr int kMetricItems = 7;

// Temperature.
void ConvertFahrenheitToCelsius(Problem& problem, std::string_view ValueText);
void ConvertCelsiusToFahrenheit(Problem& problem, std::string_view ValueText);

}  // namespace numerello
