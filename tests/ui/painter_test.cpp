#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <string>
#include <vector>

#include "typeset/sample.h"
#include "ui/surface_painter.h"

namespace numerello {
namespace {

const std::string kFace(kSheetFace);
constexpr double kSegment = 134.0 / 17;

class Painted : public ::testing::Test {
  protected:
    QImage Paint(const std::vector<Mark>& marks, double scale = 1,
                 const PictureDrawer& drawPicture = {}) const {
        QImage image(static_cast<int>(120 * scale), static_cast<int>(60 * scale),
                     QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(scale, scale);
        PaintMarks(painter, marks, faces, drawPicture);
        return image;
    }

    std::vector<Mark> Line(const std::string& text) const {
        std::vector<Mark> marks;
        for (const auto& placed :
             TypesetSample({TypesetTarget::Paper, text, -60, 0, {}, false}, faces).marks) {
            marks.push_back(placed.mark);
        }
        return marks;
    }

    FontMetrics faces{FontMetrics::Medium::Sheet};
};

int Ink(const QImage& image, int x, int y) {
    return 255 - qGray(image.pixel(x, y));
}

/// Darkest ink in a column between two rows.
int Darkest(const QImage& image, int x, int top, int bottom) {
    int darkest = 0;
    for (int y = top; y < bottom; ++y) {
        darkest = std::max(darkest, Ink(image, x, y));
    }
    return darkest;
}

TEST_F(Painted, RowOfSegmentsIsOneEvenBar) {
    std::vector<Mark> marks;
    for (int i = 0; i < 10; ++i) {
        marks.emplace_back(TextMark{"_", 10 + i * kSegment, 5, {kFace, 12}, kBlack});
    }
    for (const int scale : {1, 2, 3}) {
        const QImage image = Paint(marks, scale);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 12 * scale; x < 85 * scale; ++x) {
                ASSERT_EQ(image.pixel(x, y), image.pixel(11 * scale, y)) << x << " " << y;
            }
        }
        EXPECT_GT(Darkest(image, 40 * scale, 0, image.height()), 150);
        EXPECT_EQ(Darkest(image, 8 * scale, 0, image.height()), 0);
    }
}

TEST_F(Painted, EqualsSignOfAnExplanationStandsClearOfBars) {
    const FontMetrics bold{FontMetrics::Medium::Explanation};
    const Font font{std::string(kExplanationFace), 12};
    const double sign = 20 + bold.Width("1", font);
    std::vector<Mark> marks{TextMark{"_", 20, 5, font, kBlue},
                            TextMark{"=", sign, 12.2, font, kBlue},
                            TextMark{"_", sign + bold.Width("=", font), 5, font, kBlue}};
    QImage image(80, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintMarks(painter, marks, bold, {});
    painter.end();
    // Two white columns at least on either side.
    std::vector<int> gaps{0};
    bool begun = false;
    for (int x = 0; x < image.width(); ++x) {
        if (Darkest(image, x, 0, image.height()) > 0) {
            begun = true;
            gaps.push_back(0);
        } else if (begun) {
            ++gaps.back();
        }
    }
    gaps.pop_back();
    EXPECT_EQ(std::count_if(gaps.begin(), gaps.end(), [](int gap) { return gap >= 2; }), 2);
}

TEST_F(Painted, RootSignAndBarAreJoinedWithoutAGapOrABlot) {
    const QImage image = Paint(Line("~8~"), 4);
    // The sign stands 2 left of the body's place 7, its tip and the bar's end at 13; the bar's cell
    // is 18 above the base of 28.8.
    const int top = static_cast<int>(4 * (28.8 - 18 + 15));
    const int bottom = static_cast<int>(4 * (28.8 - 18 + 17));
    for (int x = 4 * 13 - 1; x < 4 * 26; ++x) {
        EXPECT_EQ(Darkest(image, x, top, bottom), 255) << x;
    }
}

TEST_F(Painted, BarLiftedByASecondFractionIsReachedByItsSign) {
    const QImage image = Paint(Line("~#1/2#+#3/4#~"), 4);
    // Each fraction lifts the bar by 7.2. From the bar down to the base a stroke crosses every row
    // left of the body.
    const int barRow = static_cast<int>(4 * (28.8 - 2 * 7.2 - 18 + 15.8));
    for (int y = barRow; y < static_cast<int>(4 * (28.8 + 12)); ++y) {
        int darkest = 0;
        for (int x = 0; x < static_cast<int>(4 * 14.5); ++x) {
            darkest = std::max(darkest, Ink(image, x, y));
        }
        EXPECT_GT(darkest, 200) << y;
    }
}

TEST_F(Painted, TextStandsInItsCellInItsColour) {
    const QImage image = Paint({TextMark{"8", 20, 10, {kFace, 12}, kRed}}, 2);
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.green() < 128) {
                ink |= QRect(x, y, 1, 1);
                EXPECT_EQ(color.red(), 255);
            }
        }
    }
    EXPECT_GE(ink.left(), 2 * 20);
    EXPECT_LE(ink.right(), 2 * (20 + kSegment));
    EXPECT_GE(ink.top(), 2 * 10);
    EXPECT_NEAR(ink.bottom() + 1, 2 * (10 + faces.Ascent({kFace, 12})), 1.5);
}

TEST_F(Painted, StrokeHasItsWidthAndItsEnds) {
    const QImage image = Paint({StrokeMark{10, 20, 50, 20, 2, kBlue}});
    EXPECT_EQ(image.pixelColor(30, 19), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(30, 20), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(30, 18), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(30, 21), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(8, 20), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(52, 20), QColor(Qt::white));
}

TEST_F(Painted, PicturesAreDrawnByWhoeverHasThem) {
    std::string asked;
    const auto draw = [&asked](QPainter& painter, const std::string& key, QPointF corner) {
        asked += key;
        painter.fillRect(QRectF(corner, QSizeF(4, 4)), Qt::green);
    };
    const QImage image = Paint({ImageMark{"check", 30, 12}}, 1, draw);
    EXPECT_EQ(asked, "check");
    EXPECT_EQ(image.pixelColor(31, 13), QColor(Qt::green));
    EXPECT_EQ(Paint({ImageMark{"check", 30, 12}}).pixelColor(31, 13), QColor(Qt::white));
}

TEST_F(Painted, PainterIsLeftAsItWas) {
    QImage image(20, 20, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::green);
    PaintMarks(painter, {TextMark{"8_", 0, 0, {kFace, 12}, kRed}}, faces);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(Colours, HaveRedInTheLowByte) {
    EXPECT_EQ(ToQColor(kRed), QColor(255, 0, 0));
    EXPECT_EQ(ToQColor(kBlue), QColor(0, 0, 255));
    EXPECT_EQ(ToQColor(0x010203), QColor(3, 2, 1));
}

}  // namespace
}  // namespace numerello
