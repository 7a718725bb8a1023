#pragma once

#include <QSize>

#include "ui/surface_painter.h"

namespace numerello {

/// How large the check mark is on a sheet, the only picture that sheets have.
inline constexpr QSize kCheckMark(36, 36);

/// Draws it, sharp where a sheet pixel is so many pixels wide.
PictureDrawer DrawCheckMark(qreal pixels);

}  // namespace numerello
