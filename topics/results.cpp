#include "topics/results.h"

#include "core/number.h"

namespace numerello {

std::string RoundedResult(const Problem& problem, double value) {
    return NumberText(Round(value, problem.settings.RoundDigits));
}

}  // namespace numerello
