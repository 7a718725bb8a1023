#pragma once

#include "cli/fields.h"
#include "core/problem.h"

namespace numerello {

/// Reads the "settings" object of a request.
void ApplySettings(Fields& fields, AnswerSettings& settings);

}  // namespace numerello
