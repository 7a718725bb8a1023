#include "ui/sheet_widget.h"

#include <QPainter>
#include <QtMath>

#include "ui/artwork.h"
#include "ui/surface_painter.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr QSize kPaperSize(800, 657);
constexpr QSize kArrowSize(36, 36);
constexpr QSize kArrowPicture(33, 33);
constexpr QSize kCheckPicture(36, 36);

/// The title strip begins at 60; its text stands in line with the lines below.
constexpr double kTitleX = 67;
constexpr double kTitleY = 8;
constexpr double kTitleWidth = 678;
constexpr double kTitleSize = 18;

/// A sheet may be longer than its picture: its lower part is then shown once more, whole rows of
/// the ruling lower, so that the rules go on and the holes do not.
void PaintPaper(QPainter& painter, int height, qreal ratio) {
    constexpr int kBelowHoles = 620;
    const QPixmap paper = Artwork(QStringLiteral("paper"), kPaperSize, ratio);
    painter.drawPixmap(0, height - kPaperSize.height(), paper);
    if (height > kPaperSize.height()) {
        painter.drawPixmap(QRectF(0, 0, kPaperSize.width(), kBelowHoles), paper,
                           QRectF(0, 0, paper.width(), kBelowHoles * ratio));
    }
}

/// A title that is too long is set smaller, not cut.
void PaintTitle(QPainter& painter, const std::string& title, const FontMetrics& metrics) {
    Font font{std::string(kSheetFace), kTitleSize};
    const double width = metrics.Width(title, font);
    if (width > kTitleWidth) {
        font.size *= kTitleWidth / width;
    }
    const double dropped = metrics.Ascent({font.name, kTitleSize}) - metrics.Ascent(font);
    PaintMarks(painter, {TextMark{title, kTitleX, kTitleY + dropped, font, kBlack}}, metrics);
}

}  // namespace

ArrowButton::ArrowButton(QWidget* parent) : DeskButton(parent) {
    setFixedSize(kArrowSize);
    setToolTip(QStringLiteral("Next Step"));
    setAccessibleName(QStringLiteral("Next Step"));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    hide();
}

void ArrowButton::SetFrame(bool second) {
    if (secondFrame != second) {
        secondFrame = second;
        update();
    }
}

void ArrowButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QString key = secondFrame ? QStringLiteral("arrow2") : QStringLiteral("arrow1");
    const QPoint corner((kArrowSize.width() - kArrowPicture.width()) / 2,
                        (kArrowSize.height() - kArrowPicture.height()) / 2);
    painter.drawPixmap(corner, Artwork(key, kArrowPicture, devicePixelRatioF()));
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0x3F, 0x8F, 0xD2), 2));
        painter.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

SheetWidget::SheetWidget(int index, const FontMetrics& metrics, QWidget* desk)
    : QWidget(desk), metrics(metrics), arrow(new ArrowButton(this)) {
    setObjectName(QStringLiteral("Paper%1").arg(index));
    arrow->setObjectName(QStringLiteral("blinker%1").arg(index));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFixedSize(kPaperSize);
    hide();
}

void SheetWidget::Show(const Sheet& sheet) {
    shown = &sheet;
    setAccessibleName(ToQString(sheet.title));
    if (sheet.height > 0) {
        setFixedHeight(qRound(sheet.height));
    }
    move(qRound(sheet.left), qRound(sheet.top));
    arrow->move(qRound(sheet.arrowLeft), qRound(sheet.arrowTop));
    arrow->setVisible(sheet.arrowVisible);
    setVisible(sheet.visible);
    update();
}

void SheetWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const qreal ratio = devicePixelRatioF();
    PaintPaper(painter, height(), ratio);
    if (shown == nullptr) {
        return;
    }
    PaintTitle(painter, shown->title, metrics);
    PaintMarks(painter, shown->surface.Marks(), metrics,
               [ratio](QPainter& onto, const std::string& key, QPointF corner) {
                   onto.drawPixmap(corner, Artwork(ToQString(key), kCheckPicture, ratio));
               });
}

}  // namespace numerello
