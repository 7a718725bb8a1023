#include "ui/zoom_button.h"

#include "ui/artwork.h"

namespace numerello {

namespace {

constexpr QSize kPictureSize(48, 48);
constexpr qreal kCorner = 8;

}  // namespace

ZoomButton::ZoomButton(const QString& picture, const QString& toolTip, QWidget* parent)
    : DeskButton(parent) {
    setIcon(ToolbarIcon(picture));
    setFixedSize(kPictureSize);
    setToolTip(toolTip);
    setAccessibleName(toolTip);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
}

void ZoomButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const bool lifted = underMouse() && !isDown();
    const QIcon::Mode mode =
        !isEnabled() ? QIcon::Disabled : (lifted ? QIcon::Active : QIcon::Normal);
    icon().paint(&painter, rect(), Qt::AlignCenter, mode);
    PaintFocus(painter, kCorner);
}

}  // namespace numerello
