#pragma once

#include "core/clock.h"
#include "core/random_source.h"

namespace numerello {

/// A digit from 1 to 9. Seeds the source with minutes and seconds at every call, so that two calls
/// within one second give the same digit.
int RandInt(const Clock& clock, RandomSource& random);

/// As RandInt, a digit from 2 to 9.
int RandInt2to9(const Clock& clock, RandomSource& random);

}  // namespace numerello
