#pragma once

#include <string_view>

#include "core/problem.h"

namespace numerello {

/// The reason of the shown step; empty where the step has none. Valid until the log changes.
std::string_view ShownNote(const Problem& problem);

}  // namespace numerello
