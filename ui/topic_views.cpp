#include "ui/topic_views.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <map>
#include <string_view>

#include "catalogue/topics.h"
#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr int kPicture = 20;
constexpr int kRowPadding = 8;
constexpr int kNodeRole = Qt::UserRole;

int PictureSize(const QWidget& window) {
    return std::max(kPicture, window.fontMetrics().height());
}

QTreeWidgetItem* MakeItem(const TreeNode& node, QTreeWidget& tree, QTreeWidgetItem* folder) {
    auto* item = folder == nullptr ? new QTreeWidgetItem(&tree) : new QTreeWidgetItem(folder);
    item->setText(0, ToQString(node.caption));
    item->setIcon(0, ArtworkIcon(ToQString(node.image)));
    const int width = PictureSize(tree) + tree.fontMetrics().horizontalAdvance(item->text(0));
    item->setSizeHint(0, {width + 2 * kRowPadding, TopicRowHeight(tree)});
    return item;
}

}  // namespace

int TopicRowHeight(const QWidget& window) {
    return PictureSize(window) + kRowPadding;
}

int TopicIndentation(const QWidget& window) {
    return PictureSize(window) + kRowPadding / 2;
}

int WidestTopic(const QWidget& window) {
    int widest = 0;
    for (const std::string_view caption : IndexRows()) {
        widest = std::max(widest, window.fontMetrics().horizontalAdvance(ToQString(caption)));
    }
    return widest;
}

int TopicsWidth(const QWidget& window) {
    constexpr int kFoldersAndBar = 4;
    constexpr int kMargins = 56;
    return WidestTopic(window) + kFoldersAndBar * TopicIndentation(window) + kMargins;
}

std::vector<QTreeWidgetItem*> FillTopicTree(QTreeWidget& tree, std::span<const TreeNode> nodes) {
    tree.setObjectName(QStringLiteral("TreeView1"));
    tree.setAccessibleName(QStringLiteral("Topics by chapter"));
    tree.setHeaderHidden(true);
    tree.setIconSize({PictureSize(tree), PictureSize(tree)});
    tree.setIndentation(TopicIndentation(tree));
    tree.setUniformRowHeights(true);
    // A double click on a folder opens it by its first half.
    tree.setExpandsOnDoubleClick(false);
    tree.setEditTriggers(QAbstractItemView::NoEditTriggers);

    std::vector<QTreeWidgetItem*> items;
    std::map<std::string_view, QTreeWidgetItem*> folders;
    for (const TreeNode& node : nodes) {
        QTreeWidgetItem* item =
            MakeItem(node, tree, node.parent.empty() ? nullptr : folders.at(node.parent));
        item->setData(0, kNodeRole, static_cast<int>(items.size()));
        items.push_back(item);
        if (!node.key.empty()) {
            folders[node.key] = item;
        }
    }
    return items;
}

ChildrenScroller::ChildrenScroller(QTreeWidget& tree) : QObject(&tree), tree(tree) {
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, [this] { Show(); });
}

void ChildrenScroller::Show() {
    QTreeWidgetItem* folder = tree.currentItem();
    if (folder != nullptr && folder->isExpanded()) {
        tree.scrollToItem(folder->child(folder->childCount() - 1));
        tree.scrollToItem(folder);
    }
}

int NodeOf(const QTreeWidgetItem& item) {
    return item.data(0, kNodeRole).toInt();
}

void FillTopicIndex(QListWidget& list) {
    list.setObjectName(QStringLiteral("IndexList"));
    list.setAccessibleName(QStringLiteral("Topics in alphabetic order"));
    list.setUniformItemSizes(true);
    list.setIconSize({PictureSize(list), PictureSize(list)});
    list.setEditTriggers(QAbstractItemView::NoEditTriggers);
    const QIcon picture = ArtworkIcon(QStringLiteral("book2"));
    for (const std::string_view caption : IndexRows()) {
        auto* row = new QListWidgetItem(picture, ToQString(caption), &list);
        row->setSizeHint({0, TopicRowHeight(list)});
    }
}

QWidget* MakeIndexPage(QLineEdit& search, QListWidget& list) {
    constexpr int kMargin = 8;
    search.setAccessibleName(QStringLiteral("Search"));
    search.setPlaceholderText(QStringLiteral("Search"));
    search.setClearButtonEnabled(true);
    search.setMinimumHeight(TopicRowHeight(search));
    search.setTextMargins(kMargin / 2, 0, kMargin / 2, 0);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->addWidget(&search);
    column->addWidget(&list);
    return page;
}

void ScrollToFound(QListWidget& list) {
    list.scrollToItem(list.currentItem(), QAbstractItemView::PositionAtTop);
}

}  // namespace numerello
