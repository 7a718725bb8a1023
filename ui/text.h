#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QString>
#include <string_view>

namespace numerello {

inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// What a paste types, key by key. No line and no box holds more; a book on the clipboard must not
/// keep the window busy.
inline QString PastedText() {
    constexpr qsizetype kLongest = 480;
    return QGuiApplication::clipboard()->text().left(kLongest);
}

}  // namespace numerello
