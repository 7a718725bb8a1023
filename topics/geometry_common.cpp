#include "topics/geometry_common.h"

#include <algorithm>

#include "core/number.h"

namespace numerello {

std::string RoundedResult(const Problem& problem, double value) {
    return NumberText(Round(value, problem.settings.RoundDigits));
}

bool AllPositive(std::initializer_list<std::string_view> measures) {
    return std::all_of(measures.begin(), measures.end(),
                       [](std::string_view measure) { return ToNumber(measure) > 0; });
}

void RefuseSides(StepLog& log) {
    log.Write("All sides must be greater than zero.",
              "It is impossible to have a side less than or equal to 0.");
}

void RefuseRadius(StepLog& log) {
    log.Write("The radius must be greater than zero.",
              "It is impossible to have a radius less than or equal to 0.");
}

}  // namespace numerello
