#include "ui/frm_select.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <utility>

#include "ui/dialog_help.h"
#include "ui/forwarding_view.h"
#include "ui/screen_room.h"
#include "ui/text.h"
#include "ui/topic_views.h"

namespace numerello {

namespace {

constexpr QSize kSmallest(440, 520);
constexpr int kMargin = 8;
constexpr int kUsualRow = 28;

}  // namespace

FrmSelect::FrmSelect(TopicChoice& topic, std::vector<TreeNode> nodes, const Clock& clock,
                     RandomSource& random, QWidget* parent)
    : QDialog(parent), topic(topic), chooser(topic, std::move(nodes), clock, random) {
    setObjectName(QStringLiteral("frmSelect"));
    setWindowTitle(QStringLiteral("Choose problem type:"));
    setModal(true);
    OfferHelp(*this, QStringLiteral("choosing"));

    MakeTree();
    MakeIndex();
    MakeTabs();
    resize(PreferredSize());
}

void FrmSelect::MakeTree() {
    treeView1 = new ForwardingView<QTreeWidget>(*this, ChooserControl::TreeView1,
                                                &Chooser::TreeView1_KeyDown);
    items = FillTopicTree(*treeView1, chooser.Nodes());
    children = new ChildrenScroller(*treeView1);
    ConnectTree();
}

void FrmSelect::ConnectTree() {
    connect(treeView1, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        Forward([&] { chooser.TreeView1_NodeClick(NodeOf(*item)); });
    });
    connect(treeView1, &QTreeWidget::itemDoubleClicked, this,
            [this] { Forward([&] { chooser.TreeView1_DblClick(); }); });
    connect(treeView1, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) {
        Forward([&] { chooser.TreeView1_Expand(NodeOf(*item)); });
        children->ShowIn(mouseMoves ? QApplication::doubleClickInterval() : 0);
    });
    connect(treeView1, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) {
        Forward([&] { chooser.TreeView1_Collapse(NodeOf(*item)); });
    });
    connect(treeView1, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr && !mouseMoves) {
            Forward([&] { chooser.TreeView1_Moved(NodeOf(*item)); });
        }
    });
}

void FrmSelect::MakeIndex() {
    text1 = new SearchBox(*this, ChooserControl::Text1, &Chooser::Text1_KeyDown);
    text1->setObjectName(QStringLiteral("Text1"));
    connect(text1, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!mirroring) {
            Forward([&] { chooser.Text1_Change(text.toStdString()); });
            ScrollToFound(*indexList);
        }
    });

    indexList = new ForwardingView<QListWidget>(
        *this, ChooserControl::IndexList, &Chooser::IndexList_KeyDown, &Chooser::IndexList_MouseUp);
    FillTopicIndex(*indexList);
    connect(indexList, &QListWidget::currentRowChanged, this,
            [this](int row) { Forward([&] { chooser.IndexList_Moved(row); }); });
    connect(indexList, &QListWidget::itemDoubleClicked, this,
            [this] { Forward([&] { chooser.IndexList_DblClick(); }); });
}

void FrmSelect::MakeTabs() {
    auto* topicPage = new QWidget;
    auto* topicColumn = new QVBoxLayout(topicPage);
    topicColumn->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    topicColumn->addWidget(treeView1);

    ssTab1 = new QTabWidget(this);
    ssTab1->setObjectName(QStringLiteral("SSTab1"));
    ssTab1->setAccessibleName(QStringLiteral("Topics"));
    ssTab1->addTab(topicPage, QStringLiteral("Topic"));
    ssTab1->addTab(MakeIndexPage(*text1, *indexList), QStringLiteral("Index"));
    ssTab1->tabBar()->setAccessibleName(QStringLiteral("Topic or index"));
    ssTab1->tabBar()->installEventFilter(this);
    connect(ssTab1, &QTabWidget::currentChanged, this, [this](int tab) {
        Forward([&] { chooser.SSTab1_Click(tab == 0 ? ChooserTab::Topic : ChooserTab::Index); });
    });

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(ssTab1);
}

/// Room for the topics, and for the rows of a larger interface font.
QSize FrmSelect::PreferredSize() const {
    const QSize needed(TopicsWidth(*this), kSmallest.height() * TopicRowHeight(*this) / kUsualRow);
    return needed.expandedTo(kSmallest).boundedTo(RoomForDialog(*this));
}

void FrmSelect::reject() {
    chooser.Form_Unload();
    QDialog::reject();
}

void FrmSelect::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous() && !chooser.IsOpen()) {
        chooser.Form_Load();
        Mirror();
    }
}

/// Keys that no control took, those of the tabs among them.
void FrmSelect::keyPressEvent(QKeyEvent* event) {
    const ChooserKey key = KeyOf(*event);
    Forward([&] { chooser.SSTab1_KeyDown(key); });
    if (key != ChooserKey::Escape) {
        QDialog::keyPressEvent(event);
    }
}

bool FrmSelect::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        chooser.Control_GotFocus(ChooserControl::SSTab1);
    }
    return QDialog::eventFilter(watched, event);
}

void FrmSelect::Mirror() {
    if (!isVisible()) {
        return;
    }
    if (!chooser.IsOpen()) {
        done(topic.ChooserCancelled ? Rejected : Accepted);
        return;
    }
    const QScopedValueRollback fromHere(mirroring, true);
    ssTab1->setCurrentIndex(chooser.Tab() == ChooserTab::Topic ? 0 : 1);
    MirrorTree();
    MirrorIndex();
    QWidget* focus = ControlOf(chooser.Focus());
    if (focusWidget() != focus) {
        focus->setFocus();
    }
}

void FrmSelect::MirrorTree() {
    for (std::size_t node = 0; node < items.size(); ++node) {
        items[node]->setExpanded(chooser.IsExpanded(static_cast<int>(node)));
    }
    treeView1->setCurrentItem(items[static_cast<std::size_t>(chooser.SelectedNode())], 0,
                              QItemSelectionModel::ClearAndSelect);
}

void FrmSelect::MirrorIndex() {
    indexList->setCurrentRow(chooser.IndexRow(), QItemSelectionModel::ClearAndSelect);
    const QString search = ToQString(chooser.SearchText());
    if (text1->text() != search) {
        text1->setText(search);
    }
}

QWidget* FrmSelect::ControlOf(ChooserControl control) const {
    switch (control) {
        case ChooserControl::Text1:
            return text1;
        case ChooserControl::IndexList:
            return indexList;
        case ChooserControl::SSTab1:
            return ssTab1->tabBar();
        case ChooserControl::TreeView1:
            break;
    }
    return treeView1;
}

}  // namespace numerello
