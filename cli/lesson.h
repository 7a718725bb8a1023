#pragma once

#include <iosfwd>
#include <string_view>

namespace numerello {

/// The tutor in a terminal: a topic, a problem typed key by key, one step for each Enter; until the
/// learner leaves or the input ends. With a caption, which has to be a topic's, it begins there.
void HoldLesson(std::string_view caption, std::ostream& out);

}  // namespace numerello
