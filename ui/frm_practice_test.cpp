#include "ui/frm_practice_test.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <memory>
#include <utility>

#include "catalogue/topics.h"
#include "ui/dialog_help.h"
#include "ui/frm_print_preview.h"
#include "ui/pointer.h"
#include "ui/screen_room.h"
#include "ui/text.h"
#include "ui/topic_views.h"
#include "ui/typed_key.h"

namespace numerello {

namespace {

constexpr int kMargin = 8;
constexpr int kUsualChoice = 4;  ///< 5 problems
constexpr int kSmallestHeight = 560;

/// A wheel over it scrolls the rows; it must not change how many problems were asked for.
class CountList : public QComboBox {
  public:
    using QComboBox::QComboBox;

  protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

std::vector<TreeNode> AllNodes() {
    TopicChoice none;
    return BuildTopicTree(none, false);
}

/// What a row keeps for its topic's name in a narrow window.
int SmallestNameWidth(const QWidget& window) {
    return WidestTopic(window) / 3;
}

HeadingLines FreshHeading(const Date& today) {
    return HeadingAtOpening("Practice Test", today);
}

}  // namespace

FrmPracticeTest::FrmPracticeTest(TestMaker makeTest, std::optional<HeadingLines>& heading,
                                 PrintDevice& device, const Clock& clock, QWidget* parent)
    : QDialog(parent),
      makeTest(std::move(makeTest)),
      keptHeading(heading),
      device(device),
      clock(clock),
      nodes(AllNodes()) {
    setObjectName(QStringLiteral("frmPracticeTest"));
    setWindowTitle(QStringLiteral("Practice Test"));
    setModal(true);
    OfferHelp(*this, QStringLiteral("practice-tests"));

    MakeTree();
    MakeIndex();
    MakeTabs();
    auto* right = new QVBoxLayout;
    right->addWidget(MakeOutline(), 1);
    this->heading = MakeHeadingGroup(keptHeading.value_or(FreshHeading(clock.Today())), this);
    right->addWidget(this->heading.group);
    right->addLayout(MakeButtons());
    auto* row = new QHBoxLayout(this);
    row->addWidget(ssTab1, TopicsWidth(*this));
    row->addLayout(right, OutlineWidth());
    resize(PreferredSize());
    treeView1->setFocus();
}

void FrmPracticeTest::MakeTree() {
    treeView1 = new QTreeWidget;
    FillTopicTree(*treeView1, nodes);
    children = new ChildrenScroller(*treeView1);
    // In a narrow window captions are scrolled to and not cut.
    treeView1->header()->setStretchLastSection(false);
    treeView1->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    treeView1->setToolTip(QStringLiteral("Enter or a double click puts a topic into the test"));
    treeView1->setCurrentItem(treeView1->topLevelItem(0));
    connect(treeView1, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { ClickNode(*item); });
    connect(treeView1, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { ChooseNode(*item); });
}

void FrmPracticeTest::MakeIndex() {
    search = new QLineEdit;
    search->setObjectName(QStringLiteral("IndexSearch"));
    connect(search, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (const std::optional<int> row = FindIndexRow(text.toStdString())) {
            indexList->setCurrentRow(*row);
            ScrollToFound(*indexList);
        }
    });

    indexList = new QListWidget;
    FillTopicIndex(*indexList);
    indexList->setToolTip(treeView1->toolTip());
    indexList->setCurrentRow(0);
    connect(indexList, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { Choose(item->text().toStdString()); });
}

void FrmPracticeTest::MakeTabs() {
    ssTab1 = new QTabWidget(this);
    ssTab1->setObjectName(QStringLiteral("SSTab1"));
    ssTab1->setAccessibleName(QStringLiteral("Topics"));
    ssTab1->setMinimumWidth(WidestTopic(*this) / 2 + TopicIndentation(*this));
    ssTab1->tabBar()->setAccessibleName(QStringLiteral("Topic or index"));

    auto* topicPage = new QWidget;
    auto* topicColumn = new QVBoxLayout(topicPage);
    topicColumn->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    topicColumn->addWidget(treeView1);
    ssTab1->addTab(topicPage, QStringLiteral("Topic"));
    ssTab1->addTab(MakeIndexPage(*search, *indexList), QStringLiteral("Index"));
    for (QWidget* control : {static_cast<QWidget*>(treeView1), static_cast<QWidget*>(indexList),
                             static_cast<QWidget*>(search)}) {
        control->installEventFilter(this);
    }
}

QWidget* FrmPracticeTest::MakeOutline() {
    auto* outline = new QWidget;
    auto* grid = new QGridLayout(outline);
    grid->setContentsMargins({});
    grid->setVerticalSpacing(kMargin / 2);
    grid->setColumnStretch(0, 1);
    int column = 0;
    for (const char* caption : {"Problem Type", "Number of Problems ", "Complex"}) {
        auto* label = new QLabel(QString::fromLatin1(caption), outline);
        label->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
        if (column == 1) {
            // A number needs less room than the words above it, and the tree can use it.
            label->setWordWrap(true);
            label->setMinimumWidth(
                label->fontMetrics().horizontalAdvance(QStringLiteral("Number of ")));
        }
        grid->addWidget(label, 0, column++);
    }
    for (int i = 0; i < kTestRows; ++i) {
        const Row row = MakeRow(i, outline);
        grid->addWidget(row.Text4, i + 1, 0);
        grid->addWidget(row.Combo1, i + 1, 1);
        grid->addWidget(row.Check1, i + 1, 2, Qt::AlignHCenter);
        rows[static_cast<std::size_t>(i)] = row;
    }
    grid->setRowStretch(kTestRows + 1, 1);

    // On a small screen the rows scroll, so that heading and buttons stay in sight.
    auto* scrolled = new QScrollArea(this);
    scrolled->setWidget(outline);
    scrolled->setWidgetResizable(true);
    scrolled->setFrameShape(QFrame::NoFrame);
    scrolled->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrolled->setFocusPolicy(Qt::NoFocus);
    scrolled->setMinimumWidth(outline->minimumSizeHint().width());
    return scrolled;
}

FrmPracticeTest::Row FrmPracticeTest::MakeRow(int index, QWidget* parent) {
    const QString number = QString::number(index + 1);
    Row row{new QLineEdit(parent), new CountList(parent), new QCheckBox(parent)};
    row.Text4->setObjectName(QStringLiteral("Text4(%1)").arg(index));
    row.Text4->setAccessibleName(QStringLiteral("Problem type of row %1").arg(number));
    row.Text4->setReadOnly(true);
    row.Text4->setMinimumWidth(SmallestNameWidth(*this));
    row.Text4->installEventFilter(this);

    row.Combo1->setObjectName(QStringLiteral("Combo1(%1)").arg(index));
    row.Combo1->setAccessibleName(QStringLiteral("Number of problems of row %1").arg(number));
    // Some desktops tell the choice in place of the name.
    row.Combo1->setAccessibleDescription(row.Combo1->accessibleName());
    row.Combo1->setToolTip(QStringLiteral("How many problems of this topic"));
    for (int count = 1; count <= kMostProblemsOfRow; ++count) {
        row.Combo1->addItem(QString::number(count));
    }
    row.Check1->setObjectName(QStringLiteral("Check1(%1)").arg(index));
    row.Check1->setAccessibleName(QStringLiteral("Complex problems in row %1").arg(number));
    row.Check1->setToolTip(QStringLiteral("Longer numbers and expressions"));
    Fill(row, QString());
    return row;
}

QLayout* FrmPracticeTest::MakeButtons() {
    auto* command2 = MakeButton(QStringLiteral("Command2"), QStringLiteral("Create Practice Test"),
                                QStringLiteral("Make the test up and show it"), this);
    command2->setDefault(true);
    auto* command1 = MakeButton(QStringLiteral("Command1"), QStringLiteral("Cancel"),
                                QStringLiteral("Close without a test"), this);
    connect(command2, &QPushButton::clicked, this, &FrmPracticeTest::Command2_Click);
    connect(command1, &QPushButton::clicked, this, &FrmPracticeTest::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(command2);
    buttons->addWidget(command1);
    return buttons;
}

/// Room for the longest caption in a row.
int FrmPracticeTest::OutlineWidth() const {
    const int smallest = rows.front().Text4->parentWidget()->minimumSizeHint().width();
    return smallest + WidestTopic(*this) - SmallestNameWidth(*this) + 3 * kMargin;
}

QSize FrmPracticeTest::PreferredSize() const {
    const QSize needed(TopicsWidth(*this) + OutlineWidth() + 4 * kMargin,
                       std::max(sizeHint().height(), kSmallestHeight));
    return needed.boundedTo(RoomForDialog(*this));
}

/// The heading is kept however the form closes.
void FrmPracticeTest::done(int result) {
    keptHeading = heading.Texts();
    QDialog::done(result);
}

bool FrmPracticeTest::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (KeyInTopics(watched, key) || KeyInRow(watched, key)) {
            return true;
        }
    }
    if (event->type() == QEvent::FocusOut) {
        ShowBeginning(watched);
    }
    return QDialog::eventFilter(watched, event);
}

bool FrmPracticeTest::KeyInTopics(QObject* watched, int key) {
    const bool moves = key == Qt::Key_Up || key == Qt::Key_Down;
    if (watched == search && moves) {
        const int row = indexList->currentRow() + (key == Qt::Key_Up ? -1 : 1);
        indexList->setCurrentRow(std::clamp(row, 0, indexList->count() - 1));
        return true;
    }
    if (!IsEnter(key)) {
        return false;
    }
    if (watched == treeView1 && treeView1->currentItem() != nullptr) {
        treeView1->currentItem()->setExpanded(true);
        ChooseNode(*treeView1->currentItem());
        return true;
    }
    if ((watched == indexList || watched == search) && indexList->currentItem() != nullptr) {
        Choose(indexList->currentItem()->text().toStdString());
        return true;
    }
    return false;
}

bool FrmPracticeTest::KeyInRow(QObject* watched, int key) {
    if (key != Qt::Key_Delete && key != Qt::Key_Backspace) {
        return false;
    }
    for (Row& row : rows) {
        if (watched == row.Text4) {
            Fill(row, QString());
            return true;
        }
    }
    return false;
}

/// A name that is too long for its row would else be left as the cursor scrolled it.
void FrmPracticeTest::ShowBeginning(QObject* watched) {
    for (Row& row : rows) {
        if (watched == row.Text4) {
            row.Text4->setCursorPosition(0);
        }
    }
}

void FrmPracticeTest::ClickNode(QTreeWidgetItem& item) {
    if (item.childCount() > 0) {
        item.setExpanded(!item.isExpanded());
        children->ShowIn(QApplication::doubleClickInterval());
    }
}

void FrmPracticeTest::ChooseNode(QTreeWidgetItem& item) {
    const TreeNode& node = nodes[static_cast<std::size_t>(NodeOf(item))];
    if (node.key.empty()) {
        Choose(node.caption);
    }
}

/// Into the first free row. A full outline takes nothing more.
void FrmPracticeTest::Choose(std::string_view caption) {
    for (Row& row : rows) {
        if (row.Text4->text().isEmpty()) {
            Fill(row, ToQString(caption));
            return;
        }
    }
}

void FrmPracticeTest::Fill(Row& row, const QString& caption) {
    const bool filled = !caption.isEmpty();
    const QString hint = QStringLiteral("Delete or Backspace empties the row");
    row.Text4->setText(caption);
    row.Text4->setCursorPosition(0);
    row.Text4->setToolTip(filled ? caption + u'\n' + hint : hint);
    row.Combo1->setCurrentIndex(filled ? kUsualChoice : -1);
    row.Combo1->setEnabled(filled);
    row.Check1->setChecked(false);
    row.Check1->setEnabled(filled);
}

std::vector<TestRow> FrmPracticeTest::Outline() const {
    std::vector<TestRow> outline;
    for (const Row& row : rows) {
        if (!row.Text4->text().isEmpty()) {
            outline.push_back({row.Text4->text().toStdString(), row.Combo1->currentText().toInt(),
                               row.Check1->isChecked()});
        }
    }
    return outline;
}

void FrmPracticeTest::Command2_Click() {
    std::unique_ptr<FrmPrintPreview> preview;
    {
        const PointerGuard busy(Qt::WaitCursor);
        preview = std::make_unique<FrmPrintPreview>(
            PreviewOfTest(heading.Texts(), makeTest(Outline()), clock.Today()), device, this);
    }
    preview->exec();
}

}  // namespace numerello
