#include "ui/typed_key.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>

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

bool IsForBox(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Escape:
        case Qt::Key_Delete:
            return false;
        default:
            return !event.text().isEmpty() && !IsShortcut(event);
    }
}

QString PastedText() {
    const QString text = QGuiApplication::clipboard()->text().left(kLongestLine);
    const auto isBreak = [](QChar character) { return character == u'\n' || character == u'\r'; };
    return text.left(std::find_if(text.cbegin(), text.cend(), isBreak) - text.cbegin());
}

}  // namespace numerello
