#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/problem.h"

namespace numerello {

/// What the help tells of a topic beside what the catalogue and the solver know.
struct TopicText {
    std::string caption;
    std::string about;                 ///< HTML, in which <m>...</m> is a piece of math text
    std::string problem;               ///< what is typed on the line
    EntryBoxes boxes;                  ///< what is typed into boxes and chosen from lists
    std::vector<std::string> answers;  ///< to the questions that solving asks
};

/// Reads the paragraphs of docs/help/topics.txt, whose head tells the form. Throws HelpError for a
/// line that has none of its keys.
std::vector<TopicText> ReadTopicTexts(std::string_view file);

}  // namespace numerello
