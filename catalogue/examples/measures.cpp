#include <array>
#include <span>
#include <string>
#include <string_view>

#include "catalogue/entry_layouts.h"
#include "catalogue/examples/families.h"
#include "core/number.h"
#include "core/topic_codes.h"

/// Geometry and formulas: values with names, some of them asked for.
namespace numerello {

namespace {

/// The values a to f.
enum Value : std::size_t { A, B, C, D, E, F };
using Values = std::array<int, 6>;
using Asked = std::array<bool, 6>;

/// How a test names a value, with what stands before the name, and the box that has the name on the
/// form.
struct Named {
    std::string_view before;
    Value value;
    int box;
};

constexpr auto kEdges = std::to_array<Named>({
    {"length = ", A, 2},
    {", width = ", B, 3},
    {", height = ", C, 1},
});
constexpr auto kRound = std::to_array<Named>({{"radius of base = ", A, 2}, {", height = ", B, 1}});
constexpr auto kRadius = std::to_array<Named>({{"radius = ", A, 2}});
constexpr auto kDiameter = std::to_array<Named>({{"diameter = ", A, 2}});
constexpr auto kBaseAndHeight = std::to_array<Named>({{"base = ", A, 2}, {", height = ", B, 1}});
constexpr auto kTrapezoid = std::to_array<Named>({
    {"height = ", A, 2},
    {", a = ", B, 1},
    {", b = ", C, 3},
});
constexpr auto kTriangle = std::to_array<Named>({
    {"a = ", A, 3},
    {", b = ", B, 2},
    {", c = ", C, 1},
});
constexpr auto kSimilarTriangles = std::to_array<Named>({
    {"Triangle 1: a = ", A, 3},
    {", b = ", B, 2},
    {", c = ", C, 1},
    {" - Triangle 2: a = ", D, 4},
    {", b = ", E, 6},
    {", c = ", F, 5},
});
constexpr auto kRightTriangle = std::to_array<Named>({
    {"a = ", B, 4},
    {", b = ", D, 2},
    {", c = ", A, 1},
});
constexpr auto kAmount = std::to_array<Named>({
    {"amount = ", B, 1},
    {", N = ", D, 2},
    {", base = ", A, 4},
});
constexpr auto kWork = std::to_array<Named>({
    {"work = ", B, 1},
    {", rate = ", D, 2},
    {", time = ", A, 4},
});
constexpr auto kDistance = std::to_array<Named>({
    {"distance = ", B, 1},
    {", speed = ", D, 2},
    {", time = ", A, 4},
});
constexpr auto kProportion = std::to_array<Named>({
    {"#", A, 1},
    {"/", B, 2},
    {"# = #", C, 3},
    {"/", D, 4},
});

/// Which values are asked for.
enum class Asks { None, OneOfABD, TwoOfDEF, OneOfABCD };

struct Row {
    int code;
    std::span<const Named> values;
    Asks asks = Asks::None;
    std::string_view behind{};  ///< the last value of the test's text
};

constexpr auto kRows = std::to_array<Row>({
    {1, kEdges},
    {2, kRound},
    {3, kRound},
    {4, kEdges},
    {5, kRadius},
    {6, kBaseAndHeight},
    {7, kRadius},
    {8, kBaseAndHeight},
    {9, kBaseAndHeight},
    {10, kTrapezoid},
    {11, kSimilarTriangles, Asks::TwoOfDEF},
    {12, kRightTriangle, Asks::OneOfABD},
    {13, kBaseAndHeight},
    {14, kAmount, Asks::OneOfABD},
    {15, kRadius},
    {16, kDiameter},
    {17, kRadius},
    {18, kDiameter},
    {19, kTriangle},
    {20, kProportion, Asks::OneOfABCD, "#"},
    {21, kWork, Asks::OneOfABD},
    {22, kDistance, Asks::OneOfABD},
});

/// The longest side has to be that.
void KeepHypotenuseLongest(Values& values) {
    for (const Value leg : {B, D}) {
        if (values[A] <= values[leg]) {
            values[A] = values[leg] + 2;
        }
    }
}

Asked DrawAsked(Asks asks, ExampleDraws& draws) {
    constexpr std::array<Value, 3> kOneOfABD{D, A, B};
    constexpr std::array<Value, 3> kNotOfDEF{E, F, D};
    Asked asked{};
    switch (asks) {
        case Asks::None:
            break;
        case Asks::OneOfABD:
            asked[kOneOfABD[static_cast<std::size_t>(draws.RandIntMod(3))]] = true;
            break;
        case Asks::TwoOfDEF:
            asked[D] = asked[E] = asked[F] = true;
            asked[kNotOfDEF[static_cast<std::size_t>(draws.RandIntMod(3))]] = false;
            break;
        case Asks::OneOfABCD:
            asked[static_cast<std::size_t>(draws.Below(4))] = true;
            break;
    }
    return asked;
}

Example ByName(const Row& row, const Values& values, const Asked& asked) {
    Example example;
    for (const Named& named : row.values) {
        const std::string text = asked[named.value] ? "" : WholeText(values[named.value]);
        example.printed += named.before;
        example.printed += text.empty() ? "?" : text;
        example.boxes.Box(named.box) = text;
    }
    example.printed += row.behind;
    return example;
}

/// Each box gets the value of its own number, whatever its name.
Example ByNumber(const Row& row, const Values& values, const Asked& asked) {
    Example example;
    for (const EntryBoxLayout& box : FindEntryLayout(row.code)->boxes) {
        const std::size_t i = static_cast<std::size_t>(box.number) - 1;
        example.boxes.Box(box.number) = asked[i] ? "" : WholeText(values[i]);
    }
    return example;
}

}  // namespace

int DrawValue(const ExampleRequest& request, ExampleDraws& draws) {
    const int value = draws.RandInt();
    return request.IsComplex() ? value * 10 + draws.RandInt() : value;
}

Example MeasuresExample(const ExampleRequest& request, ExampleDraws& draws) {
    Values values{};
    for (int& value : values) {
        value = DrawValue(request, draws);
    }
    const Row& row = kRows[static_cast<std::size_t>(request.Code()) - 1];
    if (row.code == kPythagoreanTheorem) {
        KeepHypotenuseLongest(values);
    }
    const Asked asked = DrawAsked(row.asks, draws);
    return request.ForTest ? ByName(row, values, asked) : ByNumber(row, values, asked);
}

}  // namespace numerello
