#include "ui/artwork.h"

#include <QCache>
#include <QCoreApplication>
#include <QFile>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <map>
#include <memory>
#include <stdexcept>

namespace numerello {

namespace {

enum class Look { Plain, Lifted, Grey };

constexpr qreal kLift = 2.0 / 48;  // of the picture's height
constexpr QColor kShadow(0, 0, 0, 36);
constexpr qreal kDisabledOpacity = 0.45;
constexpr int kKeptKilobytes = 64 * 1024;

/// What was parsed and painted. Emptied with the application: no picture may outlive it.
struct Shelf {
    std::map<QString, std::unique_ptr<QSvgRenderer>> drawings;
    QCache<QString, QPixmap> pictures{kKeptKilobytes};
};

Shelf& TheShelf() {
    static Shelf shelf;
    static const bool emptiedAtTheEnd = [] {
        qAddPostRoutine([] {
            shelf.drawings.clear();
            shelf.pictures.clear();
        });
        return true;
    }();
    Q_UNUSED(emptiedAtTheEnd);
    return shelf;
}

QString FileOf(const QString& key) {
    return QStringLiteral(":/art/") + key + QStringLiteral(".svg");
}

void RequireDrawing(const QString& key) {
    if (!QFile::exists(FileOf(key))) {
        throw std::invalid_argument("there is no drawing '" + key.toStdString() + "'");
    }
}

QSvgRenderer& DrawingOf(const QString& key) {
    std::unique_ptr<QSvgRenderer>& drawing = TheShelf().drawings[key];
    if (!drawing) {
        RequireDrawing(key);
        drawing = std::make_unique<QSvgRenderer>(FileOf(key));
        drawing->setAspectRatioMode(Qt::KeepAspectRatio);
    }
    return *drawing;
}

QImage Plain(const QString& key, QSize pixels) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    DrawingOf(key).render(&painter);
    return image;
}

QImage Shadow(QImage image) {
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), kShadow);
    return image;
}

/// The shadow falls in two layers, so that its lower edge is soft.
QImage Lifted(const QImage& plain) {
    QImage image(plain.size(), plain.format());
    image.fill(Qt::transparent);
    const QImage shadow = Shadow(plain);
    const qreal lift = plain.height() * kLift;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QPointF(0, lift / 2), shadow);
    painter.drawImage(QPointF(0, lift), shadow);
    painter.drawImage(QPointF(0, -lift), plain);
    return image;
}

QImage Grey(const QImage& plain) {
    QImage grey = plain.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < grey.height(); ++y) {
        for (int x = 0; x < grey.width(); ++x) {
            const QRgb color = grey.pixel(x, y);
            const int shade = qGray(color);
            const int alpha = qRound(qAlpha(color) * kDisabledOpacity);
            grey.setPixel(x, y, qRgba(shade, shade, shade, alpha));
        }
    }
    return grey;
}

QImage Paint(const QString& key, QSize pixels, Look look) {
    QImage plain = Plain(key, pixels);
    switch (look) {
        case Look::Lifted:
            return Lifted(plain);
        case Look::Grey:
            return Grey(plain);
        case Look::Plain:
            break;
    }
    return plain;
}

QPixmap Picture(const QString& key, QSize pixels, qreal devicePixelRatio, Look look) {
    if (pixels.isEmpty()) {
        return {};
    }
    const QString name = QStringLiteral("%1 %2 %3 %4 %5")
                             .arg(key)
                             .arg(pixels.width())
                             .arg(pixels.height())
                             .arg(devicePixelRatio)
                             .arg(static_cast<int>(look));
    if (const QPixmap* kept = TheShelf().pictures.object(name)) {
        return *kept;
    }
    QPixmap picture = QPixmap::fromImage(Paint(key, pixels, look));
    picture.setDevicePixelRatio(devicePixelRatio);
    const int kilobytes = 1 + pixels.width() * pixels.height() * 4 / 1024;
    TheShelf().pictures.insert(name, new QPixmap(picture), kilobytes);
    return picture;
}

/// Paints a drawing when it is asked for, at the size that it is asked for.
class DrawnIcon : public QIconEngine {
  public:
    DrawnIcon(QString key, Look underPointer) : key(std::move(key)), underPointer(underPointer) {}

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        return Picture(key, size, 1, LookOf(mode));
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/,
                         qreal scale) override {
        return Picture(key, size, scale, LookOf(mode));
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        const qreal scale = painter->device()->devicePixelRatioF();
        const QSize pixels = (QSizeF(rect.size()) * scale).toSize();
        painter->drawPixmap(rect.topLeft(), Picture(key, pixels, scale, LookOf(mode)));
    }

    QIconEngine* clone() const override { return new DrawnIcon(*this); }

  private:
    Look LookOf(QIcon::Mode mode) const {
        switch (mode) {
            case QIcon::Disabled:
                return Look::Grey;
            case QIcon::Active:
                return underPointer;
            case QIcon::Normal:
            case QIcon::Selected:
                break;
        }
        return Look::Plain;
    }

    QString key;
    Look underPointer;
};

}  // namespace

QPixmap Artwork(const QString& key, QSize size, qreal devicePixelRatio) {
    const QSize pixels = (QSizeF(size) * devicePixelRatio).toSize();
    return Picture(key, pixels, devicePixelRatio, Look::Plain);
}

QIcon ArtworkIcon(const QString& key) {
    RequireDrawing(key);
    return QIcon(new DrawnIcon(key, Look::Plain));
}

QIcon ToolbarIcon(const QString& key) {
    const QString drawing = QStringLiteral("toolbar/") + key;
    RequireDrawing(drawing);
    return QIcon(new DrawnIcon(drawing, Look::Lifted));
}

}  // namespace numerello
