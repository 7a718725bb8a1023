#pragma once

#include <QMainWindow>
#include <string>
#include <string_view>

#include "core/clock.h"
#include "core/problem.h"
#include "core/problem_files.h"
#include "core/random_source.h"
#include "core/settings.h"
#include "ui/frame_commands.h"
#include "ui/frame_windows.h"
#include "ui/frm_paper.h"
#include "ui/status_line.h"
#include "ui/window_file_dialog.h"
#include "ui/window_learner.h"

namespace numerello {

/// The frame: menu bar, toolbar, and the entry form as its content. It holds no more than the
/// problem; each command goes on to the form, to a dialog or to the library.
class FrmMain : public QMainWindow {
    Q_OBJECT

  public:
    /// The settings are read at once and stored when the frame closes; the store has to outlive it.
    /// `documents` is the learner's folder of documents, `StartFile` what the command line named.
    FrmMain(SettingsStore& store, std::string documents, std::string StartFile = {});
    ~FrmMain() override;

    /// Shows the frame in the middle of the screen, or as large as a smaller screen.
    void Open();

    /// The first thing on the desk: the named file, without one the question which topic. Only the
    /// first call counts.
    void Begin();

    const Problem& CurrentProblem() const { return problem; }

  signals:
    /// The frame has closed, and with it the program.
    void Closed();

  protected:
    bool event(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    class Loading;

    void ConnectCommands();
    void ShowSettings(const Settings& settings);
    Settings CurrentSettings() const;
    bool IsTicked(const char* command) const { return commands.At(command).isChecked(); }
    void LoadPaper();
    void LoadProblem(std::string_view StartFile);
    void LoadExample(const std::string& problemFile);
    void UpdateCommands();
    void ShowNumberForm();
    void OpenPage(const QUrl& page);

    void mnuNew_Click();
    void mnuPrint_Click();
    void mnuPrintSetup_Click();
    void mnuSave_Click();
    void mnuLoad_Click();
    void mnuExit_Click();
    void mnuSolve_Click();
    void mnuExample_Click();
    void mnuErase_Click();
    void mnuGraph_Click();
    void mnuPracticeTest_Click();
    void mnuExp_Click();
    void mnuConvertDF_Click();
    void mnuPencil_Click();
    void mnuShowStep_Click();
    void mnuHideWiz_Click();
    void mnuShowLight_Click();
    void mnuChange_Click();
    void mnuHelpTopics_Click();
    void mnuAlgSol_Click();
    void mnuHomePage_Click();
    void mnuOnlineSupport_Click();
    void mnuAbout_Click();

    SettingsStore& store;
    Problem problem;
    SystemClock clock;
    MersenneSource random;
    WindowLearner learner{this};
    WindowFileDialog fileDialog{this};
    ProblemFiles files;
    FrameCommands commands{*this};
    FrameWindows windows{problem, clock, *this};
    StatusLine* status = new StatusLine(this);
    FrmPaper* paper = nullptr;  ///< null before the first topic
    std::string startFile;
    bool hasBegun = false;
};

}  // namespace numerello
