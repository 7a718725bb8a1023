#include "help/contents.h"

#include "catalogue/topic_tree.h"
#include "catalogue/topics.h"
#include "core/text.h"

namespace numerello {

namespace {

using Nodes = std::vector<TreeNode>;

void AddChildren(const Nodes& nodes, std::string_view parent, int depth,
                 std::vector<ContentsRow>& rows) {
    for (const TreeNode& node : nodes) {
        if (node.parent != parent) {
            continue;
        }
        const bool isTopic = node.key.empty();
        rows.push_back({depth, isTopic ? PageName(node.caption) : "", std::string(node.caption)});
        if (!isTopic) {
            AddChildren(nodes, node.key, depth + 1, rows);
        }
    }
}

}  // namespace

std::string PageName(std::string_view caption) {
    std::string name;
    for (const std::string& character : Characters(caption)) {
        if (IsLetter(character)) {
            name += static_cast<char>(character.front() | 0x20);
        } else if (IsDigit(character)) {
            name += character;
        } else if (!name.empty() && name.back() != '-') {
            name += '-';
        }
    }
    while (name.ends_with('-')) {
        name.pop_back();
    }
    return name;
}

std::vector<ContentsRow> TopicRows() {
    TopicChoice unused;
    std::vector<ContentsRow> rows;
    AddChildren(BuildTopicTree(unused, true), "", 0, rows);
    rows.push_back({0, "", "Further Topics"});
    for (const Topic& topic : HiddenTopics()) {
        rows.push_back({1, PageName(topic.caption), std::string(topic.caption)});
    }
    return rows;
}

}  // namespace numerello
