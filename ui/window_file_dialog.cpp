#include "ui/window_file_dialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>

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

/// Gives a typed name its extension before the dialog asks about overwriting a file of that name.
/// The suffix that the toolkit would add is left out behind any name with a point in it.
class NamingDialog : public QFileDialog {
  public:
    using QFileDialog::QFileDialog;

    void accept() override {
        CompleteName();
        QFileDialog::accept();
    }

  private:
    void CompleteName() {
        // A dialog of the desktop's own has no such field; its names are completed when it is over.
        auto* edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const QStringList files = selectedFiles();
        if (acceptMode() != AcceptSave || edit == nullptr || files.size() != 1) {
            return;
        }
        // A folder is entered.
        const std::string typed = edit->text().toStdString();
        if (typed.empty() || QFileInfo(files.constFirst()).isDir() ||
            HasExtension(typed, defaultSuffix().toStdString())) {
            return;
        }
        edit->setText(edit->text() + u'.' + defaultSuffix());
    }
};

/// In the toolkit's own dialog two labels do not say what they are the labels of.
void JoinLabels(const QFileDialog& dialog) {
    for (const auto& [label, list] :
         {std::pair("lookInLabel", "lookInCombo"), std::pair("fileTypeLabel", "fileTypeCombo")}) {
        auto* said = dialog.findChild<QLabel*>(QLatin1String(label));
        if (said != nullptr) {
            said->setBuddy(dialog.findChild<QWidget*>(QLatin1String(list)));
        }
    }
}

}  // namespace

std::optional<std::string> WindowFileDialog::Show(const FileDialogSettings& settings) {
    const PointerGuard notBusy(Qt::ArrowCursor);
    const HeldEnterGuard oneEnter;
    NamingDialog dialog(window, ToQString(settings.title), ToQString(settings.folder));
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilter(NameFilter(settings.filter));
    dialog.setDefaultSuffix(ToQString(settings.defaultExtension));
    dialog.setAcceptMode(settings.saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(settings.saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!settings.suggestedName.empty()) {
        dialog.selectFile(ToQString(settings.suggestedName));
    }
    JoinLabels(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst().toStdString();
}

}  // namespace numerello
