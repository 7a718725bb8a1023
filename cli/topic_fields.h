#pragma once

#include "cli/fields.h"
#include "core/problem.h"

namespace numerello {

/// Chooses the topic that "topic" or "code" names, exactly one of them, and opens its entry form.
void ChooseTopic(Fields& fields, Problem& problem);

}  // namespace numerello
