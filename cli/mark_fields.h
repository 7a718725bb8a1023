#pragma once

#include <vector>

#include "cli/json.h"
#include "typeset/surface.h"

namespace numerello {

/// A whole number is written as one.
Json JsonNumber(double value);

/// To three decimals.
Json Rounded(double value);

/// A mark as the answers write it; null for a picture, which is no mark of the protocol.
Json MarkFields(const Mark& mark);

/// All marks of a surface as the answers write them.
Json MarksOf(const Surface& surface);

/// The marks of such an answer, all in the sheets' face.
std::vector<Mark> ReadMarks(const Json& marks);

}  // namespace numerello
