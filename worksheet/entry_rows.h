#pragma once

#include <optional>

namespace numerello {

/// The Y of the first sheet at which the topic's next line begins while nothing is solved yet: the
/// row of the typed line, or the first row below the boxes. Nothing for the column topics, which
/// choose their own.
std::optional<double> EntryRow(int ProblemType);

}  // namespace numerello
