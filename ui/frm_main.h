#pragma once

#include <QMainWindow>
#include <QMap>

#include "core/clock.h"
#include "core/problem.h"
#include "core/random_source.h"
#include "ui/frm_paper.h"
#include "ui/window_learner.h"

namespace numerello {

/// The frame: menu bar, toolbar, and the entry form as its content.
class FrmMain : public QMainWindow {
    Q_OBJECT

  public:
    FrmMain();

    /// Shows the frame in the middle of the screen, or as large as a smaller screen.
    void Open();

    void mnuNew_Click();

    /// New Problem, but only the first time that it is called.
    void AskForFirstTopic();

    const Problem& CurrentProblem() const { return problem; }

  private:
    void MakeMenus();
    void MakePopUps();
    void PopUpMenu(const char* name, QPoint place);
    void MakeToolbar();
    QAction* Command(const char* name) const { return commands.value(QLatin1String(name)); }
    void OnTrigger(const char* name, void (FrmMain::*procedure)());
    void LoadPaper();
    void ConnectFunctions();
    void UpdateCommands();
    void ShowNumberForm();

    void mnuSolve_Click();
    void mnuExample_Click();
    void mnuErase_Click();
    void mnuExp_Click();
    void mnuShowStep_Click();
    void mnuHideWiz_Click();
    void mnuShowLight_Click();
    void mnuPencil_Click();
    void mnuConvertDF_Click();
    void mnuExit_Click();

    Problem problem;
    SystemClock clock;
    MersenneSource random;
    WindowLearner learner{this};
    FrmPaper* paper = nullptr;
    bool askedForTopic = false;
    QMap<QString, QAction*> commands;  ///< by control name
};

}  // namespace numerello
