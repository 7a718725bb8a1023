#include "ui/desk_button.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include "ui/colors.h"

namespace numerello {

void DeskButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            event->ignore();
            return;
        default:
            QAbstractButton::keyPressEvent(event);
    }
}

void DeskButton::PaintFocus(QPainter& painter, qreal radius) const {
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(kFocusColor, 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
    }
}

void MenuButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint())) {
        emit MenuAsked(event->globalPosition().toPoint());
        return;
    }
    DeskButton::mouseReleaseEvent(event);
}

void MenuButton::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        emit MenuAsked(event->globalPos());
    }
}

}  // namespace numerello
