#include "ui/held_enter.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace numerello {

HeldEnterGuard::HeldEnterGuard() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool HeldEnterGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (key->isAutoRepeat() && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace numerello
