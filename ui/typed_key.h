#pragma once

#include <QKeyEvent>
#include <QString>

namespace numerello {

/// What a key types on the line: a character, or a Backspace. A dead accent counts as its character
/// at once. Empty for a key that types nothing, and for a shortcut.
QString TypedBy(const QKeyEvent& event);

}  // namespace numerello
