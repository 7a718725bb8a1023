#include "topics/perimeters.h"

#include "core/number.h"
#include "core/text.h"
#include "topics/geometry_common.h"
#include "topics/refusals.h"
#include "topics/results.h"

namespace numerello {

namespace {

constexpr int kTriangle = 19;

// The checks follow the substitution: a refused shape still shows its formula.

void PerimeterOfTriangle(Problem& problem, std::string_view a, std::string_view b,
                         std::string_view c) {
    StepLog& log = problem.log;
    log.Write(Text("a = ", a, ", b = ", b, ", c = ", c), "");
    log.Write("Perimeter = a + b + c",
              "To find the perimeter of a shape, add the lengths of all sides of that shape.");
    log.Write(Text("Perimeter = ", a, " + ", b, " + ", c),
              Text("Substitute ", a, " in for a, ", b, " in for b, and ", c, " in for c."));
    if (!AllPositive({a, b, c})) {
        RefuseTriangleSides(log);
        return;
    }
    const double sum = ToNumber(a) + ToNumber(b) + ToNumber(c);
    log.Write(Text("Perimeter = ", RoundedResult(problem, sum)),
              "Add all the terms to calculate the perimeter of the triangle.");
}

void PerimeterOfRectangle(Problem& problem, std::string_view b, std::string_view h) {
    StepLog& log = problem.log;
    log.Write(Text("base = ", b, ", height = ", h), "");
    log.Write(
        "Perimeter = 2 * (base + height)",
        "To find the perimeter of a shape, add the lengths of all sides of that shape.  Since "
        "the lengths of opposite sides of a square/rectangle will be equal, length and width "
        "can be added and multiplied by 2.");
    log.Write(Text("Perimeter = 2 * (", b, " + ", h, ")"),
              Text("Substitute ", b, " in for base, and ", h, " in for height."));
    if (!AllPositive({b, h})) {
        log.Write(
            "All sides of a square/rectangle must be greater than zero.",
            "It is impossible for a square/rectangle to have a side less than or equal to 0.");
        return;
    }
    const double perimeter = 2 * (ToNumber(b) + ToNumber(h));
    log.Write(Text("Perimeter = ", RoundedResult(problem, perimeter)),
              Text("Add ", b, " and ", h, " first, then multiply by 2."));
}

}  // namespace

void PerimeterOf(Problem& problem, std::string_view a, std::string_view b, std::string_view c,
                 int code) {
    if (code == kTriangle) {
        PerimeterOfTriangle(problem, a, b, c);
    } else {
        PerimeterOfRectangle(problem, a, b);
    }
}

}  // namespace numerello
