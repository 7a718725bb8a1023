#include "topics/areas.h"

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "topics/geometry_common.h"
#include "topics/refusals.h"
#include "topics/results.h"

namespace numerello {

namespace {

void WriteArea(Problem& problem, double area) {
    problem.log.Write(Text("Area = ", RoundedResult(problem, Checked(area))),
                      "Calculate the answer by multiplying.");
}

/// Takes measures of 0 and less as well: kept as it is.
void AreaOfRectangle(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view b = boxes.Box(2);
    const std::string_view h = boxes.Box(1);
    StepLog& log = problem.log;
    log.Write(Text("base = ", b, ", height = ", h), "");
    log.Write("Area = base * height",
              "This is the formula for calculating the area of a square/rectangle, and "
              "parallelogram.");
    log.Write(Text("Area = ", b, " * ", h),
              "Substitute the base and height of the shape into the formula.");
    WriteArea(problem, ToNumber(b) * ToNumber(h));
}

void AreaOfCircle(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view r = boxes.Box(2);
    StepLog& log = problem.log;
    log.Write(Text("radius = ", r), "");
    if (!AllPositive({r})) {
        RefuseRadius(log);
        return;
    }
    log.Write(Text("Area = ` * radius^2^   (` equals about ", RoundedResult(problem, kPi),
                   " or about #22/7#)"),
              "This is the formula for calculating the area of a circle.");
    log.Write(Text("Area = ", NumberText(kPi), " * ", r, "^2^"),
              "Substitute the value of pi and the radius into the formula.");
    const double radius = ToNumber(r);
    WriteArea(problem, kPi * (radius * radius));
}

void AreaOfTriangle(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view b = boxes.Box(2);
    const std::string_view h = boxes.Box(1);
    StepLog& log = problem.log;
    log.Write(Text("base = ", b, ", height = ", h), "");
    if (!AllPositive({b, h})) {
        RefuseSides(log);
        return;
    }
    log.Write("Area = #1/2# * base * height",
              "This is the formula for calculating the area of a triangle.");
    log.Write(Text("Area = #1/2# * ", b, " * ", h),
              "Substitute the base and height of the triangle into the formula.");
    WriteArea(problem, 0.5 * ToNumber(b) * ToNumber(h));
}

void AreaOfTrapezoid(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view h = boxes.Box(2);
    const std::string_view a = boxes.Box(1);
    const std::string_view b = boxes.Box(3);
    StepLog& log = problem.log;
    log.Write(Text("height = ", h, ", a = ", a, ", b = ", b), "");
    if (!AllPositive({h, a, b})) {
        RefuseSides(log);
        return;
    }
    log.Write("Area = #1/2# * height * (a + b)",
              "This is the formula for calculating the area of a trapezoid.");
    log.Write(Text("Area = #1/2# * ", h, " * (", a, " + ", b, ")"),
              "Substitute the values of a, b, and height into the formula.");
    WriteArea(problem, 0.5 * ToNumber(h) * (ToNumber(a) + ToNumber(b)));
}

}  // namespace

void AreaOf(Problem& problem, const EntryBoxes& boxes, int code) {
    switch (code) {
        case 6:
        case 9:
            return AreaOfRectangle(problem, boxes);
        case 7:
            return AreaOfCircle(problem, boxes);
        case 8:
            return AreaOfTriangle(problem, boxes);
        case 10:
            return AreaOfTrapezoid(problem, boxes);
        default:
            throw Failure(FailureKind::Format);
    }
}

}  // namespace numerello
