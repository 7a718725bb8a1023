#include "ui/light_button.h"

#include <QContextMenuEvent>
#include <QPainter>

#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {

namespace {

using Picture = EntryControls::LightPicture;

QString KeyOf(Picture picture) {
    switch (picture) {
        case Picture::Correct:
            return QStringLiteral("light2");
        case Picture::Incorrect:
            return QStringLiteral("light3");
        case Picture::Neutral:
            break;
    }
    return QStringLiteral("light1");
}

}  // namespace

LightButton::LightButton(QWidget* desk) : DeskButton(desk) {
    setObjectName(QStringLiteral("Light"));
    setAccessibleName(QStringLiteral("Guided Input Light"));
    setFixedSize(kSize);
    setFocusPolicy(Qt::TabFocus);
}

void LightButton::Show(const EntryControls& controls) {
    picture = controls.Light;
    setToolTip(ToQString(controls.LightToolTip));
    setAccessibleDescription(toolTip());
    setCursor(picture == Picture::Incorrect ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void LightButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, Artwork(KeyOf(picture), kSize, devicePixelRatioF()));
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0x3F, 0x8F, 0xD2), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 14, 14);
    }
}

void LightButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint())) {
        emit MenuAsked(event->globalPosition().toPoint());
        return;
    }
    QAbstractButton::mouseReleaseEvent(event);
}

void LightButton::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        emit MenuAsked(event->globalPos());
    }
}

}  // namespace numerello
