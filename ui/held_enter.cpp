#include "ui/held_enter.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "ui/typed_key.h"

namespace numerello {

HeldEnterGuard::HeldEnterGuard() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool HeldEnterGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (key->isAutoRepeat() && IsEnter(key->key())) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace numerello
