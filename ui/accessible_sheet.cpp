#include "ui/accessible_sheet.h"

#include <QAccessibleWidget>
#include <algorithm>

#include "ui/sheet_widget.h"

namespace numerello {

namespace {

/// A text to be read and not to be changed: no caret, no selection.
class AccessibleSheet : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit AccessibleSheet(SheetWidget* sheet)
        : QAccessibleWidget(sheet, QAccessible::Document), sheet(sheet) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) {
            return static_cast<QAccessibleTextInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override { return QAccessibleWidget::text(kind); }

    QString text(int startOffset, int endOffset) const override {
        const QString all = sheet->Spoken();
        const int end = endOffset < 0 ? static_cast<int>(all.size()) : endOffset;
        return all.mid(startOffset, std::max(0, end - startOffset));
    }

    int characterCount() const override { return static_cast<int>(sheet->Spoken().size()); }

    void selection(int /*index*/, int* startOffset, int* endOffset) const override {
        *startOffset = 0;
        *endOffset = 0;
    }
    int selectionCount() const override { return 0; }
    void addSelection(int /*startOffset*/, int /*endOffset*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*startOffset*/, int /*endOffset*/) override {}

    /// Behind what was written last.
    int cursorPosition() const override { return characterCount(); }
    void setCursorPosition(int /*position*/) override {}

    /// Words are not where their signs are: the sheet as a whole.
    QRect characterRect(int /*offset*/) const override { return rect(); }
    int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
    void scrollToSubstring(int /*startIndex*/, int /*endIndex*/) override {}

    QString attributes(int /*offset*/, int* startOffset, int* endOffset) const override {
        *startOffset = 0;
        *endOffset = characterCount();
        return {};
    }

  private:
    SheetWidget* sheet;
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
    auto* sheet = qobject_cast<SheetWidget*>(object);
    return sheet != nullptr ? new AccessibleSheet(sheet) : nullptr;
}

}  // namespace

void TellSheets() {
    QAccessible::installFactory(MakeInterface);
}

}  // namespace numerello
