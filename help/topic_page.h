#pragma once

#include <string>
#include <string_view>

#include "catalogue/topics.h"
#include "help/topic_texts.h"

namespace numerello {

/// Behind this a page names others only.
inline constexpr std::string_view kSeeAlso = "<h2>See also</h2>";

/// Before the name of a topic's page, a link that puts its example on the sheet.
inline constexpr std::string_view kExampleScheme = "example:";

/// The text of a problem file that holds a topic's example.
std::string ExampleFile(const TopicText& text);

/// The page of a topic as the inside of an HTML body: what it is, what to type, the example as it
/// is entered and worked, the topics beside it. Throws HelpError for an example that the program
/// itself does not accept and solve.
std::string TopicPage(const Topic& topic, const TopicText& text);

}  // namespace numerello
