#include "ui/accessible_reading.h"
#include "ui/help_view.h"

namespace numerello {

namespace {

/// The toolkit's own text of a page would leave the pictures out.
class AccessibleHelp : public AccessibleReading {
  public:
    explicit AccessibleHelp(HelpView* view) : AccessibleReading(view), view(view) {}

    QString Spoken() const override { return view->Spoken(); }

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
