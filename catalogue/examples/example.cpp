#include "catalogue/examples/example.h"

#include <algorithm>
#include <array>

#include "catalogue/examples/families.h"

namespace numerello {

namespace {

struct Row {
    int first;
    int last;
    ExampleFamily make;
};

/// By code.
constexpr auto kFamilies = std::to_array<Row>({
    {1, 22, MeasuresExample},
    {23, 24, MetricExample},
    {25, 27, ScientificExample},
    {28, 54, DigitRunExample},
    {59, 62, ListExample},
    {65, 65, LongDigitRunExample},
    {68, 71, DigitRunExample},
    {72, 73, FractionExample},
    {74, 74, MixedNumberExample},
    {75, 75, FractionExample},
    {76, 76, FractionArithmeticExample},
    {78, 78, RatioExample},
    {79, 80, FractionExample},
    {81, 82, WalkExample},
    {83, 83, RepeatedFactorExample},
    {84, 86, DigitRunExample},
    {87, 88, ListExample},
    {89, 89, DigitRunExample},
    {90, 90, ComparingExample},
    {91, 91, WalkExample},
    {98, 98, RoundingExample},
    {99, 99, LongDigitRunExample},
    {101, 103, WalkExample},
    {104, 104, AngleExample},
    {105, 105, WalkExample},
    {106, 108, PointsExample},
    {109, 111, DigitRunExample},
    {120, 121, WalkExample},
    {150, 150, TemplateExample},
    {200, 203, ColumnExample},
});

}  // namespace

Example GenerateExample(const TopicChoice& topic, bool ForTest, int ComplexEx,
                        ExampleDraws& draws) {
    const int code = topic.ProblemType;
    const auto* const row =
        std::find_if(kFamilies.begin(), kFamilies.end(),
                     [code](const Row& each) { return code >= each.first && code <= each.last; });
    return row == kFamilies.end() ? Example() : row->make({topic, ForTest, ComplexEx}, draws);
}

}  // namespace numerello
