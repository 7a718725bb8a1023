#include "ui/status_line.h"

#include <QAccessible>

namespace numerello {

StatusLine::StatusLine(QWidget* parent) : QStatusBar(parent) {
    setObjectName(QStringLiteral("StatusLine"));
    setSizeGripEnabled(false);
    hide();
    connect(this, &QStatusBar::messageChanged, this,
            [this](const QString& text) { setVisible(!text.isEmpty()); });
}

void StatusLine::Tell(const QString& text, std::chrono::milliseconds time) {
    setAccessibleName(text);
    showMessage(text, static_cast<int>(time.count()));
    QAccessibleEvent told(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

}  // namespace numerello
