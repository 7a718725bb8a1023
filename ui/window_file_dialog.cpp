#include "ui/window_file_dialog.h"

#include <QFileDialog>

#include "ui/held_enter.h"
#include "ui/pointer.h"
#include "ui/text.h"

namespace numerello {

namespace {

/// "Name|*.nrl" as the dialog wants it, which leaves the pattern in the parentheses out.
QString NameFilter(std::string_view filter) {
    const QStringList parts = ToQString(filter).split(u'|');
    return QStringLiteral("%1 (%2)").arg(parts.front(), parts.back());
}

}  // namespace

std::optional<std::string> WindowFileDialog::Show(const FileDialogSettings& settings) {
    const PointerGuard notBusy(Qt::ArrowCursor);
    const HeldEnterGuard oneEnter;
    QFileDialog dialog(window, ToQString(settings.title), ToQString(settings.folder));
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilter(NameFilter(settings.filter));
    dialog.setDefaultSuffix(ToQString(settings.defaultExtension));
    dialog.setAcceptMode(settings.saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(settings.saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!settings.suggestedName.empty()) {
        dialog.selectFile(ToQString(settings.suggestedName));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst().toStdString();
}

}  // namespace numerello
