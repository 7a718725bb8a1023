#include "ui/frm_help.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <optional>

#include "core/text.h"
#include "ui/artwork.h"
#include "ui/font_metrics.h"
#include "ui/help_contents.h"
#include "ui/help_files.h"
#include "ui/help_results.h"
#include "ui/help_view.h"
#include "ui/named_action.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr QSize kOpeningSize(1060, 760);
constexpr int kGap = 8;
constexpr int kSideLetters = 44;  ///< width of the contents, in letters of the interface font
constexpr int kFewestLetters = 26;
constexpr int kToolPicture = 24;
constexpr int kSmallestPicture = 20;  ///< of chapters and pages
constexpr auto kHome = "welcome";

QStringList WordsOf(const QString& query) {
    return query.simplified().split(u' ', Qt::SkipEmptyParts);
}

}  // namespace

FrmHelp::FrmHelp(QWidget* parent)
    : QWidget(parent, Qt::Window), index(ReadHelpFile("contents.txt")), view(new HelpView(this)) {
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

    SizeIcons();
    connect(view, &HelpView::PageShown, this, &FrmHelp::MirrorPage);
    connect(view, &HelpView::ExampleAsked, this, [this](const QString& name) {
        // It would stand over the sheet.
        close();
        emit ExampleAsked(ReadHelpFile(Text(name.toStdString(), ".nrl")));
    });
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
    contents = new HelpContents(index, whole);
    results = new HelpResults(index, whole);
    connect(search, &QLineEdit::textChanged, this, &FrmHelp::Search);
    connect(search, &QLineEdit::returnPressed, results, &HelpResults::Choose);
    connect(contents, &HelpContents::Chosen, this, &FrmHelp::OpenContents);
    connect(results, &HelpResults::Chosen, this, &FrmHelp::OpenRow);

    side = new QStackedWidget(whole);
    side->addWidget(contents);
    side->addWidget(results);
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(kGap, kGap, 0, kGap);
    layout->setSpacing(kGap);
    layout->addWidget(search);
    layout->addWidget(side, 1);
    return whole;
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

/// The button of a command, with its picture.
void FrmHelp::AddButton(QToolBar& bar, QAction& action) {
    action.setIcon(ArtworkIcon(QStringLiteral("help/") + action.objectName()));
    action.setToolTip(QStringLiteral("%1 (%2)").arg(
        action.text(), action.shortcut().toString(QKeySequence::NativeText)));
    bar.addAction(&action);
    if (auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(&action))) {
        button->setObjectName(action.objectName() + QStringLiteral("Button"));
        button->setAccessibleName(action.text());
        button->setFocusPolicy(Qt::TabFocus);
    }
}

QAction& FrmHelp::Command(const char* name) const {
    return NamedAction(commands, name);
}

void FrmHelp::MakeCommands(QToolBar* bar) {
    /// The name is that of the picture too. Without a name it is a separator, without a caption a
    /// key without a button.
    struct Row {
        const char* name = "";
        const char* caption = "";
        const char* shortcuts = "";
        void (FrmHelp::*procedure)() = nullptr;
    };
    constexpr auto kRows = std::to_array<Row>({
        {"back", "Back", "Alt+Left; Back", &FrmHelp::GoBack},
        {"forward", "Forward", "Alt+Right; Forward", &FrmHelp::GoForward},
        {"home", "Home", "Alt+Home", &FrmHelp::GoHome},
        {},
        {"previous", "Previous", "Ctrl+PgUp", &FrmHelp::GoToPrevious},
        {"next", "Next", "Ctrl+PgDown", &FrmHelp::GoToNext},
        {},
        {"smaller", "Smaller", "Ctrl+-", &FrmHelp::ZoomOut},
        {"larger", "Larger", "Ctrl++; Ctrl+=", &FrmHelp::ZoomIn},

        {"find", "", "Ctrl+F", &FrmHelp::Find},
        {"usualSize", "", "Ctrl+0", &FrmHelp::ZoomAsUsual},
        {"helpOnHelp", "", "F1", &FrmHelp::ShowHelpOnHelp},
    });
    for (const Row& row : kRows) {
        if (row.procedure == nullptr) {
            bar->addSeparator();
            continue;
        }
        const QString name = QString::fromLatin1(row.name);
        const QString caption = QString::fromLatin1(row.caption);
        auto* action = new QAction(caption, this);
        action->setObjectName(name);
        action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(row.shortcuts)));
        connect(action, &QAction::triggered, this,
                [this, procedure = row.procedure] { (this->*procedure)(); });
        caption.isEmpty() ? addAction(action) : AddButton(*bar, *action);
        commands.insert(name, action);
    }
    Command("back").setEnabled(false);
    Command("forward").setEnabled(false);
    connect(view, &HelpView::backwardAvailable, &Command("back"), &QAction::setEnabled);
    connect(view, &HelpView::forwardAvailable, &Command("forward"), &QAction::setEnabled);
}

/// Pictures grow with the interface font.
void FrmHelp::SizeIcons() {
    const QSize size = QSize(1, 1) * std::max(kSmallestPicture, fontMetrics().height());
    contents->setIconSize(size);
    results->SetIconSize(size);
}

void FrmHelp::ShowTopic(std::string_view caption) {
    const QString page = ToQString(PageName(caption));
    ShowPage(index.RowOf(PageName(caption)) ? page : QString::fromLatin1(kHome));
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
    const bool searching = !search->text().simplified().isEmpty();
    results->Show(index.Search(search->text().toStdString()));
    side->setCurrentWidget(searching ? static_cast<QWidget*>(results) : contents);
    view->MarkWords(searching ? WordsOf(search->text()) : QStringList());
}

const std::string& FrmHelp::PageOf(int row) const {
    return index.Rows()[static_cast<std::size_t>(row)].page;
}

void FrmHelp::OpenRow(int row) {
    view->ShowPage(ToQString(PageOf(row)));
}

/// A chapter has no page, and the page on show is left as it is.
void FrmHelp::OpenContents(int row) {
    if (!PageOf(row).empty() && view->Page().toStdString() != PageOf(row)) {
        OpenRow(row);
    }
}

/// Lights the row of the page on show.
void FrmHelp::MirrorPage() {
    const std::string page = view->Page().toStdString();
    Command("previous").setEnabled(!index.PageBeside(page, -1).empty());
    Command("next").setEnabled(!index.PageBeside(page, 1).empty());
    if (const std::optional<int> row = index.RowOf(page)) {
        contents->Light(*row);
    }
}

void FrmHelp::GoBeside(int steps) {
    const std::string page = index.PageBeside(view->Page().toStdString(), steps);
    if (!page.empty()) {
        view->ShowPage(ToQString(page));
    }
}

void FrmHelp::GoBack() {
    view->backward();
}

void FrmHelp::GoForward() {
    view->forward();
}

void FrmHelp::GoHome() {
    view->ShowPage(QString::fromLatin1(kHome));
}

void FrmHelp::GoToPrevious() {
    GoBeside(-1);
}

void FrmHelp::GoToNext() {
    GoBeside(1);
}

void FrmHelp::ZoomOut() {
    view->StepZoom(-1);
    MirrorZoom();
}

void FrmHelp::ZoomIn() {
    view->StepZoom(1);
    MirrorZoom();
}

void FrmHelp::ZoomAsUsual() {
    view->ZoomAsUsual();
    MirrorZoom();
}

void FrmHelp::MirrorZoom() {
    Command("smaller").setEnabled(view->CanZoomOut());
    Command("larger").setEnabled(view->CanZoomIn());
}

void FrmHelp::Find() {
    search->setFocus(Qt::ShortcutFocusReason);
    search->selectAll();
}

void FrmHelp::ShowHelpOnHelp() {
    view->ShowPage(QStringLiteral("this-help"));
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
    if (event->type() == QEvent::KeyPress && !results->IsEmpty()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            results->Move(key == Qt::Key_Down ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace numerello
