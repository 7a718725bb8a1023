#pragma once

#include <QPainter>

#include "graph/picture.h"
#include "ui/font_metrics.h"

namespace numerello {

/// Paints the picture over the whole of the place, in units of 96 to the inch, and nothing beside
/// it. On a device with pixels to be seen, upright and level lines keep to whole ones.
void PaintGraph(QPainter& painter, const QRectF& place, const GraphPicture& picture,
                const FontMetrics& faces);

}  // namespace numerello
