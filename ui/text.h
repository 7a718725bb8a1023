#pragma once

#include <QString>
#include <string_view>

namespace numerello {

inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace numerello
