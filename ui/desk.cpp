#include "ui/desk.h"

#include <QPaintEvent>
#include <QPainter>

#include "ui/artwork.h"
#include "ui/sheet_widget.h"

namespace numerello {

namespace {

constexpr QSize kTile(512, 512);

}  // namespace

void PaintShadow(QPainter& painter, const QRect& sheet) {
    constexpr int kDepth = 6;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(70, 45, 15, 14));
    for (int i = 1; i <= kDepth; ++i) {
        painter.drawRoundedRect(QRectF(sheet).adjusted(-i + 2, -i + 4, i + 1, i + 2), i, i);
    }
}

Desk::Desk(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("desk"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Desk::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QPixmap tile = Artwork(QStringLiteral("desk"), kTile, devicePixelRatioF());
    painter.drawTiledPixmap(event->rect(), tile, event->rect().topLeft());
    for (const QObject* child : children()) {
        const auto* sheet = qobject_cast<const SheetWidget*>(child);
        if (sheet != nullptr && sheet->isVisible()) {
            PaintShadow(painter, sheet->geometry());
        }
    }
}

}  // namespace numerello
