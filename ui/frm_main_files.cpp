#include <QDropEvent>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <optional>

#include "catalogue/saved_problem.h"
#include "ui/dropped_file.h"
#include "ui/frm_main.h"
#include "ui/pointer.h"
#include "ui/text.h"

/// The frame's problem files: saved, loaded, and dropped on it.
namespace numerello {

namespace {

constexpr std::chrono::seconds kStatusTime(5);

bool HoldsWork(const Problem& problem) {
    const auto& boxes = problem.boxes.Text;
    return !problem.typed.ProblemText.empty() ||
           !std::all_of(boxes.begin(), boxes.end(),
                        [](const std::string& box) { return box.empty(); });
}

}  // namespace

/// The entry form of the frame while a problem is loaded; the pointer is busy meanwhile.
class FrmMain::Loading : public LoadingForm {
  public:
    explicit Loading(FrmMain& frame) : frame(frame) {}

    void Open() override {
        busy.emplace(Qt::BusyCursor);
        frame.LoadPaper();
    }

    void ShowEntry() override { frame.paper->ShowEntry(); }
    void Form_KeyPress(std::string_view key) override { frame.paper->Form_KeyPress(key); }
    void compute_Click() override { frame.paper->compute_Click(); }
    void TellStatus(std::string_view text) override {
        frame.status->Tell(ToQString(text), kStatusTime);
    }

  private:
    FrmMain& frame;
    std::optional<PointerGuard> busy;
};

void FrmMain::mnuSave_Click() {
    numerello::mnuSave_Click(problem, files, clock, learner);
}

void FrmMain::mnuLoad_Click() {
    LoadProblem({});
}

void FrmMain::LoadProblem(std::string_view StartFile) {
    Loading form(*this);
    numerello::mnuLoad_Click(StartFile, files, problem, form, clock, random);
}

/// The help is a window of its own: the sheet comes to the front. Who reads has not asked for an
/// end of what he works on, as who opens a file has.
void FrmMain::LoadExample(const std::string& problemFile) {
    activateWindow();
    if (HoldsWork(problem) &&
        !learner.Confirm("Clear Problem", "This will erase your entire problem.")) {
        return;
    }
    Loading form(*this);
    LoadSavedProblem(ReadSavedProblem(problemFile), problem, form, clock, random);
}

void FrmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedFile(*event).empty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void FrmMain::dropEvent(QDropEvent* event) {
    const std::string file = DroppedFile(*event);
    if (file.empty()) {
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The program that the file comes from waits until this event is over.
    QTimer::singleShot(0, this, [this, file] {
        activateWindow();
        LoadProblem(file);
    });
}

}  // namespace numerello
