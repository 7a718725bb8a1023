#include "ui/accessible_reading.h"

#include <algorithm>

namespace numerello {

void* AccessibleReading::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) {
        return static_cast<QAccessibleTextInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleReading::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    return state;
}

QString AccessibleReading::text(int startOffset, int endOffset) const {
    const QString all = Spoken();
    const int end = endOffset < 0 ? static_cast<int>(all.size()) : endOffset;
    return all.mid(startOffset, std::max(0, end - startOffset));
}

QString AccessibleReading::attributes(int /*offset*/, int* startOffset, int* endOffset) const {
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
}

void AccessibleReading::selection(int /*index*/, int* startOffset, int* endOffset) const {
    *startOffset = 0;
    *endOffset = 0;
}

}  // namespace numerello
