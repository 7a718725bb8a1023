#include "ui/check_mark.h"

#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {

PictureDrawer DrawCheckMark(qreal pixels) {
    return [pixels](QPainter& painter, const std::string& key, QPointF corner) {
        painter.drawPixmap(corner, Artwork(ToQString(key), kCheckMark, pixels));
    };
}

}  // namespace numerello
