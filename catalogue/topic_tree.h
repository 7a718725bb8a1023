#pragma once

#include <string_view>
#include <vector>

#include "core/problem.h"

namespace numerello {

/// A row of the topic tree.
struct TreeNode {
    std::string_view key;     ///< empty for a topic
    std::string_view parent;  ///< key of the folder that holds it, empty for a root
    std::string_view caption;
    std::string_view image;  ///< "book1" for a folder, "book2" for a topic
};

/// All nodes in the order in which they are added, the folders first: each stands below the
/// siblings before it. With `forNewProblem` the present topic is forgotten first.
std::vector<TreeNode> BuildTopicTree(TopicChoice& topic, bool forNewProblem);

}  // namespace numerello
