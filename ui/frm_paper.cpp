#include "ui/frm_paper.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <chrono>

#include "app/solvers.h"
#include "catalogue/guided_input.h"
#include "core/text.h"
#include "ui/artwork.h"
#include "ui/desk.h"
#include "ui/pointer.h"
#include "ui/text.h"
#include "worksheet/drawn_rows.h"

namespace numerello {

namespace {

constexpr std::chrono::milliseconds kFlash(400);
constexpr double kTypedLineLimit = 730;

constexpr int kSheetWidth = 800;
constexpr int kLightTop = 24;
constexpr int kLightMargin = 8;
constexpr int kAroundField = 16;
/// The light may cover the sheet, but not where anything is written.
constexpr int kLightLeftOnSheet = 752;

bool IsShortcut(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

/// What a key types on the line. A dead accent counts as its character at once.
QString TypedBy(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Backspace:
            return ToQString(kBackspace);
        case Qt::Key_Dead_Circumflex:
            return QStringLiteral("^");
        case Qt::Key_Dead_Tilde:
            return QStringLiteral("~");
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Escape:
        case Qt::Key_Delete:
            return {};
        default:
            return event.text();
    }
}

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
        papers[static_cast<std::size_t>(this->problem.playback.CurrentPage)]->Arrow().SetFrame(
            worksheet.ArrowFrame());
    });

    worksheet.Open(viewport()->width());
    EraseProblem(problem, worksheet);
    MakeEntry();
    // Behind the entry, and so behind it for the Tab key.
    MakeLight();
    Refresh();
}

void FrmPaper::MakeDesk() {
    desk = new Desk;
    setWidget(desk);
    for (int i = 0; i < Worksheet::kSheetCount; ++i) {
        auto* paper = new SheetWidget(i, metrics, desk);
        papers[static_cast<std::size_t>(i)] = paper;
        connect(&paper->Arrow(), &QAbstractButton::clicked, this, &FrmPaper::NextStep);
    }
    pencil = new WritingPencil(problem, worksheet, desk);
    explanation = new FrmExplain(problem, learner, this);
    worksheet.Attach(*explanation);
}

void FrmPaper::MakeEntry() {
    entry = new EntryForm(problem, papers[0]);
    connect(entry, &EntryForm::Changed, this, [this](QWidget* field) {
        Refresh();
        const QRect place(field->mapTo(desk, QPoint()), field->size());
        ensureVisible(place.left(), place.center().y(), kAroundField, kAroundField);
        ensureVisible(place.right(), place.center().y(), kAroundField, kAroundField);
    });
    if (entry->FirstBox() != nullptr) {
        setFocusProxy(entry->FirstBox());
    }
}

void FrmPaper::MakeLight() {
    light = new LightButton(desk);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &FrmPaper::PlaceLight);
    connect(light, &LightButton::MenuAsked, this, &FrmPaper::LightMenuAsked);
    connect(light, &QAbstractButton::clicked, this, [this] {
        if (explanation->Model().Light_Click()) {
            OpenExplanation();
        }
    });
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
    const int mode = problem.graph.GraphMode;
    if (mode != 0 && problem.log.StepCount == 1) {
        learner.MessageBox("", "Drawing the graph is not built yet.");
    }
}

void FrmPaper::clear_Click() {
    if (numerello::clear_Click(problem, learner, worksheet)) {
        Refresh();
        horizontalScrollBar()->setValue(0);
        verticalScrollBar()->setValue(0);
        setFocus();
    }
}

void FrmPaper::NextStep() {
    worksheet.CloseExplanation();
    worksheet.blinker_Click();
    ShowStep();
}

void FrmPaper::ShowStep() {
    Refresh();
    ScrollToLineEnd();
    // The boxes are locked by now, so the arrow takes the keys.
    if (worksheet.ArrowVisible() && !IsTypedOnLine(problem.topic.ProblemType)) {
        papers[static_cast<std::size_t>(problem.playback.CurrentPage)]->Arrow().setFocus();
    }
}

/// Brings the arrow or the check mark behind the last line into view.
void FrmPaper::ScrollToLineEnd() {
    constexpr int kAround = 48;
    const Sheet& sheet = worksheet.SheetAt(problem.playback.CurrentPage);
    ensureVisible(qRound(sheet.left + problem.playback.LineEndX),
                  qRound(sheet.top + problem.playback.LineEndY), kAround, kAround);
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
    Refresh();
    const int page = problem.playback.CurrentPage;
    const ArrowButton& arrow = papers[static_cast<std::size_t>(page)]->Arrow();
    const QRect waiting =
        arrow.isVisible() ? QRect(arrow.mapToGlobal(QPoint()), arrow.size()) : QRect();
    explanation->Open(worksheet.SheetAt(page), *desk, waiting);
}

void FrmPaper::ShowLight(bool shown) {
    light->setVisible(shown);
}

void FrmPaper::UsePencil(bool used) {
    pencil->Use(used);
    pencil->Show(viewport()->height());
}

bool FrmPaper::TakesKeys() const {
    return IsTypedOnLine(problem.topic.ProblemType) && problem.playback.TypingEnabled;
}

void FrmPaper::Form_KeyPress(std::string_view key) {
    TypeText(ToQString(key));
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
    if (event->matches(QKeySequence::Paste)) {
        TypeText(PastedText());
        return;
    }
    const QString typed = IsShortcut(*event) ? QString() : TypedBy(*event);
    if (typed.isEmpty()) {
        QScrollArea::keyPressEvent(event);
        return;
    }
    TypeText(typed);
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
    pencil->Show(viewport()->height());
    FitDesk();
    KeepTimer();
    desk->update();
    emit Changed();
}

void FrmPaper::ShowSheets() {
    for (int i = 0; i < Worksheet::kSheetCount; ++i) {
        SheetWidget* paper = papers[static_cast<std::size_t>(i)];
        paper->Show(worksheet.SheetAt(i));
        paper->Arrow().SetFrame(worksheet.ArrowFrame());
    }
    for (const int index : worksheet.StackingOrder()) {
        papers[static_cast<std::size_t>(index)]->raise();
        if (index == 0) {
            pencil->Raise();
        }
    }
    light->raise();
    const bool refused = problem.controls.Light == EntryControls::LightPicture::Incorrect;
    setAccessibleDescription(refused ? ToQString(problem.input.InputError) : SheetText());
}

/// What stands on the sheets, for those who hear it.
QString FrmPaper::SheetText() const {
    QString text = ToQString(problem.typed.ProblemText);
    for (const std::string& line : worksheet.DrawnLines()) {
        text += u'\n' + ToQString(line);
    }
    // A column problem has no lines, but rows of digits.
    if (text.isEmpty()) {
        for (const std::string& row : DrawnRows(worksheet.SheetAt(0).surface)) {
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + ToQString(row);
        }
    }
    return text;
}

/// The desk fills the view and reaches around all sheets.
void FrmPaper::FitDesk() {
    QSize size = viewport()->size();
    for (const int index : worksheet.StackingOrder()) {
        const Sheet& sheet = worksheet.SheetAt(index);
        size =
            size.expandedTo({qRound(sheet.left) + kSheetWidth, qRound(sheet.top + sheet.height)});
    }
    desk->resize(size);
    PlaceLight();
}

/// Beside the sheet, else over its right edge where nothing is written, but never out of sight.
void FrmPaper::PlaceLight() {
    const int sheetLeft = qRound(worksheet.SheetAt(0).left);
    const int figureLeft = std::min(sheetLeft + kSheetWidth + 16, viewport()->width() - 116);
    const int lightLeft = figureLeft + (108 - LightButton::kSize.width()) / 2;
    const int seen =
        horizontalScrollBar()->value() + viewport()->width() - LightButton::kSize.width();
    light->move(std::min(std::max(lightLeft, sheetLeft + kLightLeftOnSheet), seen - kLightMargin),
                kLightTop);
}

void FrmPaper::KeepTimer() {
    const bool flashing = worksheet.Timer2Enabled() && onScreen;
    if (flashing && !timer2.isActive()) {
        timer2.start();
    } else if (!flashing) {
        timer2.stop();
    }
}

}  // namespace numerello
