#pragma once

#include <QAccessibleWidget>

namespace numerello {

/// A document to be read and not to be changed: no caret, no selection. What it says is told by the
/// widget's own words, for signs and pictures have none.
class AccessibleReading : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit AccessibleReading(QWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Document) {}

    /// All of it, in words.
    virtual QString Spoken() const = 0;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;

    QString text(QAccessible::Text kind) const override { return QAccessibleWidget::text(kind); }
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override { return static_cast<int>(Spoken().size()); }
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

    void selection(int index, int* startOffset, int* endOffset) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int /*startOffset*/, int /*endOffset*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*startOffset*/, int /*endOffset*/) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}

    /// Words are not where their signs are: the document as a whole.
    QRect characterRect(int /*offset*/) const override { return rect(); }
    int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
    void scrollToSubstring(int /*startIndex*/, int /*endIndex*/) override {}
};

}  // namespace numerello
