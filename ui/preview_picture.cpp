#include "ui/preview_picture.h"

#include <QPainter>
#include <utility>

namespace numerello {

PreviewPicture::PreviewPicture(int index, ShownPage page, const PrintScale& scale, double zoom,
                               const FontMetrics& faces, QWidget* parent)
    : QWidget(parent), page(std::move(page)), scale(scale), zoom(zoom), faces(faces) {
    setObjectName(QStringLiteral("Picture1(%1)").arg(index));
    setAccessibleName(QStringLiteral("Page %1").arg(index + 1));
    setAccessibleDescription(this->page.words);
}

QSizeF PreviewPicture::NaturalSize() const {
    return QSizeF(scale.pageWidth, scale.pageHeight) * zoom;
}

void PreviewPicture::SetWidth(int width) {
    setFixedSize(width, qRound(width * scale.pageHeight / scale.pageWidth));
}

void PreviewPicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.scale(width() / scale.pageWidth, width() / scale.pageWidth);
    PaintPage(painter, page.marks, scale, faces);
}

}  // namespace numerello
