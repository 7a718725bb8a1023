#include "ui/light_button.h"

#include <QPainter>

#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {

namespace {

using Picture = EntryControls::LightPicture;

QString KeyOf(Picture picture) {
    switch (picture) {
        case Picture::Correct:
            return QStringLiteral("light2");
        case Picture::Incorrect:
            return QStringLiteral("light3");
        case Picture::Neutral:
            break;
    }
    return QStringLiteral("light1");
}

}  // namespace

LightButton::LightButton(QWidget* desk) : MenuButton(desk) {
    setObjectName(QStringLiteral("Light"));
    setAccessibleName(QStringLiteral("Guided Input Light"));
    setFixedSize(kSize);
    setFocusPolicy(Qt::TabFocus);
}

void LightButton::Show(const EntryControls& controls) {
    picture = controls.Light;
    setToolTip(ToQString(controls.LightToolTip));
    setAccessibleDescription(toolTip());
    setCursor(picture == Picture::Incorrect ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void LightButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, Artwork(KeyOf(picture), kSize, devicePixelRatioF()));
    PaintFocus(painter, 14);
}

}  // namespace numerello
