#include "ui/frm_help.h"

#include <QAction>
#include <QFile>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "ui/artwork.h"
#include "ui/font_metrics.h"
#include "ui/help_view.h"
#include "ui/text.h"

/// The pages lie in a static library, where nobody asks for them by themselves. The macro works
/// outside of all namespaces alone.
static void LoadHelpPages() {
    Q_INIT_RESOURCE(help);
}

namespace numerello {

namespace {

constexpr QSize kOpeningSize(1060, 760);
constexpr int kGap = 8;
constexpr int kSideLetters = 44;  ///< width of the contents, in letters of the interface font
constexpr int kFewestLetters = 26;
constexpr int kToolPicture = 24;
constexpr int kSmallestPicture = 20;  ///< of chapters and pages
constexpr auto kHome = "welcome";

constexpr std::array kZooms{50, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300};

std::string ContentsText() {
    LoadHelpPages();
    QFile file(QStringLiteral(":/help/contents.txt"));
    file.open(QIODevice::ReadOnly);
    return file.readAll().toStdString();
}

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

QStringList WordsOf(const QString& query) {
    return query.simplified().split(u' ', Qt::SkipEmptyParts);
}

}  // namespace

FrmHelp::FrmHelp(QWidget* parent)
    : QWidget(parent, Qt::Window), index(ContentsText()), view(new HelpView(this)) {
    LoadSheetFont();
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(QStringLiteral("Numerello Help"));
    view->setObjectName(QStringLiteral("page"));
    view->setAccessibleName(QStringLiteral("Page"));

    auto* split = new QSplitter(this);
    split->setObjectName(QStringLiteral("split"));
    split->setChildrenCollapsible(false);
    split->addWidget(MakeSide());
    split->addWidget(view);
    split->setStretchFactor(1, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(MakeToolbar());
    layout->addWidget(split, 1);

    FillContents();
    connect(view, &HelpView::PageShown, this, &FrmHelp::MirrorPage);
    view->ShowPage(QString::fromLatin1(kHome));
    const int wanted = fontMetrics().averageCharWidth() * kSideLetters;
    resize(kOpeningSize.expandedTo({wanted * 3, wanted * 2})
               .boundedTo(screen()->availableGeometry().size() * 0.95));
    const int sideWidth = std::min(wanted, width() * 2 / 5);
    split->setSizes({sideWidth, width() - sideWidth});
}

QWidget* FrmHelp::MakeSide() {
    auto* whole = new QWidget(this);
    whole->setMinimumWidth(fontMetrics().averageCharWidth() * kFewestLetters);
    search = new QLineEdit(whole);
    search->setObjectName(QStringLiteral("search"));
    search->setPlaceholderText(QStringLiteral("Search"));
    search->setAccessibleName(QStringLiteral("Search"));
    search->setClearButtonEnabled(true);
    search->installEventFilter(this);
    connect(search, &QLineEdit::textChanged, this, &FrmHelp::Search);
    connect(search, &QLineEdit::returnPressed, this,
            [this] { OpenResult(std::max(0, results->currentRow())); });

    contents = new QTreeWidget(whole);
    contents->setObjectName(QStringLiteral("contents"));
    contents->setAccessibleName(QStringLiteral("Contents"));
    contents->setHeaderHidden(true);
    contents->setWordWrap(true);
    contents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    contents->setItemDelegate(new BrokenTitles(contents));
    // How high a row is depends on where it is broken; the tree does not look again by itself.
    connect(contents->header(), &QHeaderView::sectionResized, contents, &QTreeWidget::doItemsLayout,
            Qt::QueuedConnection);
    connect(contents, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { OpenContents(item); });
    connect(contents, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        OpenContents(item);
        item->setExpanded(!item->isExpanded());
    });

    resultsSide = new QWidget(whole);
    found = new QLabel(resultsSide);
    found->setObjectName(QStringLiteral("found"));
    results = new QListWidget(resultsSide);
    results->setObjectName(QStringLiteral("results"));
    results->setAccessibleName(QStringLiteral("Pages found"));
    results->setWordWrap(true);
    results->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(results, &QListWidget::currentRowChanged, this, &FrmHelp::OpenResult);
    connect(results, &QListWidget::itemClicked, this,
            [this] { OpenResult(results->currentRow()); });
    auto* resultsLayout = new QVBoxLayout(resultsSide);
    resultsLayout->setContentsMargins(0, 0, 0, 0);
    resultsLayout->addWidget(found);
    resultsLayout->addWidget(results, 1);

    side = new QStackedWidget(whole);
    side->addWidget(contents);
    side->addWidget(resultsSide);
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(kGap, kGap, 0, kGap);
    layout->setSpacing(kGap);
    layout->addWidget(search);
    layout->addWidget(side, 1);
    return whole;
}

QAction* FrmHelp::AddCommand(QToolBar* bar, const char* name, const QString& caption,
                             const QString& picture, const QList<QKeySequence>& shortcuts) {
    auto* action = bar->addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    action->setIcon(ArtworkIcon(QStringLiteral("help/") + picture));
    action->setShortcuts(shortcuts);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(
        caption, shortcuts.first().toString(QKeySequence::NativeText)));
    if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action))) {
        button->setObjectName(QString::fromLatin1(name) + QStringLiteral("Button"));
        button->setAccessibleName(caption);
        button->setFocusPolicy(Qt::TabFocus);
    }
    return action;
}

QToolBar* FrmHelp::MakeToolbar() {
    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("toolbar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    const int picture = std::max(kToolPicture, fontMetrics().height() * 3 / 2);
    bar->setIconSize({picture, picture});
    MakeCommands(bar);
    return bar;
}

void FrmHelp::MakeCommands(QToolBar* bar) {
    const auto key = [](const char* text) { return QKeySequence(QString::fromLatin1(text)); };
    auto* back = AddCommand(bar, "back", QStringLiteral("Back"), QStringLiteral("back"),
                            {key("Alt+Left"), QKeySequence(Qt::Key_Back)});
    auto* forward = AddCommand(bar, "forward", QStringLiteral("Forward"), QStringLiteral("forward"),
                               {key("Alt+Right"), QKeySequence(Qt::Key_Forward)});
    auto* home =
        AddCommand(bar, "home", QStringLiteral("Home"), QStringLiteral("home"), {key("Alt+Home")});
    bar->addSeparator();
    previous = AddCommand(bar, "previous", QStringLiteral("Previous"), QStringLiteral("previous"),
                          {key("Ctrl+PgUp")});
    next = AddCommand(bar, "next", QStringLiteral("Next"), QStringLiteral("next"),
                      {key("Ctrl+PgDown")});
    bar->addSeparator();
    smaller = AddCommand(bar, "smaller", QStringLiteral("Smaller"), QStringLiteral("smaller"),
                         {key("Ctrl+-")});
    larger = AddCommand(bar, "larger", QStringLiteral("Larger"), QStringLiteral("larger"),
                        {key("Ctrl++"), key("Ctrl+=")});

    back->setEnabled(false);
    forward->setEnabled(false);
    connect(view, &HelpView::backwardAvailable, back, &QAction::setEnabled);
    connect(view, &HelpView::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, view, &HelpView::backward);
    connect(forward, &QAction::triggered, view, &HelpView::forward);
    connect(home, &QAction::triggered, this,
            [this] { view->ShowPage(QString::fromLatin1(kHome)); });
    connect(previous, &QAction::triggered, this, [this] { GoBeside(-1); });
    connect(next, &QAction::triggered, this, [this] { GoBeside(1); });
    connect(smaller, &QAction::triggered, this, [this] { StepZoom(-1); });
    connect(larger, &QAction::triggered, this, [this] { StepZoom(1); });

    // Without buttons.
    const auto addKey = [this, &key](const char* name, const char* shortcut) {
        auto* action = new QAction(this);
        action->setObjectName(QString::fromLatin1(name));
        action->setShortcut(key(shortcut));
        addAction(action);
        return action;
    };
    connect(addKey("find", "Ctrl+F"), &QAction::triggered, this, [this] {
        search->setFocus(Qt::ShortcutFocusReason);
        search->selectAll();
    });
    connect(addKey("usualSize", "Ctrl+0"), &QAction::triggered, this, [this] {
        view->SetZoom(HelpView::kUsualZoom);
        StepZoom(0);
    });
    connect(addKey("helpOnHelp", "F1"), &QAction::triggered, this,
            [this] { view->ShowPage(QStringLiteral("this-help")); });
}

void FrmHelp::FillContents() {
    QList<QTreeWidgetItem*> above;  // the last item of each depth
    for (const ContentsRow& row : index.Rows()) {
        const QStringList title{ToQString(row.title)};
        auto* item = row.depth == 0 ? new QTreeWidgetItem(contents, title)
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
    SizeIcons();
    items.first()->setExpanded(true);
}

/// Pictures grow with the interface font.
void FrmHelp::SizeIcons() {
    const QSize size = QSize(1, 1) * std::max(kSmallestPicture, fontMetrics().height());
    contents->setIconSize(size);
    results->setIconSize(size);
}

void FrmHelp::ShowTopic(std::string_view caption) {
    const QString page = ToQString(PageName(caption));
    ShowPage(index.RowOf(PageName(caption)) < 0 ? QString::fromLatin1(kHome) : page);
}

void FrmHelp::ShowPage(const QString& name) {
    if (!name.isEmpty()) {
        view->ShowPage(name);
    }
    Raise();
}

void FrmHelp::Raise() {
    if (isMinimized()) {
        showNormal();
    }
    show();
    raise();
    activateWindow();
    view->setFocus();
    // Before it was shown the tree did not know how much of it is seen.
    contents->scrollToItem(contents->currentItem(), QAbstractItemView::PositionAtCenter);
}

void FrmHelp::Search() {
    const std::vector<int> rows = index.Search(search->text().toStdString());
    const bool searching = !search->text().simplified().isEmpty();
    {
        const QSignalBlocker noChoiceYet(results);
        results->clear();
        resultRows = QList<int>(rows.begin(), rows.end());
        for (const int row : rows) {
            auto* item = new QListWidgetItem(items.at(row)->text(0), results);
            item->setIcon(items.at(row)->icon(0));
        }
    }
    found->setText(rows.empty()       ? QStringLiteral("No page has these words.")
                   : rows.size() == 1 ? QStringLiteral("1 page")
                                      : QStringLiteral("%1 pages").arg(rows.size()));
    side->setCurrentWidget(searching ? resultsSide : contents);
    view->MarkWords(searching ? WordsOf(search->text()) : QStringList());
}

void FrmHelp::OpenResult(int row) {
    if (row >= 0 && row < resultRows.size()) {
        const QSignalBlocker openedAlready(results);
        results->setCurrentRow(row);
        view->ShowPage(ToQString(index.Rows()[static_cast<std::size_t>(resultRows.at(row))].page));
    }
}

void FrmHelp::OpenContents(QTreeWidgetItem* item) {
    const auto row = items.indexOf(item);
    if (row < 0) {
        return;
    }
    const std::string& page = index.Rows()[static_cast<std::size_t>(row)].page;
    if (!page.empty() && view->Page().toStdString() != page) {
        view->ShowPage(ToQString(page));
    }
}

/// Lights the row of the page on show.
void FrmHelp::MirrorPage() {
    const std::string page = view->Page().toStdString();
    const int row = index.RowOf(page);
    previous->setEnabled(!index.PageBeside(page, -1).empty());
    next->setEnabled(!index.PageBeside(page, 1).empty());
    if (row >= 0) {
        const QSignalBlocker openedAlready(contents);
        contents->setCurrentItem(items.at(row));
        contents->scrollToItem(items.at(row));
    }
}

void FrmHelp::GoBeside(int steps) {
    const std::string page = index.PageBeside(view->Page().toStdString(), steps);
    if (!page.empty()) {
        view->ShowPage(ToQString(page));
    }
}

void FrmHelp::StepZoom(int steps) {
    const auto* const at = std::find(kZooms.begin(), kZooms.end(), view->Zoom());
    const int last = static_cast<int>(kZooms.size()) - 1;
    const int place = std::clamp(static_cast<int>(at - kZooms.begin()) + steps, 0, last);
    view->SetZoom(kZooms[static_cast<std::size_t>(place)]);
    smaller->setEnabled(place > 0);
    larger->setEnabled(place < last);
}

void FrmHelp::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (search->hasFocus() && !search->text().isEmpty()) {
        search->clear();
    } else {
        close();
    }
}

void FrmHelp::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && contents != nullptr) {
        SizeIcons();
    }
}

/// Up and Down move through the pages found while the search box has the focus.
bool FrmHelp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && !resultRows.isEmpty()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            const int row = results->currentRow() + (key == Qt::Key_Down ? 1 : -1);
            OpenResult(std::clamp(row, 0, static_cast<int>(resultRows.size()) - 1));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace numerello
