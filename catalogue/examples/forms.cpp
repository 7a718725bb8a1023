#include <array>

#include "catalogue/examples/families.h"
#include "core/number.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "topics/conversions.h"

/// Column arithmetic, metric units and scientific notation.
namespace numerello {

namespace {

/// Addition, subtraction, multiplication, division.
constexpr std::array<std::string_view, 4> kColumnOperators{" + ", " - ", " * ", " { "};

std::string ValueText(const ExampleRequest& request, ExampleDraws& draws) {
    return WholeText(DrawValue(request, draws));
}

/// A value, and in the boxes two more digits behind its point.
std::string Mantissa(const ExampleRequest& request, ExampleDraws& draws) {
    const std::string value = ValueText(request, draws);
    return request.ForTest ? value : Text(value, ".", draws.Digits(2));
}

std::string Exponent(const ExampleRequest& request, ExampleDraws& draws) {
    return request.ForTest ? ValueText(request, draws) : draws.Digits(1);
}

}  // namespace

Example ColumnExample(const ExampleRequest& request, ExampleDraws& draws) {
    int top = DrawValue(request, draws);
    const int bottom = DrawValue(request, draws);
    // On the form equal numbers stay equal.
    if (bottom > top || (request.ForTest && bottom == top)) {
        top = bottom + 1;
    }
    Example example;
    example.boxes.Text[0] = WholeText(top);
    example.boxes.Text[1] = WholeText(bottom);
    const std::string_view sign =
        kColumnOperators[static_cast<std::size_t>(request.Code() - kFirstColumnTopic)];
    example.printed = Text(example.boxes.Text[0], sign, example.boxes.Text[1]);
    return example;
}

Example MetricExample(const ExampleRequest& request, ExampleDraws& draws) {
    Example example;
    example.boxes.Text[3] = ValueText(request, draws);
    const int from = draws.RandIntMod(kMetricItems);
    const int to = draws.RandIntMod(kMetricItems);
    example.boxes.ListIndex[0] = from;
    example.boxes.ListIndex[1] = to;
    const int UnitKind = request.Code() == kMeterConversions ? kLengthUnits : kMassUnits;
    example.printed = Text(example.boxes.Text[3], " ", MetricItem(from, UnitKind), " = ? ", " ",
                           MetricItem(to, UnitKind));
    return example;
}

Example ScientificExample(const ExampleRequest& request, ExampleDraws& draws) {
    Example example;
    std::array<std::string, 6>& box = example.boxes.Text;
    box[0] = Mantissa(request, draws);
    box[1] = Exponent(request, draws);
    if (request.Code() == kScientificToRegular) {
        box[1].insert(0, request.ForTest ? "" : draws.Sign());
        example.printed = Text(box[0], " * 10^", box[1], "^");
        return example;
    }
    box[2] = Mantissa(request, draws);
    box[3] = Exponent(request, draws);
    const std::string_view sign = request.Code() == kDividingScientific ? "^ { " : "^ * ";
    example.printed = Text(box[0], "*10 ^", box[1], sign, box[2], "*10^", box[3], "^");
    return example;
}

}  // namespace numerello
