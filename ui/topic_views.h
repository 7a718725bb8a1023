#pragma once

#include <span>
#include <vector>

#include "catalogue/topic_tree.h"

class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// The topics as a tree and as an alphabetic index, for every window that offers them. Pictures and
/// rows grow with the interface font.
namespace numerello {

/// Of a row of a window's tree or index, and the indentation of a folder's children.
int TopicRowHeight(const QWidget& window);
int TopicIndentation(const QWidget& window);

/// How wide the longest caption is.
int WidestTopic(const QWidget& window);

/// Fills an empty tree. The items stand in the order of the nodes.
std::vector<QTreeWidgetItem*> FillTopicTree(QTreeWidget& tree, std::span<const TreeNode> nodes);

/// The number of the node that an item of such a tree shows.
int NodeOf(const QTreeWidgetItem& item);

/// Fills an empty list with IndexRows().
void FillTopicIndex(QListWidget& list);

}  // namespace numerello
