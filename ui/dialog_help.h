#pragma once

class QDialog;
class QString;

namespace numerello {

/// F1 in a dialog opens the help at this page. The window is the dialog's own and goes with it, as
/// a modal dialog lets no other one be used.
void OfferHelp(QDialog& dialog, const QString& page);

}  // namespace numerello
