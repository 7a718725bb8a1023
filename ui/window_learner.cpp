#include "ui/window_learner.h"

#include <QInputDialog>
#include <QMessageBox>

#include "ui/held_enter.h"
#include "ui/pointer.h"
#include "ui/text.h"

namespace numerello {

namespace {

/// A box without a title of its own carries the program's.
QString TitleOf(std::string_view title) {
    return title.empty() ? QStringLiteral("Vantrel - Numerello") : ToQString(title);
}

int Ask(QWidget* window, QMessageBox::Icon icon, std::string_view title, std::string_view text,
        QMessageBox::StandardButtons buttons) {
    const PointerGuard notBusy(Qt::ArrowCursor);
    const HeldEnterGuard oneEnter;
    QMessageBox box(icon, TitleOf(title), ToQString(text), buttons, window);
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Ok);
    return box.exec();
}

}  // namespace

void WindowLearner::MessageBox(std::string_view title, std::string_view text) {
    Ask(window, QMessageBox::Warning, title, text, QMessageBox::Ok);
}

bool WindowLearner::Confirm(std::string_view title, std::string_view text) {
    return Ask(window, QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel) ==
           QMessageBox::Ok;
}

std::optional<std::string> WindowLearner::InputBox(std::string_view title,
                                                   std::string_view prompt) {
    const PointerGuard notBusy(Qt::ArrowCursor);
    QInputDialog box(window);
    box.setObjectName(QStringLiteral("InputBox"));
    box.setWindowTitle(TitleOf(title));
    box.setLabelText(ToQString(prompt));
    return box.exec() == QDialog::Accepted ? std::optional(box.textValue().toStdString())
                                           : std::nullopt;
}

}  // namespace numerello
