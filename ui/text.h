#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QString>
#include <algorithm>
#include <string_view>

#include "catalogue/guided_input.h"

namespace numerello {

inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// What a paste types, key by key: the first line of the clipboard, as no key types a line's end.
/// No line and no box holds more than what is kept; a book on the clipboard must not keep the
/// window busy.
inline QString PastedText() {
    const QString text = QGuiApplication::clipboard()->text().left(kLongestLine);
    const auto isBreak = [](QChar character) { return character == u'\n' || character == u'\r'; };
    return text.left(std::find_if(text.cbegin(), text.cend(), isBreak) - text.cbegin());
}

}  // namespace numerello
