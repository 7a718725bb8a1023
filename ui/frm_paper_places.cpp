#include <QScrollBar>
#include <algorithm>

#include "ui/frm_paper.h"
#include "worksheet/sheet_rows.h"

/// Where on the entry form things lie, and what of the desk is in view.
namespace numerello {

namespace {

constexpr int kLightTop = 24;
constexpr int kLightMargin = 8;
/// The light may cover the sheet, but not where anything is written.
constexpr int kLightLeftOnSheet = 752;

}  // namespace

void FrmPaper::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    worksheet.Centre(viewport()->width());
    Refresh();
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

/// Brings the arrow or the check mark behind the last line into view, and before it what was
/// written lowest: a long division goes on below the arrow.
void FrmPaper::ScrollToLineEnd() {
    constexpr int kAround = 48;
    const Sheet& sheet = worksheet.SheetAt(problem.playback.CurrentPage);
    const int lineEndX = qRound(sheet.left + problem.playback.LineEndX);
    ensureVisible(lineEndX, qRound(sheet.top + LowestText(sheet.surface)), kAround, kAround);
    ensureVisible(lineEndX, qRound(sheet.top + problem.playback.LineEndY), kAround, kAround);
}

QRect FrmPaper::LastLine() const {
    constexpr int kLeft = 60;
    constexpr int kAbove = 32;  // the upper half of a fraction
    constexpr int kBelow = 46;
    constexpr int kMark = 48;
    const Sheet& sheet = worksheet.SheetAt(problem.playback.CurrentPage);
    const QPointF end(problem.playback.LineEndX, problem.playback.LineEndY);
    const QRectF line(QPointF(kLeft, end.y() - kAbove), end + QPointF(kMark, kBelow));
    const QPoint corner = desk->mapTo(viewport(), QPoint(qRound(sheet.left), qRound(sheet.top)));
    const QRect seen = line.toAlignedRect().translated(corner) & viewport()->rect();
    return {viewport()->mapToGlobal(seen.topLeft()), seen.size()};
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

}  // namespace numerello
