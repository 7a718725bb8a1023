#include "ui/frm_main.h"

#include <QGuiApplication>
#include <QScreen>
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

}  // namespace

FrmMain::FrmMain() {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Vantrel - Numerello"));
    setMinimumSize(kSmallestSize);
    // The frame's own menu would offer to take the toolbar away.
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(new Desk(this));

    commands.At("mnuShowStep").setChecked(problem.settings.mnuShowStep);
    commands.At("mnuHideWiz").setChecked(true);
    commands.At("mnuShowLight").setChecked(true);
    commands.At("mnuPencil").setChecked(true);
    ConnectCommands();
    ShowNumberForm();
    UpdateCommands();
}

/// A command without a row here is not built yet, and grey.
void FrmMain::ConnectCommands() {
    struct Row {
        const char* command;
        void (FrmMain::*procedure)();
    };
    constexpr Row kRows[] = {
        {"mnuNew", &FrmMain::mnuNew_Click},         {"mnuExit", &FrmMain::mnuExit_Click},
        {"mnuSolve", &FrmMain::mnuSolve_Click},     {"mnuErase", &FrmMain::mnuErase_Click},
        {"mnuExp", &FrmMain::mnuExp_Click},         {"mnuConvertDF", &FrmMain::mnuConvertDF_Click},
        {"mnuPencil", &FrmMain::mnuPencil_Click},   {"mnuShowStep", &FrmMain::mnuShowStep_Click},
        {"mnuHideWiz", &FrmMain::mnuHideWiz_Click}, {"mnuShowLight", &FrmMain::mnuShowLight_Click},
    };
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
    paper->ShowLight(IsTicked("mnuShowLight"));
    paper->UsePencil(IsTicked("mnuPencil"));
    connect(paper, &FrmPaper::Changed, this, &FrmMain::UpdateCommands);
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
}

void FrmMain::ShowNumberForm() {
    const bool fractions = problem.settings.UseFractions;
    commands.At("mnuConvertDF")
        .setIcon(ToolbarIcon(fractions ? QStringLiteral("fracdec") : QStringLiteral("fracdec2")));
}

void FrmMain::mnuSolve_Click() {
    paper->compute_Click();
}

void FrmMain::mnuErase_Click() {
    paper->clear_Click();
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

}  // namespace numerello
