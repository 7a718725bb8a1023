#include "app/line_solvers.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/bounds.h"
#include "core/failure.h"
#include "core/text.h"
#include "topics/angles.h"
#include "topics/common_factors.h"
#include "topics/comparing.h"
#include "topics/conversions.h"
#include "topics/factors.h"
#include "topics/fractions.h"
#include "topics/number_list.h"
#include "topics/number_words.h"
#include "topics/percents.h"
#include "topics/quadrants.h"
#include "topics/reciprocal.h"
#include "topics/rounding.h"
#include "topics/scientific.h"
#include "topics/statistics.h"

namespace numerello {

namespace {

/// A solver that works on the typed line.
template <void (*procedure)(Problem&, std::string_view)>
void OnLine(SolveRun& run) {
    procedure(run.problem, run.problem.typed.ProblemText);
}

/// One that also serves as a stage of others, and here stands alone.
template <auto procedure>
void OnLineAlone(SolveRun& run) {
    procedure(run.problem, run.problem.typed.ProblemText, true);
}

/// A list may be typed with a comma before it and one behind it.
template <void (*procedure)(Problem&, std::string_view)>
void OnList(SolveRun& run) {
    std::string_view list = run.problem.typed.ProblemText;
    if (list.starts_with(',')) {
        list.remove_prefix(1);
    }
    if (list.ends_with(',')) {
        list.remove_suffix(1);
    }
    procedure(run.problem, list);
}

void FactorsOfLine(SolveRun& run) {
    std::string value = run.problem.typed.ProblemText;
    ListFactors(run.problem, value, true);
}

void RoundLine(SolveRun& run) {
    RoundByChoice(run.problem, run.problem.typed.ProblemText, run.problem.boxes.List(3));
}

/// The numbers of the line, without parentheses and the sign between two points.
std::vector<std::string> PartsOfLine(const Problem& problem, std::size_t expected) {
    std::string line = Replace(problem.typed.ProblemText, ")-(", ",");
    line = Replace(Replace(line, "(", ""), ")", "");
    std::vector<std::string> parts = SplitList(line);
    CheckIndex(static_cast<int>(expected), static_cast<int>(parts.size()));
    return parts;
}

void CompareLine(SolveRun& run) {
    const std::vector<std::string> parts = PartsOfLine(run.problem, 2);
    const double A = EntryValue(parts[0]);
    const double B = EntryValue(parts[1]);
    CompareNumbers(run.problem, A, B);
}

void RequestPoint(Problem& problem, const std::vector<std::string>& parts) {
    problem.controls.GraphEnabled = true;
    problem.graph.GraphX1 = EntryValue(parts[0]);
    problem.graph.GraphY1 = EntryValue(parts[1]);
    problem.graph.GraphMode = kOnePointGraph;
}

/// A whole number, "+" and a fraction; a second "+" would leave a part of the problem out.
void MixedLine(SolveRun& run) {
    const auto [whole, fraction] = SplitAt(run.problem.typed.ProblemText, '+');
    if (fraction.find('+') != std::string_view::npos) {
        throw Failure(FailureKind::Format);
    }
    MixedToFraction(run.problem, whole, fraction);
}

void PlotPoint(SolveRun& run) {
    RequestPoint(run.problem, PartsOfLine(run.problem, 2));
    run.problem.playback.ShownStep = 0;
}

void PlotLine(SolveRun& run) {
    const std::vector<std::string> parts = PartsOfLine(run.problem, 4);
    RequestPoint(run.problem, parts);
    GraphRequest& graph = run.problem.graph;
    graph.GraphX2 = EntryValue(parts[2]);
    graph.GraphY2 = EntryValue(parts[3]);
    graph.GraphMode = kTwoPointsGraph;
    run.problem.playback.ShownStep = 0;
}

void QuadrantOfLine(SolveRun& run) {
    const std::vector<std::string> parts = PartsOfLine(run.problem, 2);
    RequestPoint(run.problem, parts);
    PointQuadrant(run.problem, parts[0], parts[1]);
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
    {108, PlotPoint},
    {107, QuadrantOfLine},
    {106, PlotLine},
    {104, OnLine<ClassifyAngle>},
    {99, OnLine<ExpandedNotation>},
    {98, RoundLine},
    {90, CompareLine},
    {89, OnLine<ListMultiples>},
    {88, OnList<FindLCM>},
    {87, OnList<FindGCF>},
    {86, FactorsOfLine},
    {85, OnLine<PrimeOrComposite>},
    {84, OnLine<PrimeFactorization>},
    {80, OnLineAlone<SimplifyFraction>},
    {79, OnLine<FindReciprocal>},
    {78, OnLine<RatioToFraction>},
    {75, OnLine<FractionToMixed>},
    {74, MixedLine},
    {73, OnLine<FractionToDecimal>},
    {72, OnLine<FractionToPercent>},
    {71, OnLineAlone<DecimalToFraction>},
    {70, OnLineAlone<DecimalToPercent>},
    {69, OnLine<PercentToDecimal>},
    {68, OnLine<PercentToFraction>},
    {65, OnLine<RegularToScientific>},
    {62, OnLine<FindMean>},
    {61, OnLine<FindMedian>},
    {60, OnLine<FindMode>},
    {59, OnLine<FindRange>},
});

}  // namespace

std::span<const SolverRow> LineSolvers() {
    return kRows;
}

}  // namespace numerello
