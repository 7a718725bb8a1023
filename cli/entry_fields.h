#pragma once

#include <string>
#include <vector>

#include "cli/fields.h"
#include "core/problem.h"

namespace numerello {

/// What a request has the learner enter.
struct Entry {
    std::string problem;
    std::vector<std::string> boxes;
    bool filled = false;  ///< the boxes are set as they stand, not typed
    std::vector<long> lists;
};

/// Reads "problem", "boxes", "filled" and "lists".
Entry ReadEntry(Fields& fields);

/// Reads "boxes" and "filled" alone.
Entry ReadBoxes(Fields& fields);

/// Enters everything; returns the refused keys.
Json Enter(Problem& problem, const Entry& entry);

}  // namespace numerello
