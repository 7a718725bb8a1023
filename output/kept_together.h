#pragma once

#include <functional>

#include "core/learner.h"
#include "typeset/surface.h"

namespace numerello {

/// Begins a page where what `print` is going to print would go over the end of this one but fits a
/// page of its own. Tries it out on other surfaces, with a learner who is told nothing.
void KeepTogether(Surface& Printer,
                  const std::function<void(Surface& Printer, Learner& learner)>& print);

}  // namespace numerello
