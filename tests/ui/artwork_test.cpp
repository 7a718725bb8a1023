#include "ui/artwork.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <stdexcept>

namespace numerello {
namespace {

QStringList AllKeys() {
    QStringList keys;
    for (QDirIterator files(QStringLiteral(":/art"), QDirIterator::Subdirectories);
         files.hasNext();) {
        files.next();
        if (files.fileInfo().isFile()) {
            keys << files.filePath().mid(6).chopped(4);
        }
    }
    return keys;
}

QRect InkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 127) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

QImage Shown(const QIcon& icon, QIcon::Mode mode, int size = 48, qreal scale = 1) {
    return icon.pixmap({size, size}, scale, mode).toImage();
}

TEST(Artwork, EveryDrawingCanBeShown) {
    const QStringList keys = AllKeys();
    for (const char* key : {"book1", "book2", "check", "paper", "toolbar/new", "toolbar/solve"}) {
        EXPECT_TRUE(keys.contains(QLatin1String(key))) << key;
    }
    for (const QString& key : keys) {
        const QImage image = Artwork(key, {60, 60}, 1).toImage();
        EXPECT_FALSE(InkOf(image).isEmpty()) << key.toStdString();
    }
}

TEST(Artwork, HasTheSizeThatWasAskedFor) {
    const QPixmap picture = Artwork(QStringLiteral("book1"), {20, 20}, 1.25);
    EXPECT_EQ(picture.size(), QSize(25, 25));
    EXPECT_DOUBLE_EQ(picture.devicePixelRatio(), 1.25);
    EXPECT_TRUE(Artwork(QStringLiteral("book1"), {0, 20}, 1).isNull());
}

TEST(Artwork, IsPaintedAfreshAtEachScale) {
    const QImage small = Artwork(QStringLiteral("book1"), {20, 20}, 1).toImage();
    const QImage large = Artwork(QStringLiteral("book1"), {20, 20}, 4).toImage();
    EXPECT_EQ(large.size(), QSize(80, 80));
    const QRect smallInk = InkOf(small);
    const QRect largeInk = InkOf(large);
    EXPECT_NEAR(largeInk.width(), 4 * smallInk.width(), 4);
    EXPECT_NEAR(largeInk.height(), 4 * smallInk.height(), 4);
    // Enlarged from 20 pixels, the edges would not be those.
    EXPECT_NE(large, small.scaled(80, 80, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

TEST(Artwork, KeepsItsShapeInTheMiddle) {
    // The light is 48 wide and 120 high: in 120 by 120 it leaves 36 on either side.
    const QRect ink = InkOf(Artwork(QStringLiteral("light1"), {120, 120}, 1).toImage());
    EXPECT_GE(ink.left(), 36);
    EXPECT_LT(ink.right(), 84);
    EXPECT_GT(ink.height(), 100);
}

TEST(Artwork, IsPaintedOnce) {
    const QPixmap first = Artwork(QStringLiteral("check"), {36, 36}, 2);
    EXPECT_EQ(Artwork(QStringLiteral("check"), {36, 36}, 2).cacheKey(), first.cacheKey());
    EXPECT_NE(Artwork(QStringLiteral("check"), {36, 36}, 1).cacheKey(), first.cacheKey());
}

TEST(Artwork, KeyWithoutADrawingIsAMistake) {
    EXPECT_THROW(Artwork(QStringLiteral("book3"), {20, 20}, 1), std::invalid_argument);
    EXPECT_THROW(ArtworkIcon(QStringLiteral("book3")), std::invalid_argument);
    EXPECT_THROW(ToolbarIcon(QStringLiteral("book1")), std::invalid_argument);
}

TEST(ArtworkIcon, IsTheDrawingAtEverySizeAndScale) {
    const QIcon icon = ArtworkIcon(QStringLiteral("book2"));
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        const QPixmap picture = icon.pixmap(QSize(20, 20), scale);
        EXPECT_EQ(picture.toImage(), Artwork(QStringLiteral("book2"), {20, 20}, scale).toImage());
        EXPECT_DOUBLE_EQ(picture.devicePixelRatio(), scale);
    }
    EXPECT_EQ(Shown(icon, QIcon::Active), Shown(icon, QIcon::Normal));
    EXPECT_EQ(Shown(icon, QIcon::Selected), Shown(icon, QIcon::Normal));
}

TEST(ArtworkIcon, IsPaintedSharp) {
    const QIcon icon = ArtworkIcon(QStringLiteral("book1"));
    QImage canvas(40, 40, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(2);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    icon.paint(&painter, QRect(0, 0, 20, 20));
    painter.end();
    QImage expected = Artwork(QStringLiteral("book1"), {20, 20}, 2).toImage();
    EXPECT_EQ(canvas.convertToFormat(expected.format()), expected);
}

TEST(ToolbarIcon, UnderThePointerIsTwoPixelsHigherAndThrowsAShadow) {
    const QIcon icon = ToolbarIcon(QStringLiteral("new"));
    for (const int scale : {1, 2}) {
        const QImage normal = Shown(icon, QIcon::Normal, 48, scale);
        const QImage hot = Shown(icon, QIcon::Active, 48, scale);
        EXPECT_EQ(InkOf(hot), InkOf(normal).translated(0, -2 * scale));
        const QRect ink = InkOf(hot);
        const QPoint below(ink.left() + ink.width() / 3, ink.bottom() + 2 * scale);
        EXPECT_GT(hot.pixelColor(below).alpha(), 10);
        EXPECT_LT(hot.pixelColor(below).alpha(), 100);
    }
}

TEST(ToolbarIcon, DisabledIsGreyAndPale) {
    const QIcon icon = ToolbarIcon(QStringLiteral("solve"));
    const QImage normal = Shown(icon, QIcon::Normal).convertToFormat(QImage::Format_ARGB32);
    const QImage grey = Shown(icon, QIcon::Disabled).convertToFormat(QImage::Format_ARGB32);
    int colored = 0;
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 48; ++x) {
            const QColor before = normal.pixelColor(x, y);
            const QColor after = grey.pixelColor(x, y);
            colored += before.alpha() == 255 && before.saturation() > 100 ? 1 : 0;
            EXPECT_NEAR(after.alpha(), before.alpha() * 0.45, 1);
            if (after.alpha() > 100) {
                EXPECT_LE(after.saturation(), 12);
            }
        }
    }
    EXPECT_GT(colored, 100);
}

}  // namespace
}  // namespace numerello
