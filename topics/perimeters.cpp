#include "topics/perimeters.h"

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "topics/geometry_common.h"
#include "topics/refusals.h"
#include "topics/results.h"

namespace numerello {

namespace {

// The checks follow the substitution: a refused shape still shows its formula.

void PerimeterOfTriangle(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view a = boxes.Box(3);
    const std::string_view b = boxes.Box(2);
    const std::string_view c = boxes.Box(1);
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

void PerimeterOfRectangle(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view b = boxes.Box(2);
    const std::string_view h = boxes.Box(1);
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

void PerimeterOf(Problem& problem, const EntryBoxes& boxes, int code) {
    switch (code) {
        case kPerimeterOfTriangle:
            return PerimeterOfTriangle(problem, boxes);
        case kPerimeterOfRectangle:
            return PerimeterOfRectangle(problem, boxes);
        default:
            throw Failure(FailureKind::Format);
    }
}

}  // namespace numerello
