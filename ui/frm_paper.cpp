#include "ui/frm_paper.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <chrono>

#include "app/solvers.h"
#include "catalogue/examples/example_click.h"
#include "core/erasing.h"
#include "ui/accessible_sheet.h"
#include "ui/desk.h"
#include "ui/keep_running.h"
#include "ui/motion.h"
#include "ui/pointer.h"
#include "ui/text.h"
#include "worksheet/shown_note.h"
#include "worksheet/spoken_line.h"

namespace numerello {

namespace {

constexpr std::chrono::milliseconds kFlash(400);
constexpr int kAroundField = 16;

}  // namespace

FrmPaper::FrmPaper(Problem& problem, WindowLearner& learner, QWidget* parent)
    : QScrollArea(parent),
      problem(problem),
      learner(learner),
      worksheet(problem, metrics, learner) {
    setObjectName(QStringLiteral("frmPaper"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setAccessibleName(ToQString(problem.topic.TopicTitle));
    MakeDesk();

    timer2.setObjectName(QStringLiteral("Timer2"));
    timer2.setInterval(kFlash);
    connect(&timer2, &QTimer::timeout, this, [this] {
        worksheet.Timer2_Timer();
        CurrentArrow().SetFrame(worksheet.ArrowFrame());
    });

    worksheet.Open(viewport()->width());
    EraseProblem(problem, worksheet);
    MakeEntry();
    // Behind the entry, and so behind it for the Tab key.
    MakeLight();
    MakeWizard();
    Refresh();
}

void FrmPaper::MakeDesk() {
    desk = new Desk;
    setWidget(desk);
    TellSheets();
    pile = new SheetPile(worksheet, metrics, desk);
    connect(pile, &SheetPile::NextStepAsked, this, &FrmPaper::NextStep);
    connect(pile, &SheetPile::Changed, this, &FrmPaper::Refresh);
    connect(pile, &SheetPile::Dragged, this, &FrmPaper::FollowSheets);
    connect(pile, &SheetPile::Released, this, &FrmPaper::ReleaseSheet);
    pencil = new WritingPencil(problem, worksheet, desk);
    explanation = new FrmExplain(problem, learner, this);
    worksheet.Attach(*explanation);
    const auto openGraph = [this] {
        // The graph makes room for the last line, which has to be in view by then.
        ShowStep();
        emit GraphAsked();
    };
    worksheet.AttachGraph(openGraph, [this] { emit GraphDone(); });
}

void FrmPaper::MakeEntry() {
    entry = new EntryForm(problem, &pile->At(0));
    connect(entry, &EntryForm::Changed, this, [this](QWidget* field) {
        Refresh();
        const QRect place(field->mapTo(desk, QPoint()), field->size());
        ensureVisible(place.left(), place.center().y(), kAroundField, kAroundField);
        ensureVisible(place.right(), place.center().y(), kAroundField, kAroundField);
    });
    pile->SetPicture(entry->PicturePlace());
    if (entry->FirstBox() != nullptr) {
        setFocusProxy(entry->FirstBox());
        // The Tab key comes into this form at that box, past an arrow that stood before it.
        pile->PutArrowsBehind(entry->LastControl());
    }
}

void FrmPaper::MakeLight() {
    // In the view and not on the desk: it stays in sight, and above all sheets.
    light = new LightButton(viewport());
    connect(light, &MenuButton::MenuAsked, this, &FrmPaper::LightMenuAsked);
    connect(light, &QAbstractButton::clicked, this, [this] {
        if (explanation->Model().Light_Click()) {
            OpenExplanation();
        }
    });
}

void FrmPaper::MakeWizard() {
    wizard = new WizardFigure(worksheet.TheAssistant(), viewport());
    connect(wizard, &WizardFigure::ExplanationAsked, this, &FrmPaper::mnuExp_Click);
    connect(wizard, &WizardFigure::MenuAsked, this, &FrmPaper::WizMenuAsked);
}

void FrmPaper::compute_Click() {
    if (!problem.controls.SolveEnabled) {
        return;
    }
    worksheet.CloseExplanation();
    {
        const PointerGuard busy(Qt::BusyCursor);
        numerello::compute_Click(problem, AllSolvers(), learner, worksheet);
    }
    ShowStep();
    // A problem without a step is its drawing alone.
    if (problem.graph.GraphMode != 0 && problem.log.StepCount == 1) {
        emit GraphAsked();
    }
}

void FrmPaper::clear_Click() {
    if (numerello::clear_Click(problem, learner, worksheet)) {
        ShowErased();
    }
}

void FrmPaper::example_Click(const Clock& clock) {
    class Form : public FillingForm {
      public:
        explicit Form(FrmPaper& paper) : paper(paper) {}

        void ShowEntry() override { paper.ShowErased(); }
        void Form_KeyPress(std::string_view key) override { paper.Form_KeyPress(key); }
        void compute_Click() override { paper.compute_Click(); }

      private:
        FrmPaper& paper;
    };
    MersenneSource digits;
    MersenneSource direct;
    ExampleDraws draws(clock, digits, direct);
    Form form(*this);
    numerello::example_Click(problem, worksheet, form, draws);
}

/// A new problem begins at the top of the first sheet.
void FrmPaper::ShowErased() {
    Refresh();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    setFocus();
}

void FrmPaper::NextStep() {
    worksheet.CloseExplanation();
    worksheet.blinker_Click();
    // A sheet that was brought to the front would hide what is written now.
    worksheet.RaiseCurrentSheet();
    ShowStep();
}

ArrowButton& FrmPaper::CurrentArrow() {
    return pile->At(problem.playback.CurrentPage).Arrow();
}

void FrmPaper::ShowStep() {
    Refresh();
    ScrollToLineEnd();
    // The boxes are locked by now, so the arrow takes the keys.
    if (worksheet.ArrowVisible() && !IsTypedOnLine(problem.topic.ProblemType)) {
        CurrentArrow().setFocus();
    }
}

void FrmPaper::mnuShowStep_Click(bool ticked) {
    worksheet.mnuShowStep_Click(ticked);
    Refresh();
}

void FrmPaper::mnuExp_Click() {
    if (explanation->Model().HasNote()) {
        OpenExplanation();
    }
}

void FrmPaper::OpenExplanation() {
    worksheet.RaiseCurrentSheet();
    worksheet.TheAssistant().StopNotice();
    Refresh();
    const int page = problem.playback.CurrentPage;
    const ArrowButton& arrow = CurrentArrow();
    const QRect waiting =
        arrow.isVisible() ? QRect(arrow.mapToGlobal(QPoint()), arrow.size()) : QRect();
    explanation->Open(worksheet.SheetAt(page), *desk, waiting);
}

void FrmPaper::ShowWiz(bool shown) {
    wizard->Use(shown);
}

void FrmPaper::WizSettingsChanged() {
    worksheet.TheAssistant().ChooseFigure();
    worksheet.TheAssistant().ClickNotifyChanged();
    wizard->Show(onScreen);
}

void FrmPaper::ShowLight(bool shown) {
    light->setVisible(shown);
}

void FrmPaper::UsePencil(bool used) {
    pencil->Use(used);
    pencil->Show(viewport()->size());
}

void FrmPaper::ShowEntry() {
    Refresh();
}

void FrmPaper::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint place = event->globalPosition().toPoint();
    if (event->button() == Qt::RightButton && pencil->IsAt(desk->mapFromGlobal(place))) {
        emit PencilMenuAsked(place);
        return;
    }
    QScrollArea::mouseReleaseEvent(event);
}

void FrmPaper::showEvent(QShowEvent* event) {
    QScrollArea::showEvent(event);
    onScreen = true;
    KeepTimer();
}

void FrmPaper::hideEvent(QHideEvent* event) {
    // Also comes when the frame is minimised, while the form still counts as visible.
    QScrollArea::hideEvent(event);
    onScreen = false;
    KeepTimer();
}

void FrmPaper::Refresh() {
    ShowSheets();
    entry->Show();
    light->Show(problem.controls);
    pencil->Show(viewport()->size());
    FitDesk();
    KeepTimer();
    desk->update();
    emit Changed();
}

void FrmPaper::ShowSheets() {
    pile->Show(*pencil);
    const QString reason = Reason();
    setAccessibleDescription(reason);
    pile->Describe(reason);
}

/// Why the last key was refused, else what the shown step was about: for those who hear the sheet.
QString FrmPaper::Reason() const {
    const bool refused = problem.controls.Light == EntryControls::LightPicture::Incorrect;
    return ToQString(refused ? problem.input.InputError : SpokenLine(ShownNote(problem)));
}

void FrmPaper::KeepTimer() {
    const bool flashing = worksheet.Timer2Enabled() && onScreen && MotionWanted();
    KeepRunning(timer2, flashing);
    wizard->Show(onScreen);
}

}  // namespace numerello
