#include "ui/accessible_sheet.h"

#include "ui/accessible_reading.h"
#include "ui/sheet_widget.h"

namespace numerello {

namespace {

class AccessibleSheet : public AccessibleReading {
  public:
    explicit AccessibleSheet(SheetWidget* sheet) : AccessibleReading(sheet), sheet(sheet) {}

    QString Spoken() const override { return sheet->Spoken(); }

    /// Behind what was written last.
    int cursorPosition() const override { return characterCount(); }

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
