#include "app/solvers.h"

#include <array>
#include <string>
#include <string_view>

#include "catalogue/complete_line.h"
#include "topics/conversions.h"

namespace numerello {

namespace {

/// A solver that works on the typed line.
template <void (*procedure)(Problem&, std::string_view)>
void OnLine(SolveRun& run) {
    procedure(run.problem, run.problem.typed.ProblemText);
}

/// One that also serves as a stage of others, and here stands alone.
template <std::string (*procedure)(Problem&, std::string_view, bool)>
void OnLineAlone(SolveRun& run) {
    procedure(run.problem, run.problem.typed.ProblemText, true);
}

/// The value stands in Text4, the units in the first two lists.
template <int UnitKind>
void MetricLadder(SolveRun& run) {
    const EntryBoxes& boxes = run.problem.boxes;
    ConvertMetric(run.problem, boxes.Text[3], MetricFactor(boxes.ListIndex[0]),
                  MetricFactor(boxes.ListIndex[1]), UnitKind);
}

constexpr auto kRows = std::to_array<SolverRow>({
    {54, OnLineAlone<ConvertInchesToFeet>},
    {53, OnLine<ConvertInchesToYards>},
    {52, OnLine<ConvertInchesToMiles>},
    {51, OnLine<ConvertFeetToInches>},
    {50, OnLine<ConvertFeetToYards>},
    {49, OnLine<ConvertFeetToMiles>},
    {48, OnLine<ConvertYardsToInches>},
    {47, OnLineAlone<ConvertYardsToFeet>},
    {46, OnLine<ConvertYardsToMiles>},
    {45, OnLine<ConvertMilesToInches>},
    {44, OnLineAlone<ConvertMilesToFeet>},
    {43, OnLine<ConvertMilesToYards>},
    {42, OnLineAlone<ConvertOuncesToPounds>},
    {41, OnLine<ConvertOuncesToTons>},
    {40, OnLineAlone<ConvertPoundsToOunces>},
    {39, OnLineAlone<ConvertPoundsToTons>},
    {38, OnLine<ConvertTonsToOunces>},
    {37, OnLineAlone<ConvertTonsToPounds>},
    {36, OnLine<ConvertInchesToMeters>},
    {35, OnLine<ConvertFeetToMeters>},
    {34, OnLine<ConvertMilesToKilometers>},
    {33, OnLine<ConvertPoundsToGrams>},
    {32, OnLine<ConvertOuncesToGrams>},
    {31, OnLine<ConvertMetersToInches>},
    {30, OnLine<ConvertMetersToFeet>},
    {29, OnLine<ConvertKilometersToMiles>},
    {28, OnLine<ConvertGramsToOunces>},
    {111, OnLine<ConvertGramsToPounds>},
    {110, OnLine<ConvertFahrenheitToCelsius>},
    {109, OnLine<ConvertCelsiusToFahrenheit>},
    {23, MetricLadder<1>},
    {24, MetricLadder<2>},
});

}  // namespace

const Solvers& AllSolvers() {
    static constexpr Solvers kSolvers{kRows, LineIsComplete};
    return kSolvers;
}

}  // namespace numerello
