#pragma once

#include <iosfwd>

namespace numerello {

/// Answers the requests of `in`, one JSON object a line, in order, each answer flushed. With
/// `progress` a running count goes there. Ends early when `out` takes no more.
void RunBatch(std::istream& in, std::ostream& out, std::ostream* progress);

}  // namespace numerello
