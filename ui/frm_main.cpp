#include "ui/frm_main.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QScreen>
#include <QUrl>
#include <array>
#include <chrono>
#include <utility>

#include "catalogue/chooser.h"
#include "catalogue/topic_tree.h"
#include "core/problem_file.h"
#include "ui/artwork.h"
#include "ui/desk.h"
#include "ui/frm_about.h"
#include "ui/frm_options.h"
#include "ui/frm_select.h"
#include "ui/held_enter.h"
#include "ui/pointer.h"
#include "ui/screen_room.h"
#include "ui/text.h"
#include "ui/web_pages.h"

namespace numerello {

namespace {

constexpr QSize kOpeningSize(1100, 800);
constexpr QSize kSmallestSize(640, 480);
constexpr std::chrono::seconds kAddressTime(20);  ///< to be copied down

}  // namespace

FrmMain::FrmMain(SettingsStore& store, std::string documents, std::string StartFile)
    : store(store),
      files(std::move(documents), fileDialog),
      startFile(StartFilePath(StartFile).empty() ? std::string() : std::move(StartFile)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Vantrel - Numerello"));
    setMinimumSize(kSmallestSize);
    setAcceptDrops(true);
    // The frame's own menu would offer to take the toolbar away.
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(new Desk(this));
    setStatusBar(status);

    ShowSettings(ReadSettings(store));
    ConnectCommands();
    connect(&windows, &FrameWindows::ExampleAsked, this, &FrmMain::LoadExample);
    UpdateCommands();
}

FrmMain::~FrmMain() {
    // The form plays the frame's problem, and so goes before it.
    delete takeCentralWidget();
}

void FrmMain::ShowSettings(const Settings& settings) {
    problem.settings = settings.answers;
    commands.At("mnuPencil").setChecked(settings.mnuPencil);
    commands.At("mnuShowStep").setChecked(settings.answers.mnuShowStep);
    commands.At("mnuHideWiz").setChecked(settings.mnuHideWiz);
    commands.At("mnuShowLight").setChecked(settings.mnuShowLight);
    ShowNumberForm();
}

Settings FrmMain::CurrentSettings() const {
    return {problem.settings, IsTicked("mnuPencil"), IsTicked("mnuHideWiz"),
            IsTicked("mnuShowLight")};
}

/// A command without a row here would stay grey.
void FrmMain::ConnectCommands() {
    struct Row {
        const char* command;
        void (FrmMain::*procedure)();
    };
    constexpr auto kRows = std::to_array<Row>({
        {"mnuNew", &FrmMain::mnuNew_Click},
        {"mnuPrint", &FrmMain::mnuPrint_Click},
        {"mnuPrintSetup", &FrmMain::mnuPrintSetup_Click},
        {"mnuSave", &FrmMain::mnuSave_Click},
        {"mnuLoad", &FrmMain::mnuLoad_Click},
        {"mnuExit", &FrmMain::mnuExit_Click},

        {"mnuSolve", &FrmMain::mnuSolve_Click},
        {"mnuExample", &FrmMain::mnuExample_Click},
        {"mnuErase", &FrmMain::mnuErase_Click},
        {"mnuGraph", &FrmMain::mnuGraph_Click},
        {"mnuPracticeTest", &FrmMain::mnuPracticeTest_Click},
        {"mnuExp", &FrmMain::mnuExp_Click},
        {"mnuConvertDF", &FrmMain::mnuConvertDF_Click},

        {"mnuPencil", &FrmMain::mnuPencil_Click},
        {"mnuShowStep", &FrmMain::mnuShowStep_Click},
        {"mnuHideWiz", &FrmMain::mnuHideWiz_Click},
        {"mnuShowLight", &FrmMain::mnuShowLight_Click},
        {"mnuChange", &FrmMain::mnuChange_Click},

        {"mnuHelpTopics", &FrmMain::mnuHelpTopics_Click},
        {"mnuAlgSol", &FrmMain::mnuAlgSol_Click},
        {"mnuHomePage", &FrmMain::mnuHomePage_Click},
        {"mnuOnlineSupport", &FrmMain::mnuOnlineSupport_Click},
        {"mnuAbout", &FrmMain::mnuAbout_Click},
    });
    for (const Row& row : kRows) {
        commands.Connect(row.command, [this, procedure = row.procedure] { (this->*procedure)(); });
    }
    for (const FunctionRow& row : FunctionRows()) {
        commands.Connect(row.command, [this, key = row.key] { paper->Form_KeyPress(key); });
    }
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

void FrmMain::Begin() {
    if (std::exchange(hasBegun, true)) {
        return;
    }
    if (startFile.empty()) {
        mnuNew_Click();
    } else {
        LoadProblem(std::exchange(startFile, {}));
    }
}

void FrmMain::LoadPaper() {
    // The old form goes first: it plays the same problem.
    delete takeCentralWidget();
    paper = new FrmPaper(problem, learner, this);
    setCentralWidget(paper);
    paper->show();
    paper->ShowLight(IsTicked("mnuShowLight"));
    paper->UsePencil(IsTicked("mnuPencil"));
    connect(paper, &FrmPaper::Changed, this, &FrmMain::UpdateCommands);
    connect(paper, &FrmPaper::GraphAsked, this, &FrmMain::mnuGraph_Click);
    connect(paper, &FrmPaper::GraphDone, &windows, &FrameWindows::CloseGraph);
    connect(paper, &FrmPaper::PencilMenuAsked, this,
            [this](QPoint place) { commands.PopUp("mnuHidden2", place); });
    connect(paper, &FrmPaper::LightMenuAsked, this,
            [this](QPoint place) { commands.PopUp("mnuHidden3", place); });
    connect(paper, &FrmPaper::WizMenuAsked, this,
            [this](QPoint place) { commands.PopUp("mnuHidden", place); });
    if (IsTicked("mnuHideWiz")) {
        paper->ShowWiz(true);
    }
    paper->setFocus();
    UpdateCommands();
}

void FrmMain::UpdateCommands() {
    const bool onSheet = paper != nullptr;
    commands.Update(problem.controls, onSheet, onSheet && paper->TakesKeys());
    windows.SetPrintEnabled(commands.At("mnuPrint").isEnabled());
}

void FrmMain::ShowNumberForm() {
    const bool fractions = problem.settings.UseFractions;
    commands.At("mnuConvertDF")
        .setIcon(ToolbarIcon(fractions ? QStringLiteral("fracdec") : QStringLiteral("fracdec2")));
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

void FrmMain::mnuGraph_Click() {
    windows.ShowGraph(paper->LastLine());
}

void FrmMain::mnuPrint_Click() {
    windows.ShowPrintSetup();
}

void FrmMain::mnuPrintSetup_Click() {
    windows.ShowPrinterDialog();
}

void FrmMain::mnuPracticeTest_Click() {
    const HeldEnterGuard oneEnter;
    windows.ShowPracticeTest();
}

void FrmMain::mnuHelpTopics_Click() {
    windows.ShowHelp();
}

void FrmMain::mnuExp_Click() {
    paper->mnuExp_Click();
}

void FrmMain::mnuShowStep_Click() {
    const bool ticked = IsTicked("mnuShowStep");
    problem.settings.mnuShowStep = ticked;
    if (paper != nullptr) {
        paper->mnuShowStep_Click(ticked);
    }
}

void FrmMain::mnuHideWiz_Click() {
    if (paper != nullptr) {
        paper->ShowWiz(IsTicked("mnuHideWiz"));
    }
}

void FrmMain::mnuShowLight_Click() {
    if (paper != nullptr) {
        paper->ShowLight(IsTicked("mnuShowLight"));
    }
}

void FrmMain::mnuPencil_Click() {
    if (paper != nullptr) {
        paper->UsePencil(IsTicked("mnuPencil"));
    }
}

void FrmMain::mnuConvertDF_Click() {
    problem.settings.UseFractions = !problem.settings.UseFractions;
    ShowNumberForm();
}

void FrmMain::mnuExit_Click() {
    close();
}

void FrmMain::mnuChange_Click() {
    const HeldEnterGuard oneEnter;
    FrmOptions options(problem.settings, this);
    if (options.exec() == QDialog::Accepted && paper != nullptr) {
        paper->WizSettingsChanged();
    }
}

void FrmMain::mnuAlgSol_Click() {
    OpenPage(ProductPage());
}

void FrmMain::mnuHomePage_Click() {
    OpenPage(HomePage());
}

void FrmMain::mnuOnlineSupport_Click() {
    OpenPage(SupportPage());
}

void FrmMain::OpenPage(const QUrl& page) {
    if (!QDesktopServices::openUrl(page)) {
        status->Tell(QStringLiteral("This page could not be opened: ") + page.toString(),
                     kAddressTime);
    }
}

void FrmMain::mnuAbout_Click() {
    const HeldEnterGuard oneEnter;
    FrmAbout(this).exec();
}

bool FrmMain::event(QEvent* event) {
    // Commands under the pointer have nothing to say in the status line, and would empty it.
    return event->type() == QEvent::StatusTip || QMainWindow::event(event);
}

void FrmMain::closeEvent(QCloseEvent* event) {
    windows.CloseAll();
    StoreSettings(CurrentSettings(), store);
    event->accept();
    emit Closed();
}

}  // namespace numerello
