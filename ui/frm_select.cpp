#include "ui/frm_select.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <utility>

#include "ui/double_click.h"
#include "ui/text.h"
#include "ui/topic_views.h"

namespace numerello {

namespace {

constexpr QSize kSmallest(440, 520);
constexpr int kMargin = 8;
constexpr int kUsualRow = 28;

ChooserKey KeyOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return ChooserKey::Enter;
        case Qt::Key_Escape:
            return ChooserKey::Escape;
        case Qt::Key_Up:
            return ChooserKey::Up;
        case Qt::Key_Right:
            return ChooserKey::Right;
        case Qt::Key_Down:
            return ChooserKey::Down;
        default:
            return ChooserKey::Other;
    }
}

bool MovesThroughList(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return true;
        default:
            return false;
    }
}

bool IsMouse(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseMove ||
           event.type() == QEvent::MouseButtonDblClick ||
           event.type() == QEvent::MouseButtonRelease;
}

}  // namespace

/// A control that tells the chooser of its keys before it takes them itself.
template <class Control>
class FrmSelect::Forwarding : public Control {
  public:
    using KeyDown = void (Chooser::*)(ChooserKey);

    Forwarding(FrmSelect& form, ChooserControl name, KeyDown keyDown)
        : Control(&form), form(form), name(name), keyDown(keyDown) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        form.Forward([&] {
            const ChooserKey key = KeyOf(*event);
            (form.chooser.*keyDown)(key);
            if (key != ChooserKey::Enter && key != ChooserKey::Escape) {
                Control::keyPressEvent(event);
            }
        });
    }

    void focusInEvent(QFocusEvent* event) override {
        Control::focusInEvent(event);
        form.chooser.Control_GotFocus(name);
    }

    FrmSelect& form;

  private:
    ChooserControl name;
    KeyDown keyDown;
};

/// A view that shows what the chooser knows after each click, and takes the left button alone.
template <class View>
class FrmSelect::ForwardingView : public Forwarding<View> {
  public:
    using MouseUp = void (Chooser::*)();

    ForwardingView(FrmSelect& form, ChooserControl name, typename Forwarding<View>::KeyDown keyDown,
                   MouseUp mouseUp = nullptr)
        : Forwarding<View>(form, name, keyDown), mouseUp(mouseUp) {}

  protected:
    bool viewportEvent(QEvent* event) override {
        if (!IsMouse(*event)) {
            return View::viewportEvent(event);
        }
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        if (event->type() != QEvent::MouseMove && mouse.button() != Qt::LeftButton) {
            return true;
        }
        return Mouse(mouse, event);
    }

  private:
    /// While the button is down the row below the pointer is lit, whatever the chooser knows; when
    /// it comes up a row is clicked or the light goes back.
    bool Mouse(const QMouseEvent& mouse, QEvent* event) {
        FrmSelect& form = this->form;
        const QScopedValueRollback byMouse(form.mouseMoves, true);
        if (event->type() != QEvent::MouseButtonRelease) {
            return View::viewportEvent(event);
        }
        const bool wasOpen = form.chooser.IsOpen();
        bool taken = false;
        form.Forward([&] {
            taken = View::viewportEvent(event);
            if (mouseUp != nullptr) {
                (form.chooser.*mouseUp)();
            }
        });
        if (wasOpen && !form.chooser.IsOpen()) {
            SwallowSecondClick(mouse.globalPosition());
        }
        return taken;
    }

    MouseUp mouseUp;
};

/// The keys that move through a list do so in the index while the search box has the focus.
class FrmSelect::SearchBox : public Forwarding<QLineEdit> {
  public:
    using Forwarding<QLineEdit>::Forwarding;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (MovesThroughList(*event)) {
            QCoreApplication::sendEvent(form.indexList, event);
        } else {
            Forwarding<QLineEdit>::keyPressEvent(event);
        }
    }
};

FrmSelect::FrmSelect(TopicChoice& topic, std::vector<TreeNode> nodes, const Clock& clock,
                     RandomSource& random, QWidget* parent)
    : QDialog(parent), topic(topic), chooser(topic, std::move(nodes), clock, random) {
    setObjectName(QStringLiteral("frmSelect"));
    setWindowTitle(QStringLiteral("Choose problem type:"));
    setModal(true);
    childrenTimer.setSingleShot(true);
    connect(&childrenTimer, &QTimer::timeout, this, [this] { ShowChildren(); });

    MakeTree();
    MakeIndex();
    MakeTabs();
    resize(PreferredSize());
}

void FrmSelect::MakeTree() {
    treeView1 = new ForwardingView<QTreeWidget>(*this, ChooserControl::TreeView1,
                                                &Chooser::TreeView1_KeyDown);
    items = FillTopicTree(*treeView1, chooser.Nodes());
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
        // A row must not be scrolled away between the halves of a double click.
        childrenTimer.start(mouseMoves ? QApplication::doubleClickInterval() : 0);
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
    text1->setAccessibleName(QStringLiteral("Search"));
    text1->setPlaceholderText(QStringLiteral("Search"));
    text1->setClearButtonEnabled(true);
    text1->setMinimumHeight(TopicRowHeight(*this));
    text1->setTextMargins(kMargin / 2, 0, kMargin / 2, 0);
    connect(text1, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!mirroring) {
            Forward([&] { chooser.Text1_Change(text.toStdString()); });
            // The topics that begin alike stand below the one found.
            indexList->scrollToItem(indexList->currentItem(), QAbstractItemView::PositionAtTop);
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

    auto* indexPage = new QWidget;
    auto* indexColumn = new QVBoxLayout(indexPage);
    indexColumn->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    indexColumn->setSpacing(kMargin);
    indexColumn->addWidget(text1);
    indexColumn->addWidget(indexList);

    ssTab1 = new QTabWidget(this);
    ssTab1->setObjectName(QStringLiteral("SSTab1"));
    ssTab1->setAccessibleName(QStringLiteral("Topics"));
    ssTab1->addTab(topicPage, QStringLiteral("Topic"));
    ssTab1->addTab(indexPage, QStringLiteral("Index"));
    ssTab1->tabBar()->setAccessibleName(QStringLiteral("Topic or index"));
    ssTab1->tabBar()->installEventFilter(this);
    connect(ssTab1, &QTabWidget::currentChanged, this, [this](int tab) {
        Forward([&] { chooser.SSTab1_Click(tab == 0 ? ChooserTab::Topic : ChooserTab::Index); });
    });

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(ssTab1);
}

/// Room for the longest caption three folders deep, and for the rows of a larger interface font.
QSize FrmSelect::PreferredSize() const {
    const QSize needed(WidestTopic(*this) + 4 * TopicIndentation(*this) + 7 * kMargin,
                       kSmallest.height() * TopicRowHeight(*this) / kUsualRow);
    return needed.expandedTo(kSmallest).boundedTo(screen()->availableSize() * 0.9);
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

/// Hands events on to the chooser. One event may cause others; what comes of them is shown at the
/// end.
template <class Action>
void FrmSelect::Forward(Action action) {
    if (mirroring) {
        return;
    }
    {
        const QScopedValueRollback oneMore(openEvents, openEvents + 1);
        action();
    }
    if (openEvents == 0) {
        Mirror();
    }
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

/// A folder opened at the lower edge would else seem to do nothing.
void FrmSelect::ShowChildren() {
    QTreeWidgetItem* folder = treeView1->currentItem();
    if (folder != nullptr && folder->isExpanded()) {
        treeView1->scrollToItem(folder->child(folder->childCount() - 1));
        treeView1->scrollToItem(folder);
    }
}

}  // namespace numerello
