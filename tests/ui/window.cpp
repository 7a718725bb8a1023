#include "tests/ui/window.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWindow>
#include <utility>

namespace numerello {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr seconds kPatience(2);
constexpr milliseconds kGlance(10);

QWindow* NativeWindow(QWidget& widget) {
    QWindow* window = widget.window()->windowHandle();
    if (window == nullptr) {
        throw std::runtime_error("'" + widget.objectName().toStdString() + "' was never shown");
    }
    return window;
}

QPoint InWindow(QWidget& widget, QPoint place) {
    return widget.mapTo(widget.window(), place);
}

/// A dialog that runs its loop has to end it; hiding alone would do for other windows.
void CloseModal(QWidget& window) {
    if (auto* dialog = qobject_cast<QDialog*>(&window)) {
        dialog->done(QDialog::Rejected);
    } else {
        window.close();
    }
}

}  // namespace

void ShowActive(QWidget& window) {
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error("'" + window.objectName().toStdString() +
                                 "' does not become active");
    }
}

void PressKeys(QWidget& window, std::initializer_list<Qt::Key> keys) {
    const QPointer<QWidget> guarded(&window);
    for (const Qt::Key key : keys) {
        if (guarded && guarded->isVisible()) {
            PressKey(window, key);
        }
    }
}

void PressKey(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(NativeWindow(window), key, modifiers);
}

void TypeText(QWidget& window, const QString& text) {
    for (const QChar character : text) {
        const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, NativeWindow(window), key, QString(character), {});
    }
}

void Click(QWidget& widget) {
    Click(widget, widget.rect().center());
}

void Click(QWidget& widget, QPoint place, Qt::MouseButton button) {
    QTest::mouseClick(NativeWindow(widget), button, {}, InWindow(widget, place));
}

void Press(QWidget& widget, QPoint place, Qt::MouseButton button) {
    QTest::mousePress(NativeWindow(widget), button, {}, InWindow(widget, place));
}

void Release(QWidget& widget, QPoint place, Qt::MouseButton button) {
    QTest::mouseRelease(NativeWindow(widget), button, {}, InWindow(widget, place));
}

void DoubleClick(QWidget& widget, QPoint place, Qt::MouseButton button) {
    QTest::mouseDClick(NativeWindow(widget), button, {}, InWindow(widget, place));
}

QPoint PlaceOf(QAbstractItemView& view, const QModelIndex& row) {
    view.scrollTo(row);
    const QPoint place = view.visualRect(row).center();
    if (!row.isValid() || !view.viewport()->rect().contains(place)) {
        throw std::runtime_error("a row is not shown: " + row.data().toString().toStdString());
    }
    return place;
}

void ClickRow(QAbstractItemView& view, const QModelIndex& row) {
    Click(*view.viewport(), PlaceOf(view, row));
}

void DoubleClickRow(QAbstractItemView& view, const QModelIndex& row) {
    DoubleClick(*view.viewport(), PlaceOf(view, row));
}

void PressButton(QWidget& dialog, const QString& caption) {
    for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
        if (button->text().remove(QLatin1Char('&')) == caption && button->isVisible()) {
            Click(*button);
            return;
        }
    }
    throw std::runtime_error("'" + dialog.objectName().toStdString() + "' has no button '" +
                             caption.toStdString() + "'");
}

WhenDialogOpens::WhenDialogOpens(const QString& name, Action action)
    : WhenDialogOpens([name](const QWidget& window) { return window.objectName() == name; },
                      std::move(action), name) {}

WhenDialogOpens::WhenDialogOpens(Wanted wanted, Action action, const QString& description)
    : wanted(std::move(wanted)), action(std::move(action)), description(description) {
    timer.callOnTimeout([this] { Look(); });
    timer.start(kGlance);
}

WhenDialogOpens::~WhenDialogOpens() {
    if (!opened && !failed) {
        ADD_FAILURE() << "no window '" << description.toStdString() << "' has opened";
    }
}

void WhenDialogOpens::Look() {
    const bool late = std::chrono::steady_clock::now() - since > kPatience;
    QWidget* modal = QApplication::activeModalWidget();
    if (!opened && modal != nullptr && modal->isVisible() && wanted(*modal)) {
        Act(*modal);
    } else if (!opened && late) {
        Fail(QStringLiteral("did not open within two seconds"));
    } else if (opened && (!dialog || !dialog->isVisible())) {
        timer.stop();
    } else if (opened && late) {
        Fail(QStringLiteral("still stands two seconds after the action"));
    }
}

void WhenDialogOpens::Act(QWidget& window) {
    opened = true;
    dialog = &window;
    since = std::chrono::steady_clock::now();
    try {
        action(window);
    } catch (const std::exception& error) {
        Fail(QString::fromUtf8(error.what()));
    }
}

void WhenDialogOpens::Fail(const QString& what) {
    timer.stop();
    failed = true;
    ADD_FAILURE() << "window '" << description.toStdString() << "': " << what.toStdString();
    while (QWidget* modal = QApplication::activeModalWidget()) {
        CloseModal(*modal);
    }
}

NoDialogOpens::NoDialogOpens() {
    QObject::connect(&timer, &QTimer::timeout, &timer, [] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            ADD_FAILURE() << "a window opened: " << dialog->objectName().toStdString();
            dialog->close();
        }
    });
    timer.start(std::chrono::milliseconds(10));
}

}  // namespace numerello
