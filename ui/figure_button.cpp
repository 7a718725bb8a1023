#include "ui/figure_button.h"

#include <QPainter>
#include <algorithm>

#include "ui/artwork.h"
#include "ui/colors.h"
#include "worksheet/assistant.h"

namespace numerello {

namespace {

constexpr QSize kPicture(Assistant::kWidth, Assistant::kHeight);
constexpr int kMargin = 8;
constexpr int kRadius = 8;
constexpr int kFrame = 3;
constexpr int kGap = 3;  ///< between picture and name

QRectF Inside(const QRect& rect, qreal pen) {
    return QRectF(rect).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
}

}  // namespace

FigureButton::FigureButton(const QString& key, const QString& name, QWidget* parent)
    : QAbstractButton(parent), key(key) {
    setObjectName(key);
    setText(name);
    setAccessibleName(name);
    setCheckable(true);
    setAutoExclusive(true);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize FigureButton::sizeHint() const {
    const int width = std::max(kPicture.width(), fontMetrics().horizontalAdvance(text()));
    return QSize(width, kPicture.height() + kMargin + fontMetrics().height()) +
           QSize(2 * kMargin, 2 * kMargin);
}

void FigureButton::paintEvent(QPaintEvent* /*event*/) {
    const QRect card(0, 0, width(), kPicture.height() + 2 * kMargin);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool chosen = isChecked();
    const qreal pen = chosen ? kFrame : 1;
    painter.setPen(QPen(palette().color(chosen ? QPalette::Highlight : QPalette::Mid), pen));
    // The figures are drawn for paper, also where the desktop is dark.
    painter.setBrush(kPaperColor);
    painter.drawRoundedRect(Inside(card, pen), kRadius, kRadius);
    painter.drawPixmap((width() - kPicture.width()) / 2, kMargin,
                       Artwork(key, kPicture, devicePixelRatioF()));

    const QRect name(0, card.height() + kGap, width(), height() - card.height() - kGap);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(Inside(name, 1), kGap, kGap);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(name, Qt::AlignCenter, text());
}

}  // namespace numerello
