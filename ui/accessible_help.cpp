#include <QAccessibleWidget>
#include <algorithm>

#include "ui/help_view.h"

namespace numerello {

namespace {

/// A page to be read: its pictures in words, which the toolkit's own text would leave out.
class AccessibleHelp : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit AccessibleHelp(HelpView* view)
        : QAccessibleWidget(view, QAccessible::Document), view(view) {}

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
        const QString all = view->Spoken();
        const int end = endOffset < 0 ? static_cast<int>(all.size()) : endOffset;
        return all.mid(startOffset, std::max(0, end - startOffset));
    }

    int characterCount() const override { return static_cast<int>(view->Spoken().size()); }

    void selection(int /*index*/, int* startOffset, int* endOffset) const override {
        *startOffset = 0;
        *endOffset = 0;
    }
    int selectionCount() const override { return 0; }
    void addSelection(int /*startOffset*/, int /*endOffset*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*startOffset*/, int /*endOffset*/) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}

    /// Words are not where their signs are: the page as a whole.
    QRect characterRect(int /*offset*/) const override { return rect(); }
    int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
    void scrollToSubstring(int /*startIndex*/, int /*endIndex*/) override {}

    QString attributes(int /*offset*/, int* startOffset, int* endOffset) const override {
        *startOffset = 0;
        *endOffset = characterCount();
        return {};
    }

  private:
    HelpView* view;
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
    auto* view = qobject_cast<HelpView*>(object);
    return view != nullptr ? new AccessibleHelp(view) : nullptr;
}

}  // namespace

void TellHelp() {
    QAccessible::installFactory(MakeInterface);
}

}  // namespace numerello
