#include <array>

#include "catalogue/entry_layouts.h"
#include "catalogue/examples/families.h"
#include "core/number.h"
#include "core/text.h"
#include "core/topic_codes.h"

/// Texts for the line that are put together from digits.
namespace numerello {

namespace {

/// What stands around the digits of a topic.
struct Frame {
    int code;
    std::string_view before;
    std::string_view behind;
};

constexpr auto kFrames = std::to_array<Frame>({
    {68, "", "%"},
    {69, "", "%"},
    {70, "0.", ""},
    {71, "0.", ""},
});

/// What is typed is also what a test prints.
Example Line(std::string text) {
    Example example;
    example.keys = text;
    example.printed = std::move(text);
    return example;
}

/// A run of (RandInt Mod spread) + ComplexEx + 1 digits.
std::string Run(const ExampleRequest& request, ExampleDraws& draws, int spread = 2) {
    const int length = draws.RandIntMod(spread) + request.ComplexEx + 1;
    return draws.Digits(length);
}

Example Fraction(std::string_view whole, std::string_view plus, const std::string& numerator,
                 const std::string& denominator) {
    Example example;
    example.keys = Text(whole, plus, numerator, "/", denominator);
    example.printed = Text(whole, "#", numerator, "/", denominator, "#");
    return example;
}

}  // namespace

Example DigitRunExample(const ExampleRequest& request, ExampleDraws& draws) {
    const std::string run = Run(request, draws);
    for (const Frame& frame : kFrames) {
        if (frame.code == request.Code()) {
            return Line(Text(frame.before, run, frame.behind));
        }
    }
    return Line(run);
}

Example LongDigitRunExample(const ExampleRequest& /*request*/, ExampleDraws& draws) {
    const int length = draws.RandInt() + 1;
    return Line(draws.Digits(length));
}

Example RoundingExample(const ExampleRequest& request, ExampleDraws& draws) {
    const auto rows = static_cast<int>(RoundingRows().size());
    constexpr int kFirstWithDecimals = 3;
    const int row = draws.RandIntMod(rows);
    std::string text = Run(request, draws, 6);
    if (row >= kFirstWithDecimals) {
        text += "." + Run(request, draws, 4);
    }
    Example example = Line(std::move(text));
    example.boxes.ListIndex[2] = row;
    example.suffix = Text(" ", RoundingRows()[static_cast<std::size_t>(row)]);
    return example;
}

Example AngleExample(const ExampleRequest& /*request*/, ExampleDraws& draws) {
    if (draws.Below(2) != 0) {
        return Line(draws.Digits(2));
    }
    const std::string middle = WholeText(draws.Below(8));
    return Line(Text("1", middle, draws.Digits(1)));
}

Example ListExample(const ExampleRequest& request, ExampleDraws& draws) {
    const bool hasCommonFactor =
        request.Code() == kGreatestCommonFactors || request.Code() == kLeastCommonMultiples;
    const int factor = hasCommonFactor ? draws.RandIntMod(3) + 1 : 1;
    const int count = draws.RandIntMod(2) + request.ComplexEx + 4;
    std::string list;
    for (int i = 0; i < count; ++i) {
        const int number = draws.RandInt() * factor;
        list += Text(i == 0 ? "" : ",", WholeText(number));
    }
    return Line(std::move(list));
}

Example ComparingExample(const ExampleRequest& request, ExampleDraws& draws) {
    const std::string first = draws.Sign() + Run(request, draws);
    const std::string second = draws.Sign() + Run(request, draws);
    return Line(Text(first, ",", second));
}

Example PointsExample(const ExampleRequest& request, ExampleDraws& draws) {
    const auto point = [&] {
        const std::string x = draws.Sign() + WholeText(DrawValue(request, draws));
        const std::string y = draws.Sign() + WholeText(DrawValue(request, draws));
        return Text("(", x, ",", y, ")");
    };
    std::string line = point();
    if (request.Code() == kLineThroughTwoPoints) {
        line += "-" + point();
    }
    return Line(std::move(line));
}

Example RepeatedFactorExample(const ExampleRequest& request, ExampleDraws& draws) {
    const std::string base = WholeText(draws.RandInt() + 1);
    const int count = draws.RandIntMod(2) + request.ComplexEx + 2;
    std::string product = base;
    for (int i = 1; i < count; ++i) {
        product += Text("*", base);
    }
    return Line(std::move(product));
}

Example RatioExample(const ExampleRequest& request, ExampleDraws& draws) {
    const std::string first = Run(request, draws);
    return Line(Text(first, ":", Run(request, draws)));
}

Example FractionExample(const ExampleRequest& request, ExampleDraws& draws) {
    if (request.Code() == kFractionToMixed) {
        const int length = request.ComplexEx / 2 + 1;
        const std::string numerator = draws.Digits(length + 1);
        return Fraction("", "", numerator, draws.Digits(length));
    }
    const std::string numerator = Run(request, draws);
    return Fraction("", "", numerator, Run(request, draws));
}

Example MixedNumberExample(const ExampleRequest& request, ExampleDraws& draws) {
    const std::string whole = WholeText(DrawValue(request, draws));
    const std::string numerator = WholeText(DrawValue(request, draws));
    return Fraction(whole, "+", numerator, WholeText(DrawValue(request, draws)));
}

Example FractionArithmeticExample(const ExampleRequest& request, ExampleDraws& draws) {
    constexpr std::array<std::string_view, 4> kOperators{"+", "-", "/", "*"};
    const auto fraction = [&draws] {
        const std::string numerator = draws.Digits(1);
        return Text("#", numerator, "/", draws.Digits(1), "#");
    };
    const auto sign = [&] { return kOperators[static_cast<std::size_t>(draws.Below(4))]; };

    Example example;
    example.keys = example.printed = fraction();
    const int further = request.IsComplex() ? draws.Below(4) + 1 : 0;
    for (int i = 0; i <= further; ++i) {
        const std::string_view typed = sign();
        // Only the first division is printed with its sign.
        const std::string_view printed = i == 0 && typed == "/" ? "{" : typed;
        const std::string operand = fraction();
        example.keys += Text(typed, operand);
        example.printed += Text(printed, operand);
    }
    return example;
}

}  // namespace numerello
