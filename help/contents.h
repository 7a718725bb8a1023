#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace numerello {

/// The name of a topic's page: its caption in small letters and digits, hyphens for all else.
std::string PageName(std::string_view caption);

/// A row of the contents: a chapter, which has no page, or a page.
struct ContentsRow {
    int depth;         ///< 0 for the outermost rows
    std::string page;  ///< empty for a chapter
    std::string title;
};

/// The chapters and topics in the order of the topic tree, then those in no tree.
std::vector<ContentsRow> TopicRows();

}  // namespace numerello
