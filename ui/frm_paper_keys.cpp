#include "ui/frm_paper.h"

#include <QKeyEvent>

#include "catalogue/guided_input.h"
#include "core/text.h"
#include "ui/text.h"
#include "ui/typed_key.h"

/// The keys of the entry form: those of the typing line, and those that play and turn its sheets.
namespace numerello {

namespace {

constexpr double kTypedLineLimit = 730;

}  // namespace

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
    if (IsEnter(event->key())) {
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

}  // namespace numerello
