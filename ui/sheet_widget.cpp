#include "ui/sheet_widget.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "ui/artwork.h"
#include "ui/check_mark.h"
#include "ui/desk.h"
#include "ui/pointer.h"
#include "ui/surface_painter.h"
#include "ui/text.h"
#include "worksheet/sheet_rows.h"
#include "worksheet/spoken_line.h"

namespace numerello {

namespace {

constexpr QSize kPaperSize(SheetStack::kWidth, SheetStack::kHeight);
constexpr QSize kArrowSize(36, 36);
constexpr QSize kArrowPicture(33, 33);

/// The white strip on every sheet but the first.
constexpr QRect kTitleStrip(60, 1, 685, 57);

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
    PaintFocus(painter, kArrowSize.width() / 2.0 - 1);
}

SheetWidget::SheetWidget(int index, const FontMetrics& metrics, QWidget* desk)
    : QWidget(desk), metrics(metrics), hasTitleStrip(index > 0), arrow(new ArrowButton(this)) {
    setObjectName(QStringLiteral("Paper%1").arg(index));
    arrow->setObjectName(QStringLiteral("blinker%1").arg(index));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFixedSize(kPaperSize);
    setMouseTracking(true);
    hide();
}

void SheetWidget::Show(const Sheet& sheet) {
    shown = &sheet;
    setAccessibleName(ToQString(sheet.title));
    if (sheet.height > 0) {
        setFixedHeight(qRound(sheet.height));
    }
    Place();
    arrow->move(qRound(sheet.arrowLeft), qRound(sheet.arrowTop));
    arrow->setVisible(sheet.arrowVisible);
    setVisible(sheet.visible);
    if (const DrawingState now = StateOf(sheet); now != state) {
        state = now;
        retained = QPixmap();
        spoken.reset();
        update();
        TellChange();
    }
}

SheetWidget::DrawingState SheetWidget::StateOf(const Sheet& sheet) {
    return {sheet.newSheets,
            sheet.surface.Clearings(),
            sheet.surface.Marks().size(),
            sheet.lines.size(),
            sheet.height,
            sheet.title};
}

void SheetWidget::Place() {
    if (shown != nullptr) {
        move(qRound(shown->left), qRound(shown->top));
    }
}

QString SheetWidget::Spoken() const {
    if (!spoken) {
        QStringList words;
        if (shown != nullptr) {
            for (const std::string& row : SheetRows(*shown)) {
                words << ToQString(SpokenLine(row));
            }
        }
        spoken = words.join(u'\n');
    }
    return *spoken;
}

/// Says what was written, to those who hear the sheet.
void SheetWidget::TellChange() {
    if (!QAccessible::isActive()) {
        return;
    }
    const QString before = std::exchange(told, Spoken());
    if (told.startsWith(before) && told != before) {
        QAccessibleTextInsertEvent written(this, static_cast<int>(before.size()),
                                           told.mid(before.size()));
        QAccessible::updateAccessibility(&written);
    } else if (told != before) {
        QAccessibleTextUpdateEvent rewritten(this, 0, before, told);
        QAccessible::updateAccessibility(&rewritten);
    }
}

QPixmap SheetWidget::Painted() const {
    const qreal ratio = devicePixelRatioF();
    QPixmap picture(size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    PaintPaper(painter, height(), ratio);
    if (shown == nullptr) {
        return picture;
    }
    if (hasTitleStrip) {
        painter.fillRect(kTitleStrip, Qt::white);
    }
    PaintTitle(painter, shown->title, metrics);
    PaintMarks(painter, shown->surface.Marks(), metrics, DrawCheckMark(ratio));
    return picture;
}

/// What was drawn is kept, so that a sheet can be dragged over ten others without a hitch.
void SheetWidget::paintEvent(QPaintEvent* event) {
    const qreal ratio = devicePixelRatioF();
    if (retained.isNull() || retained.devicePixelRatio() != ratio) {
        retained = Painted();
    }
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, retained);
    PaintShadowsFromAbove(painter);
}

/// The sheets in front are the siblings that come later.
void SheetWidget::PaintShadowsFromAbove(QPainter& painter) const {
    const QObjectList& siblings = parent()->children();
    for (auto at = siblings.indexOf(this) + 1; at < siblings.size(); ++at) {
        const auto* above = qobject_cast<const SheetWidget*>(siblings.at(at));
        if (above != nullptr && above->isVisible()) {
            PaintShadow(painter, above->geometry().translated(-pos()));
        }
    }
}

void SheetWidget::mousePressEvent(QMouseEvent* event) {
    emit Pressed(event->button() == Qt::LeftButton, PlaceOn(*this, *event));
}

void SheetWidget::mouseMoveEvent(QMouseEvent* event) {
    emit Moved(event->buttons().testFlag(Qt::LeftButton), PlaceOn(*this, *event));
}

void SheetWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    unsetCursor();
    emit Released();
}

}  // namespace numerello
