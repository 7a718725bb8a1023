#pragma once

#include <QColor>

/// The colors of paper and what lies on it, whatever the desktop's own.
namespace numerello {

inline constexpr QColor kInkColor(0x2B, 0x3A, 0x55);
inline constexpr QColor kPaperColor(0xFF, 0xFD, 0xF5);

/// Around what has the keys, and behind what is chosen.
inline constexpr QColor kFocusColor(0x3F, 0x8F, 0xD2);

}  // namespace numerello
