#pragma once

#include <string>
#include <string_view>

#include "catalogue/examples/example.h"

/// One procedure for each family of topics whose examples are made alike.
namespace numerello {

/// What is asked for.
struct ExampleRequest {
    const TopicChoice& topic;
    bool ForTest = false;
    int ComplexEx = 0;  ///< 0 or 2

    int Code() const { return topic.ProblemType; }
    bool IsComplex() const { return ComplexEx == 2; }
};

using ExampleFamily = Example (*)(const ExampleRequest&, ExampleDraws&);

// Boxes.
Example MeasuresExample(const ExampleRequest& request, ExampleDraws& draws);
Example ColumnExample(const ExampleRequest& request, ExampleDraws& draws);
Example MetricExample(const ExampleRequest& request, ExampleDraws& draws);
Example ScientificExample(const ExampleRequest& request, ExampleDraws& draws);

// Texts for the line, put together.
Example DigitRunExample(const ExampleRequest& request, ExampleDraws& draws);
Example LongDigitRunExample(const ExampleRequest& request, ExampleDraws& draws);
Example RoundingExample(const ExampleRequest& request, ExampleDraws& draws);
Example AngleExample(const ExampleRequest& request, ExampleDraws& draws);
Example ListExample(const ExampleRequest& request, ExampleDraws& draws);
Example ComparingExample(const ExampleRequest& request, ExampleDraws& draws);
Example PointsExample(const ExampleRequest& request, ExampleDraws& draws);
Example RepeatedFactorExample(const ExampleRequest& request, ExampleDraws& draws);
Example RatioExample(const ExampleRequest& request, ExampleDraws& draws);
Example FractionExample(const ExampleRequest& request, ExampleDraws& draws);
Example MixedNumberExample(const ExampleRequest& request, ExampleDraws& draws);
Example FractionArithmeticExample(const ExampleRequest& request, ExampleDraws& draws);

// Texts for the line, from a template.
Example TemplateExample(const ExampleRequest& request, ExampleDraws& draws);

/// The template with one draw of RandInt2to9 in place of every capital letter, the same for all
/// occurrences of a letter.
std::string create_example(std::string_view Template, ExampleDraws& draws);

/// A walk over keys: the filter of the topic accepts or refuses each. The line is complete.
Example WalkExample(const ExampleRequest& request, ExampleDraws& draws);

/// One of the values a to f: a draw of RandInt, with a second digit behind it in a complex example.
int DrawValue(const ExampleRequest& request, ExampleDraws& draws);

}  // namespace numerello
