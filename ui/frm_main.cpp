#include "ui/frm_main.h"

#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QSet>
#include <QToolBar>
#include <QToolButton>
#include <array>
#include <utility>

#include "catalogue/chooser.h"
#include "ui/artwork.h"
#include "ui/desk.h"
#include "ui/frm_select.h"
#include "ui/held_enter.h"
#include "ui/pointer.h"

namespace numerello {

namespace {

constexpr QSize kOpeningSize(1100, 800);
constexpr QSize kSmallestSize(640, 480);
constexpr int kCaptionHeight = 32;  ///< what the desktop adds above a window, at a guess
constexpr int kPictureSize = 48;

struct Entry {
    const char* name;
    const char* caption;
    const char* shortcut = "";
    bool ticks = false;
};

/// An entry without a caption is a separator.
constexpr Entry kSeparator{"", ""};

struct Menu {
    const char* name;
    const char* caption;
    std::array<Entry, 10> entries;
    int count;  ///< of the entries, separators included
};

constexpr std::array kMenus{
    Menu{"mnuFile",
         "&File",
         {Entry{"mnuNew", "&New Problem", "Ctrl+N"}, kSeparator,
          Entry{"mnuPrint", "&Print", "Ctrl+P"}, Entry{"mnuPrintSetup", "P&rint Setup"}, kSeparator,
          Entry{"mnuSave", "Save Problem", "Ctrl+S"}, Entry{"mnuLoad", "Load Problem", "Ctrl+O"},
          kSeparator, Entry{"mnuExit", "&Exit", "Ctrl+Q"}},
         9},
    Menu{"mnuCreate",
         "&Tools",
         {Entry{"mnuSolve", "&Solve!"}, Entry{"mnuExample", "E&xample Problem"},
          Entry{"mnuErase", "Erase &Problem"}, kSeparator, Entry{"mnuGraph", "Create &Graph"},
          Entry{"mnuPracticeTest", "Practice &Test"}, kSeparator, Entry{"mnuExp", "&Explanation"}},
         8},
    Menu{"mnuSpecial",
         "&Functions",
         {Entry{"mnuSquareRoot", "Square &Root"}, Entry{"mnuExponet", "&Exponent (^)"},
          Entry{"mnuAbsValue", "Absolute &Value (|)"}, Entry{"mnuAddition", "&Add (+)"},
          Entry{"mnuSubtraction", "&Subtract (-)"}, Entry{"mnuMultiplication", "&Multiply (*)"},
          Entry{"mnuDivision", "&Divide (/)"}, kSeparator,
          Entry{"mnuConvertDF", "&Fraction/Decimal Conversion"}},
         9},
    Menu{"mnuOptions",
         "&Options",
         {Entry{"mnuPencil", "Use &Pencil", "", true},
          Entry{"mnuShowStep", "&Show Step-By-Step", "", true},
          Entry{"mnuHideWiz", "Show &Wiz Assistant", "", true},
          Entry{"mnuShowLight", "Show &Guided Input Light", "", true}, kSeparator,
          Entry{"mnuChange", "Se&ttings"}},
         6},
    Menu{"mnuHelp",
         "&Help",
         {Entry{"mnuHelpTopics", "Help Topics", "F1"}, Entry{"mnuOnlineSupport", "Online Support"},
          kSeparator, Entry{"mnuAbout", "&About Numerello"}},
         4},
};

/// A menu that the right button opens.
struct PopUp {
    const char* menu;
    const char* name;
    const char* caption;
    const char* command;  ///< the entry of the menu bar that it stands for
    bool ticks;           ///< whether it shows that entry's tick
};

constexpr std::array kPopUps{
    PopUp{"mnuHidden", "mnuHide", "&Hide", "mnuHideWiz", false},
    PopUp{"mnuHidden", "mnuHideOptions", "&Options...", "mnuChange", false},
    PopUp{"mnuHidden2", "mnuUsePencil", "Use &Pencil", "mnuPencil", true},
    PopUp{"mnuHidden3", "mnuHideLight", "&Hide Guided Input Light", "mnuShowLight", false},
};

struct WebEntry {
    const char* name;
    const char* caption;
};
constexpr std::array kWebEntries{WebEntry{"mnuAlgSol", "Numerello &Solved!"},
                                 WebEntry{"mnuHomePage", "Vantrel &Home Page"}};

/// A button of the toolbar: its key, and the menu entry that it stands for. An empty key is a
/// separator.
struct Button {
    const char* key;
    const char* command;
    const char* toolTip;
};

constexpr std::array kButtons{
    Button{"new", "mnuNew", "New Problem"},
    Button{"", "", ""},
    Button{"save", "mnuSave", "Save Problem"},
    Button{"open", "mnuLoad", "Load Problem"},
    Button{"print", "mnuPrint", "Print"},
    Button{"", "", ""},
    Button{"practice", "mnuPracticeTest", "Practice Test"},
    Button{"graph", "mnuGraph", "Graph"},
    Button{"", "", ""},
    Button{"solve", "mnuSolve", "Solve!"},
    Button{"", "", ""},
    Button{"example", "mnuExample", "Example"},
    Button{"clear", "mnuErase", "Erase"},
    Button{"", "", ""},
    Button{"root", "mnuSquareRoot", "Insert Root"},
    Button{"power", "mnuExponet", "Insert Exponent"},
    Button{"", "", ""},
    Button{"fracdec", "mnuConvertDF", "Convert Between Fraction and Decimal Format"},
    Button{"", "", ""},
    Button{"web", "mnuHomePage", "Vantrel on the Web"},
};

/// An entry that types a key on the line.
struct Function {
    const char* command;
    const char* key;
};

constexpr std::array kFunctions{
    Function{"mnuSquareRoot", "~"},  Function{"mnuExponet", "^"},
    Function{"mnuAbsValue", "|"},    Function{"mnuAddition", "+"},
    Function{"mnuSubtraction", "-"}, Function{"mnuMultiplication", "*"},
    Function{"mnuDivision", "/"},
};

}  // namespace

FrmMain::FrmMain() {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Vantrel - Numerello"));
    setMinimumSize(kSmallestSize);
    // The frame's own menu would offer to take the toolbar away.
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(new Desk(this));
    MakeMenus();
    MakePopUps();
    MakeToolbar();

    Command("mnuShowStep")->setChecked(problem.settings.mnuShowStep);
    Command("mnuHideWiz")->setChecked(true);
    Command("mnuShowLight")->setChecked(true);
    Command("mnuPencil")->setChecked(true);
    OnTrigger("mnuNew", &FrmMain::mnuNew_Click);
    OnTrigger("mnuSolve", &FrmMain::mnuSolve_Click);
    OnTrigger("mnuExample", &FrmMain::mnuExample_Click);
    OnTrigger("mnuErase", &FrmMain::mnuErase_Click);
    OnTrigger("mnuExp", &FrmMain::mnuExp_Click);
    OnTrigger("mnuShowStep", &FrmMain::mnuShowStep_Click);
    OnTrigger("mnuHideWiz", &FrmMain::mnuHideWiz_Click);
    OnTrigger("mnuShowLight", &FrmMain::mnuShowLight_Click);
    OnTrigger("mnuPencil", &FrmMain::mnuPencil_Click);
    OnTrigger("mnuConvertDF", &FrmMain::mnuConvertDF_Click);
    OnTrigger("mnuExit", &FrmMain::mnuExit_Click);
    ConnectFunctions();
    ShowNumberForm();
    UpdateCommands();
}

void FrmMain::Open() {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    if (screen.width() < kOpeningSize.width() ||
        screen.height() < kOpeningSize.height() + kCaptionHeight) {
        // Known before the desktop has answered, so that the chooser opens in its middle.
        setGeometry(screen);
        showMaximized();
        return;
    }
    QRect place(QPoint(), kOpeningSize);
    place.moveCenter(screen.center());
    setGeometry(place);
    show();
}

void FrmMain::MakeMenus() {
    for (const Menu& menu : kMenus) {
        QMenu* made = menuBar()->addMenu(QString::fromUtf8(menu.caption));
        made->setObjectName(QString::fromUtf8(menu.name));
        for (int i = 0; i < menu.count; ++i) {
            const Entry& entry = menu.entries[static_cast<std::size_t>(i)];
            if (*entry.name == '\0') {
                made->addSeparator();
                continue;
            }
            QAction* action = made->addAction(QString::fromUtf8(entry.caption));
            action->setObjectName(QString::fromUtf8(entry.name));
            action->setShortcut(QKeySequence(QString::fromUtf8(entry.shortcut)));
            action->setCheckable(entry.ticks);
            action->setIconVisibleInMenu(false);
            commands.insert(action->objectName(), action);
        }
        if (made->objectName() == QLatin1String("mnuHelp")) {
            auto* web = new QMenu(QStringLiteral("Vantrel on the &Web"), made);
            web->setObjectName(QStringLiteral("mnuWeb"));
            for (const WebEntry& entry : kWebEntries) {
                QAction* action = web->addAction(QString::fromUtf8(entry.caption));
                action->setObjectName(QString::fromUtf8(entry.name));
                action->setIconVisibleInMenu(false);
                commands.insert(action->objectName(), action);
            }
            made->insertMenu(Command("mnuOnlineSupport"), web);
        }
    }
}

/// The menus of the right button. Their entries stand for those of the menu bar.
void FrmMain::MakePopUps() {
    for (const PopUp& row : kPopUps) {
        auto* menu = findChild<QMenu*>(QLatin1String(row.menu));
        if (menu == nullptr) {
            menu = new QMenu(this);
            menu->setObjectName(QString::fromUtf8(row.menu));
        }
        QAction* action = menu->addAction(QString::fromUtf8(row.caption));
        action->setObjectName(QString::fromUtf8(row.name));
        QAction* command = Command(row.command);
        connect(action, &QAction::triggered, command, &QAction::trigger);
        connect(command, &QAction::enabledChanged, action, &QAction::setEnabled);
        if (row.ticks) {
            action->setCheckable(true);
            connect(command, &QAction::toggled, action, &QAction::setChecked);
        }
    }
}

void FrmMain::PopUpMenu(const char* name, QPoint place) {
    findChild<QMenu*>(QLatin1String(name))->popup(place);
}

void FrmMain::MakeToolbar() {
    auto* toolbar = addToolBar(QStringLiteral("Toolbar"));
    toolbar->setObjectName(QStringLiteral("Toolbar1"));
    toolbar->setMovable(false);
    toolbar->setIconSize({kPictureSize, kPictureSize});
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const Button& button : kButtons) {
        if (*button.key == '\0') {
            toolbar->addSeparator();
            continue;
        }
        QAction* action = Command(button.command);
        action->setIcon(ToolbarIcon(QString::fromUtf8(button.key)));
        action->setToolTip(QString::fromUtf8(button.toolTip));
        toolbar->addAction(action);
        QWidget* widget = toolbar->widgetForAction(action);
        widget->setObjectName(QString::fromUtf8(button.key));
        widget->setAccessibleName(QString::fromUtf8(button.toolTip));
        // Keys go on to the sheet after a click on a button.
        widget->setFocusPolicy(Qt::NoFocus);
    }
}

void FrmMain::OnTrigger(const char* name, void (FrmMain::*procedure)()) {
    connect(Command(name), &QAction::triggered, this, [this, procedure] { (this->*procedure)(); });
}

void FrmMain::ConnectFunctions() {
    for (const Function& function : kFunctions) {
        connect(Command(function.command), &QAction::triggered, this,
                [this, key = function.key] { paper->Form_KeyPress(key); });
    }
}

void FrmMain::mnuNew_Click() {
    const SavedTopic saved(problem.topic);
    std::vector<TreeNode> nodes;
    {
        const PointerGuard busy(Qt::BusyCursor);
        nodes = BuildTopicTree(problem.topic, true);
    }
    const HeldEnterGuard oneEnter;
    FrmSelect chooser(problem.topic, std::move(nodes), clock, random, this);
    chooser.exec();
    if (!saved.RestoreWhenCancelled(problem.topic)) {
        LoadPaper();
    }
}

void FrmMain::AskForFirstTopic() {
    if (!std::exchange(askedForTopic, true)) {
        mnuNew_Click();
    }
}

void FrmMain::LoadPaper() {
    // The old form goes first: it plays the same problem.
    delete takeCentralWidget();
    paper = new FrmPaper(problem, learner, this);
    setCentralWidget(paper);
    paper->show();
    paper->ShowLight(Command("mnuShowLight")->isChecked());
    paper->UsePencil(Command("mnuPencil")->isChecked());
    connect(paper, &FrmPaper::Changed, this, &FrmMain::UpdateCommands);
    connect(paper, &FrmPaper::PencilMenuAsked, this,
            [this](QPoint place) { PopUpMenu("mnuHidden2", place); });
    connect(paper, &FrmPaper::LightMenuAsked, this,
            [this](QPoint place) { PopUpMenu("mnuHidden3", place); });
    connect(paper, &FrmPaper::WizMenuAsked, this,
            [this](QPoint place) { PopUpMenu("mnuHidden", place); });
    if (Command("mnuHideWiz")->isChecked()) {
        paper->ShowWiz(true);
    }
    paper->setFocus();
    UpdateCommands();
}

void FrmMain::UpdateCommands() {
    const bool open = paper != nullptr;
    QSet<QString> enabled{QStringLiteral("mnuNew"),       QStringLiteral("mnuConvertDF"),
                          QStringLiteral("mnuShowStep"),  QStringLiteral("mnuHideWiz"),
                          QStringLiteral("mnuShowLight"), QStringLiteral("mnuPencil"),
                          QStringLiteral("mnuExit")};
    if (open) {
        enabled.insert(QStringLiteral("mnuExample"));
        enabled.insert(QStringLiteral("mnuErase"));
        enabled.insert(QStringLiteral("mnuExp"));
    }
    if (open && problem.controls.SolveEnabled) {
        enabled.insert(QStringLiteral("mnuSolve"));
    }
    if (open && paper->TakesKeys()) {
        for (const Function& function : kFunctions) {
            enabled.insert(QString::fromUtf8(function.command));
        }
    }
    for (QAction* action : std::as_const(commands)) {
        action->setEnabled(enabled.contains(action->objectName()));
    }
}

void FrmMain::ShowNumberForm() {
    const bool fractions = problem.settings.UseFractions;
    Command("mnuConvertDF")
        ->setIcon(ToolbarIcon(fractions ? QStringLiteral("fracdec") : QStringLiteral("fracdec2")));
}

void FrmMain::mnuSolve_Click() {
    paper->compute_Click();
}

void FrmMain::mnuExample_Click() {
    paper->example_Click(clock);
}

void FrmMain::mnuErase_Click() {
    paper->clear_Click();
}

void FrmMain::mnuExp_Click() {
    paper->mnuExp_Click();
}

void FrmMain::mnuShowStep_Click() {
    const bool ticked = Command("mnuShowStep")->isChecked();
    problem.settings.mnuShowStep = ticked;
    if (paper != nullptr) {
        paper->mnuShowStep_Click(ticked);
    }
}

void FrmMain::mnuHideWiz_Click() {
    if (paper != nullptr) {
        paper->ShowWiz(Command("mnuHideWiz")->isChecked());
    }
}

void FrmMain::mnuShowLight_Click() {
    if (paper != nullptr) {
        paper->ShowLight(Command("mnuShowLight")->isChecked());
    }
}

void FrmMain::mnuPencil_Click() {
    if (paper != nullptr) {
        paper->UsePencil(Command("mnuPencil")->isChecked());
    }
}

void FrmMain::mnuConvertDF_Click() {
    problem.settings.UseFractions = !problem.settings.UseFractions;
    ShowNumberForm();
}

void FrmMain::mnuExit_Click() {
    close();
}

}  // namespace numerello
