#include "topics/geometry_common.h"

#include <algorithm>

#include "core/number.h"

namespace numerello {

bool AllPositive(std::initializer_list<std::string_view> measures) {
    return std::all_of(measures.begin(), measures.end(),
                       [](std::string_view measure) { return ToNumber(measure) > 0; });
}

}  // namespace numerello
