#include "ui/dialog_help.h"

#include <QDialog>
#include <QShortcut>

#include "ui/frm_help.h"

namespace numerello {

void OfferHelp(QDialog& dialog, const QString& page) {
    auto* key = new QShortcut(Qt::Key_F1, &dialog);
    QObject::connect(key, &QShortcut::activated, &dialog, [&dialog, page] {
        auto* help = dialog.findChild<FrmHelp*>(QString(), Qt::FindDirectChildrenOnly);
        if (help == nullptr) {
            help = new FrmHelp(&dialog);
        }
        help->ShowPage(page);
    });
}

}  // namespace numerello
