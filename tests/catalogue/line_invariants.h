#pragma once

#include <string>

#include "core/problem.h"

namespace numerello {

/// What is wrong with a typed line, whatever keys led to it; empty when nothing is. Told from the
/// text of the problem and its display line alone.
std::string WhatIsWrong(const Problem& problem);

/// What differs between two problems as far as the line, its flags and its tokens go; empty when
/// nothing does.
std::string LineDifference(const Problem& one, const Problem& other);

}  // namespace numerello
