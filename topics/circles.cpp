#include "topics/circles.h"

#include "core/number.h"
#include "core/text.h"
#include "topics/geometry_common.h"
#include "topics/results.h"

namespace numerello {

namespace {

/// Writes the problem line; false when the radius was refused.
bool TakesRadius(StepLog& log, std::string_view r) {
    log.Write(Text("radius = ", r), "");
    if (AllPositive({r})) {
        return true;
    }
    log.Write("The radius of a circle must be greater than 0.",
              "It is impossible for a circle to have a radius less than or equal to 0.");
    return false;
}

/// Writes the problem line; false when the diameter was refused.
bool TakesDiameter(StepLog& log, std::string_view d) {
    log.Write(Text("diameter = ", d), "");
    if (AllPositive({d})) {
        return true;
    }
    log.Write("The diameter of a circle must be greater than 0.",
              "It is impossible for a circle to have a diameter less than or equal to 0.");
    return false;
}

void CircumferenceByRadius(Problem& problem, std::string_view r) {
    StepLog& log = problem.log;
    if (!TakesRadius(log, r)) {
        return;
    }
    log.Write("Circumference = 2 ` * radius",
              "This is the formula for calculating the circumference of a circle using radius.");
    log.Write(Text("Circumference = 2 ` * ", r), Text("Substitute ", r, " in for radius."));
    log.Write(Text("Circumference = ", RoundedResult(problem, Checked(2 * kPi * ToNumber(r)))),
              "Multiply all terms to calculate the circumference.");
}

void CircumferenceByDiameter(Problem& problem, std::string_view d) {
    StepLog& log = problem.log;
    if (!TakesDiameter(log, d)) {
        return;
    }
    log.Write("Circumference = ` * diameter",
              "This is the formula for calculating the circumference of a circle using diameter.");
    log.Write(Text("Circumference = ` * ", d), Text("Substitute ", d, " in for diameter."));
    log.Write(Text("Circumference = ", RoundedResult(problem, Checked(kPi * ToNumber(d)))),
              "Multiply all terms to calculate the circumference.");
}

}  // namespace

void CircumferenceOfCircle(Problem& problem, std::string_view ValueText, bool ByRadius) {
    if (ByRadius) {
        CircumferenceByRadius(problem, ValueText);
    } else {
        CircumferenceByDiameter(problem, ValueText);
    }
}

void DiameterFromRadius(Problem& problem, std::string_view RadiusText) {
    const std::string_view r = RadiusText;
    StepLog& log = problem.log;
    if (!TakesRadius(log, r)) {
        return;
    }
    log.Write("Diameter = 2 * radius",
              "This is the formula for calculating diameter using radius.");
    log.Write(Text("Diameter = 2 * ", r), Text("Substitute ", r, " in for radius."));
    log.Write(Text("Diameter = ", RoundedResult(problem, Checked(2 * ToNumber(r)))), "Multiply.");
}

void RadiusFromDiameter(Problem& problem, std::string_view DiameterText) {
    const std::string_view d = DiameterText;
    StepLog& log = problem.log;
    if (!TakesDiameter(log, d)) {
        return;
    }
    log.Write("Radius = #diameter/2#",
              "This is the formula for calculating radius using diameter.");
    log.Write(Text("Radius = #", d, "/2#"), Text("Substitute ", d, " in for diameter."));
    log.Write(Text("Radius = ", RoundedResult(problem, ToNumber(d) / 2)),
              Text("Divide ", d, " by 2."));
}

}  // namespace numerello
