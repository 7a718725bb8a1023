#include "ui/typed_key.h"

#include "catalogue/guided_input.h"
#include "ui/text.h"

namespace numerello {

namespace {

bool IsShortcut(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

}  // namespace

QString TypedBy(const QKeyEvent& event) {
    if (IsShortcut(event)) {
        return {};
    }
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

}  // namespace numerello
