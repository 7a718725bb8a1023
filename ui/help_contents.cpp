#include "ui/help_contents.h"

#include <QApplication>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <utility>

#include "ui/artwork.h"
#include "ui/text.h"
#include "ui/topic_views.h"

namespace numerello {

namespace {

/// Rows of a tree that are as high as their title needs when it is broken at the view's edge. The
/// tree by itself has rows of one line alone.
class BrokenTitles : public QStyledItemDelegate {
  public:
    explicit BrokenTitles(QTreeView* tree) : QStyledItemDelegate(tree), tree(tree) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        int indented = tree->indentation();
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
            indented += tree->indentation();
        }
        QStyleOptionViewItem narrow = option;
        narrow.rect = QRect(0, 0, tree->columnWidth(0) - indented, 1);
        return QStyledItemDelegate::sizeHint(narrow, index);
    }

  private:
    QTreeView* tree;
};

}  // namespace

HelpContents::HelpContents(const HelpIndex& index, QWidget* parent)
    : QTreeWidget(parent), index(index) {
    setObjectName(QStringLiteral("contents"));
    setAccessibleName(QStringLiteral("Contents"));
    setHeaderHidden(true);
    setWordWrap(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new BrokenTitles(this));
    // How high a row is depends on where it is broken; the tree does not look again by itself.
    connect(header(), &QHeaderView::sectionResized, this, &QTreeWidget::doItemsLayout,
            Qt::QueuedConnection);
    Fill();
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { Tell(item); });
    auto* children = new ChildrenScroller(*this);
    connect(this, &QTreeWidget::itemClicked, this, [this, children](QTreeWidgetItem* item) {
        Tell(item);
        item->setExpanded(!item->isExpanded());
        children->ShowIn(QApplication::doubleClickInterval());
    });
}

void HelpContents::Fill() {
    QList<QTreeWidgetItem*> above;  // the last item of each depth
    for (const ContentsRow& row : index.Rows()) {
        const QStringList title{ToQString(row.title)};
        auto* item = row.depth == 0 ? new QTreeWidgetItem(this, title)
                                    : new QTreeWidgetItem(above.at(row.depth - 1), title);
        above.resize(row.depth);
        above.append(item);
        items.append(item);
    }
    const QIcon chapter = ArtworkIcon(QStringLiteral("book1"));
    const QIcon page = ArtworkIcon(QStringLiteral("book2"));
    for (QTreeWidgetItem* item : std::as_const(items)) {
        item->setIcon(0, item->childCount() > 0 ? chapter : page);
    }
    items.first()->setExpanded(true);
}

void HelpContents::Tell(QTreeWidgetItem* item) {
    if (const auto row = items.indexOf(item); row >= 0) {
        emit Chosen(static_cast<int>(row));
    }
}

void HelpContents::Light(int row) {
    const QSignalBlocker openedAlready(this);
    setCurrentItem(items.at(row));
    scrollToItem(items.at(row));
}

}  // namespace numerello
