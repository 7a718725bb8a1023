#include "ui/desk_button.h"

#include <QKeyEvent>

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

}  // namespace numerello
