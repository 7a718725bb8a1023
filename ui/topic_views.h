#pragma once

#include <QObject>
#include <QTimer>
#include <span>
#include <vector>

#include "catalogue/topic_tree.h"

class QLineEdit;
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

/// How wide a window's tree wants to be: the longest caption three folders deep.
int TopicsWidth(const QWidget& window);

/// Fills an empty tree. The items stand in the order of the nodes.
std::vector<QTreeWidgetItem*> FillTopicTree(QTreeWidget& tree, std::span<const TreeNode> nodes);

/// Scrolls the children of a folder that was opened into view: at the lower edge the click would
/// else seem to do nothing.
class ChildrenScroller : public QObject {
  public:
    /// The tree owns this.
    explicit ChildrenScroller(QTreeWidget& tree);

    /// Those of the current folder, so many milliseconds from now; calling it again begins anew. A
    /// row must not be scrolled away between the halves of a double click.
    void ShowIn(int milliseconds) { timer.start(milliseconds); }

  private:
    void Show();

    QTreeWidget& tree;
    QTimer timer;
};

/// The number of the node that an item of such a tree shows.
int NodeOf(const QTreeWidgetItem& item);

/// Fills an empty list with IndexRows().
void FillTopicIndex(QListWidget& list);

/// The index with a search box above it, as the page of a tab.
QWidget* MakeIndexPage(QLineEdit& search, QListWidget& list);

/// Lays the row that was searched for at the top: the topics that begin alike stand below it.
void ScrollToFound(QListWidget& list);

}  // namespace numerello
