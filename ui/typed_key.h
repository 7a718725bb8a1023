#pragma once

#include <QKeyEvent>
#include <QString>

/// What keys mean on the sheet.
namespace numerello {

/// Either of the two Enter keys.
constexpr bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// What a key types on the line: a character, or a Backspace. A dead accent counts as its character
/// at once. Empty for a key that types nothing, and for a shortcut.
QString TypedBy(const QKeyEvent& event);

/// Whether a key puts a character into a box; the others belong to the form.
bool IsForBox(const QKeyEvent& event);

/// What a paste types, key by key: the first line of the clipboard, as no key types a line's end.
/// No line and no box holds more than what is kept; a book on the clipboard must not keep the
/// window busy.
QString PastedText();

}  // namespace numerello
