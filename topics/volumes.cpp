#include "topics/volumes.h"

#include "core/failure.h"
#include "core/number.h"
#include "core/text.h"
#include "topics/geometry_common.h"
#include "topics/refusals.h"
#include "topics/results.h"

namespace numerello {

namespace {

constexpr std::string_view kBaseIsCircle = "The base is equal to the area of a circle.";

void WriteVolume(Problem& problem, double volume) {
    problem.log.Write(Text("Volume = ", RoundedResult(problem, Checked(volume))),
                      "Calculate the answer by multiplying.");
}

void VolumeOfBox(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view l = boxes.Box(2);
    const std::string_view w = boxes.Box(3);
    const std::string_view h = boxes.Box(1);
    StepLog& log = problem.log;
    log.Write(Text("length = ", l, ", width = ", w, ", height = ", h), "");
    if (!AllPositive({l, w, h})) {
        RefuseSides(log);
        return;
    }
    log.Write("Volume = length * width * height",
              "This is the formula for calculating the volume of a cube/box.");
    log.Write(Text("Volume = ", l, " * ", w, " * ", h),
              "Substitute the length, width, and height of the cube/box into the formula.");
    WriteVolume(problem, ToNumber(l) * ToNumber(w) * ToNumber(h));
}

void VolumeOfPyramid(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view l = boxes.Box(2);
    const std::string_view w = boxes.Box(3);
    const std::string_view h = boxes.Box(1);
    StepLog& log = problem.log;
    log.Write(Text("length = ", l, ", width = ", w, ", height = ", h), "");
    if (!AllPositive({l, w, h})) {
        RefuseSides(log);
        return;
    }
    log.Write("Volume = #1/3# * (length * width * height)",
              "This is the formula for calculating the volume of a pyramid.");
    log.Write(Text("Volume = #1/3# * (", l, " * ", w, " * ", h, ")"),
              "Substitute the length, width, and height of the pyramid into the formula.");
    WriteVolume(problem, 1.0 / 3 * (ToNumber(l) * ToNumber(w) * ToNumber(h)));
}

void VolumeOfCylinder(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view r = boxes.Box(2);
    const std::string_view h = boxes.Box(1);
    StepLog& log = problem.log;
    log.Write(Text("radius = ", r, ", height = ", h), "");
    if (!AllPositive({r, h})) {
        log.Write("All lengths must be greater than zero.",
                  "It is impossible to have a length less than or equal to 0.");
        return;
    }
    log.Write("Volume = base * height",
              "This is the formula for calculating the volume of a cylinder.");
    log.Write(Text("Volume = ` * radius^2^ * height   (` equals about ",
                   RoundedResult(problem, kPi), " or about #22/7#)"),
              std::string(kBaseIsCircle));
    log.Write(Text("Volume = ", NumberText(kPi), " * ", r, "^2^ * ", h),
              "Substitute the value of pi, radius, and height of the cylinder into the formula.");
    const double radius = ToNumber(r);
    WriteVolume(problem, kPi * (radius * radius) * ToNumber(h));
}

/// Takes measures of 0 and less as well: kept as it is.
void VolumeOfCone(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view r = boxes.Box(2);
    const std::string_view h = boxes.Box(1);
    StepLog& log = problem.log;
    log.Write(Text("radius = ", r, ", height = ", h), "");
    log.Write("Volume = #1/3# base * height",
              "This is the formula for calculating the volume of a cone.");
    log.Write(Text("Volume = #1/3# * ` * radius^2^ * height   (` equals about ",
                   RoundedResult(problem, kPi), " or about #22/7#)"),
              std::string(kBaseIsCircle));
    log.Write(Text("Volume = #1/3# * ", NumberText(kPi), " * ", r, "^2^ * ", h),
              "Substitute the value of pi, radius, and height of the cone into the formula.");
    const double radius = ToNumber(r);
    WriteVolume(problem, 1.0 / 3 * kPi * (radius * radius) * ToNumber(h));
}

void VolumeOfSphere(Problem& problem, const EntryBoxes& boxes) {
    const std::string_view r = boxes.Box(2);
    StepLog& log = problem.log;
    log.Write(Text("radius = ", r), "");
    if (!AllPositive({r})) {
        RefuseRadius(log);
        return;
    }
    log.Write(Text("Volume = #4/3# * ` * radius^3^   (` equals about ", RoundedResult(problem, kPi),
                   " or about #22/7#)"),
              "This is the formula for calculating the volume of a sphere.");
    log.Write(Text("Volume = #4/3# * ", NumberText(kPi), " * ", r, "^3^"),
              "Substitute the value of pi and radius into the formula.");
    const double radius = ToNumber(r);
    WriteVolume(problem, 4.0 / 3 * kPi * (radius * radius * radius));
}

}  // namespace

void VolumeOf(Problem& problem, const EntryBoxes& boxes, int code) {
    switch (code) {
        case 1:
            return VolumeOfBox(problem, boxes);
        case 2:
            return VolumeOfCylinder(problem, boxes);
        case 3:
            return VolumeOfCone(problem, boxes);
        case 4:
            return VolumeOfPyramid(problem, boxes);
        case 5:
            return VolumeOfSphere(problem, boxes);
        default:
            throw Failure(FailureKind::Format);
    }
}

}  // namespace numerello
