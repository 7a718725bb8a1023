#include "ui/frm_paper.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <chrono>

#include "app/solvers.h"
#include "catalogue/examples/example_click.h"
#include "catalogue/guided_input.h"
#include "core/erasing.h"
#include "core/text.h"
#include "ui/accessible_sheet.h"
#include "ui/desk.h"
#include "ui/motion.h"
#include "ui/pointer.h"
#include "ui/text.h"
#include "ui/typed_key.h"
#include "worksheet/sheet_rows.h"
#include "worksheet/shown_note.h"
#include "worksheet/spoken_line.h"

namespace numerello {

namespace {

constexpr std::chrono::milliseconds kFlash(400);
constexpr double kTypedLineLimit = 730;

constexpr int kLightTop = 24;
constexpr int kLightMargin = 8;
constexpr int kAroundField = 16;
/// The light may cover the sheet, but not where anything is written.
constexpr int kLightLeftOnSheet = 752;

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
    worksheet.AttachGraph([this] { emit GraphAsked(); }, [this] { emit GraphDone(); });
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

/// Brings the arrow or the check mark behind the last line into view, and before it what was
/// written lowest: a long division goes on below the arrow.
void FrmPaper::ScrollToLineEnd() {
    constexpr int kAround = 48;
    const Sheet& sheet = worksheet.SheetAt(problem.playback.CurrentPage);
    const int lineEndX = qRound(sheet.left + problem.playback.LineEndX);
    ensureVisible(lineEndX, qRound(sheet.top + LowestText(sheet.surface)), kAround, kAround);
    ensureVisible(lineEndX, qRound(sheet.top + problem.playback.LineEndY), kAround, kAround);
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

bool FrmPaper::TakesKeys() const {
    return IsTypedOnLine(problem.topic.ProblemType) && problem.playback.TypingEnabled;
}

void FrmPaper::Form_KeyPress(std::string_view key) {
    TypeText(ToQString(key));
}

void FrmPaper::ShowEntry() {
    Refresh();
}

void FrmPaper::TypeKey(std::string_view key) {
    const bool sheetIsFull = problem.playback.LineEndX >= kTypedLineLimit && key != kBackspace;
    if (!IsJudged(problem, key) || sheetIsFull) {
        return;
    }
    numerello::Form_KeyPress(problem, key);
    worksheet.DrawTypedLine();
    pencil->KeyTyped();
}

void FrmPaper::TypeText(const QString& text) {
    if (!TakesKeys()) {
        return;
    }
    for (const std::string& key : Characters(text.toStdString())) {
        TypeKey(key);
    }
    Refresh();
    ScrollToLineEnd();
}

void FrmPaper::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (event->isAutoRepeat()) {
            return;
        }
        if (problem.controls.SolveEnabled) {
            compute_Click();
        } else if (worksheet.ArrowVisible()) {
            NextStep();
        }
        return;
    }
    const bool turnsPages = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    if (turnsPages && worksheet.StackingOrder().size() > 1) {
        RaiseNeighbour(event->key() == Qt::Key_PageUp ? -1 : 1);
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        TypeText(PastedText());
        return;
    }
    const QString typed = TypedBy(*event);
    if (typed.isEmpty()) {
        QScrollArea::keyPressEvent(event);
        return;
    }
    TypeText(typed);
}

void FrmPaper::RaiseNeighbour(int direction) {
    if (worksheet.RaiseNeighbour(direction)) {
        Refresh();
        const QRect place = pile->At(worksheet.StackingOrder().back()).geometry();
        ensureVisible(place.right(), place.bottom(), 0, 0);
        ensureVisible(place.left(), place.top(), 0, 0);
    }
}

/// While the mouse drags: what lies on the sheet goes with it, the rest stays as it is.
void FrmPaper::FollowSheets() {
    pencil->Place();
    desk->update();
}

void FrmPaper::ReleaseSheet(int index) {
    const QPoint scrolled = Scrolled();
    worksheet.Paper_MouseUp(
        index,
        {static_cast<double>(scrolled.x()), static_cast<double>(scrolled.y()),
         static_cast<double>(viewport()->width()), static_cast<double>(viewport()->height())});
    Refresh();
}

/// What of the desk lies left of the view and above it.
QPoint FrmPaper::Scrolled() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void FrmPaper::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint place = event->globalPosition().toPoint();
    if (event->button() == Qt::RightButton && pencil->IsAt(desk->mapFromGlobal(place))) {
        emit PencilMenuAsked(place);
        return;
    }
    QScrollArea::mouseReleaseEvent(event);
}

void FrmPaper::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    worksheet.Centre(viewport()->width());
    Refresh();
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

/// The desk fills the view and reaches around all sheets.
void FrmPaper::FitDesk() {
    QSize size = viewport()->size();
    for (const int index : worksheet.StackingOrder()) {
        const Sheet& sheet = worksheet.SheetAt(index);
        size =
            size.expandedTo({qRound(sheet.left + sheet.width), qRound(sheet.top + sheet.height)});
    }
    desk->resize(size);
    PlaceFigures();
}

/// Beside the sheet. In a narrow view the light stands over the sheet's right edge, where nothing
/// is written, but never out of sight.
void FrmPaper::PlaceFigures() {
    const QSize view = viewport()->size();
    const int sheetLeft = Worksheet::CentredLeft(view.width());
    worksheet.TheAssistant().PlaceBeside(sheetLeft, view.width(), view.height());

    const int lightLeft = Assistant::FirstLeft(sheetLeft, view.width()) +
                          (Assistant::kWidth - LightButton::kSize.width()) / 2;
    light->move(std::min(std::max(lightLeft, sheetLeft + kLightLeftOnSheet),
                         view.width() - LightButton::kSize.width() - kLightMargin),
                kLightTop);
}

void FrmPaper::KeepTimer() {
    const bool flashing = worksheet.Timer2Enabled() && onScreen && MotionWanted();
    if (flashing && !timer2.isActive()) {
        timer2.start();
    } else if (!flashing) {
        timer2.stop();
    }
    wizard->Show(onScreen);
}

}  // namespace numerello
