#include "app/box_solvers.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "core/text.h"
#include "topics/areas.h"
#include "topics/circles.h"
#include "topics/conversions.h"
#include "topics/formulas.h"
#include "topics/perimeters.h"
#include "topics/proportions.h"
#include "topics/scientific.h"
#include "topics/triangles.h"
#include "topics/volumes.h"

namespace numerello {

namespace {

/// The text of Text1 to Text6.
std::string_view Box(const SolveRun& run, int number) {
    return run.problem.boxes.Box(number);
}

std::string WithoutMarks(const SolveRun& run, int number) {
    return Replace(Box(run, number), "#", "");
}

/// The value stands in Text4, the units in the first two lists.
template <int UnitKind>
void MetricLadder(SolveRun& run) {
    const EntryBoxes& boxes = run.problem.boxes;
    ConvertMetric(run.problem, boxes.Box(4), MetricFactor(boxes.List(1)),
                  MetricFactor(boxes.List(2)), UnitKind);
}

/// Text1 = Text2 * Text4, or the like. The first empty one is the unknown and gets its word, else
/// the last.
template <void (*procedure)(Problem&, std::string_view, std::string_view, std::string_view)>
void WithMissingBox(SolveRun& run, std::string_view first, std::string_view second,
                    std::string_view third) {
    if (Box(run, 1).empty()) {
        procedure(run.problem, first, Box(run, 2), Box(run, 4));
    } else if (Box(run, 2).empty()) {
        procedure(run.problem, Box(run, 1), second, Box(run, 4));
    } else {
        procedure(run.problem, Box(run, 1), Box(run, 2), third);
    }
}

void Work(SolveRun& run) {
    WithMissingBox<WorkRateTime>(run, "work", "rate", "time");
}

void Distance(SolveRun& run) {
    WithMissingBox<DistanceSpeedTime>(run, "distance", "speed", "time");
}

void Amount(SolveRun& run) {
    WithMissingBox<AmountOfBase>(run, "amount", "N", "base");
}

void Proportion(SolveRun& run) {
    std::array<std::string_view, 4> parts{Box(run, 1), Box(run, 2), Box(run, 3), Box(run, 4)};
    auto unknown = std::find(parts.begin(), parts.end(), "");
    if (unknown == parts.end()) {
        --unknown;
    }
    *unknown = "x";
    SolveProportion(run.problem, parts[0], parts[1], parts[2], parts[3]);
}

void ToRegular(SolveRun& run) {
    ScientificToRegular(run.problem, WithoutMarks(run, 1), WithoutMarks(run, 2));
}

template <void (*procedure)(Problem&, std::string_view, std::string_view, std::string_view,
                            std::string_view)>
void TwoScientific(SolveRun& run) {
    procedure(run.problem, WithoutMarks(run, 1), WithoutMarks(run, 2), WithoutMarks(run, 3),
              WithoutMarks(run, 4));
}

/// A procedure that knows by the code which shape stands in the boxes.
template <void (*procedure)(Problem&, const EntryBoxes&, int code)>
void Shape(SolveRun& run) {
    procedure(run.problem, run.problem.boxes, run.problem.topic.ProblemType);
}

template <bool ByRadius>
void Circumference(SolveRun& run) {
    CircumferenceOfCircle(run.problem, Box(run, 2), ByRadius);
}

void Diameter(SolveRun& run) {
    DiameterFromRadius(run.problem, Box(run, 2));
}

void Radius(SolveRun& run) {
    RadiusFromDiameter(run.problem, Box(run, 2));
}

void RightTriangle(SolveRun& run) {
    PythagoreanTheorem(run.problem, Box(run, 4), Box(run, 2), Box(run, 1));
}

void TwoTriangles(SolveRun& run) {
    run.problem.playback.CurrentPage = 0;
    SimilarTriangles(run.problem, Box(run, 3), Box(run, 2), Box(run, 1), Box(run, 4), Box(run, 6),
                     Box(run, 5));
}

constexpr auto kRows = std::to_array<SolverRow>({
    {27, TwoScientific<DivideScientific>},
    {26, TwoScientific<MultiplyScientific>},
    {25, ToRegular},
    {24, MetricLadder<kMassUnits>},
    {23, MetricLadder<kLengthUnits>},
    {22, Distance},
    {21, Work},
    {20, Proportion},
    {19, Shape<PerimeterOf>},
    {18, Radius},
    {17, Diameter},
    {16, Circumference<false>},
    {15, Circumference<true>},
    {14, Amount},
    {13, Shape<PerimeterOf>},
    {12, RightTriangle},
    {11, TwoTriangles},
    {10, Shape<AreaOf>},
    {9, Shape<AreaOf>},
    {8, Shape<AreaOf>},
    {7, Shape<AreaOf>},
    {6, Shape<AreaOf>},
    {5, Shape<VolumeOf>},
    {4, Shape<VolumeOf>},
    {3, Shape<VolumeOf>},
    {2, Shape<VolumeOf>},
    {1, Shape<VolumeOf>},
});

}  // namespace

std::span<const SolverRow> BoxSolvers() {
    return kRows;
}

}  // namespace numerello
