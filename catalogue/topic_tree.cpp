#include "catalogue/topic_tree.h"

#include "catalogue/topics.h"

namespace numerello {

std::vector<TreeNode> BuildTopicTree(TopicChoice& topic, bool forNewProblem) {
    if (forNewProblem) {
        topic.ProblemType = 0;
    }
    std::vector<TreeNode> nodes;
    for (const Folder& folder : Folders()) {
        nodes.push_back({folder.key, folder.parent, folder.caption, "book1"});
    }
    for (const Topic& leaf : TreeTopics()) {
        nodes.push_back({"", leaf.parent, leaf.caption, "book2"});
    }
    return nodes;
}

}  // namespace numerello
