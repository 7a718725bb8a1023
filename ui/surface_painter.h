#pragma once

#include <QPainter>
#include <functional>
#include <string>
#include <vector>

#include "typeset/surface.h"
#include "ui/font_metrics.h"

namespace numerello {

/// Draws the picture of that key with its top left corner at the point.
using PictureDrawer =
    std::function<void(QPainter& painter, const std::string& key, QPointF corner)>;

/// Replays a display list. The painter's transform says how large and where a surface's unit is;
/// its state is left as it was. Without a drawer pictures are left out. The faces must be those
/// that the surface measured with, or characters printed one by one drift apart.
void PaintMarks(QPainter& painter, const std::vector<Mark>& marks, const FontMetrics& faces,
                const PictureDrawer& drawPicture = {});

/// A colour with red in the low byte, there and back; how far it shines through is lost.
QColor ToQColor(Color color);
Color FromQColor(const QColor& color);

}  // namespace numerello
