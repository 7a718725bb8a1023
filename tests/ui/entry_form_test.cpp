#include "ui/entry_form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionComboBox>

#include "tests/ui/entry_form_fixture.h"
#include "tests/ui/interface_font.h"
#include "ui/artwork.h"

namespace numerello {
namespace {

TEST_F(EntryFormTest, ShowsTheBoxesOfItsTopicUnderTheirNames) {
    for (const EntryLayout& layout : EntryLayouts()) {
        SCOPED_TRACE(layout.code);
        Open(layout.code);
        EXPECT_EQ(Sheet().findChildren<EntryBox*>().size(),
                  static_cast<qsizetype>(layout.boxes.size()));
        const PlacedEntry placed = PlaceEntry(layout, EntryBoxes());
        for (std::size_t i = 0; i < layout.boxes.size(); ++i) {
            const EntryBoxLayout& box = layout.boxes[i];
            const EntryRect& place = placed.boxes[i];
            const EntryBox& shown = Box(box.number);
            EXPECT_TRUE(shown.isVisible());
            EXPECT_EQ(shown.accessibleName(), ToQString(box.name));
            EXPECT_EQ(shown.geometry(), QRect(place.x, place.y, 54, 30));
            EXPECT_EQ(shown.text(), "");
        }
    }
}

TEST_F(EntryFormTest, ShowsEveryLabelWhole) {
    for (const EntryLayout& layout : EntryLayouts()) {
        SCOPED_TRACE(layout.code);
        Open(layout.code);
        QStringList expected;
        for (const EntryBoxLayout& box : layout.boxes) {
            if (box.side != NameSide::Hidden) {
                expected << ToQString(box.name);
                EXPECT_EQ(Label(expected.back()).buddy(), &Box(box.number));
            }
        }
        for (const EntryLabel& label : layout.labels) {
            expected << ToQString(label.text);
        }
        for (const QString& text : expected) {
            const QLabel& label = Label(text);
            EXPECT_TRUE(label.isVisible());
            EXPECT_LE(label.fontMetrics().horizontalAdvance(text), label.width())
                << text.toStdString();
            EXPECT_EQ(label.font().family(), "VantrelFont");
        }
    }
}

TEST_F(EntryFormTest, TheTabKeyGoesThroughBoxesAndLists) {
    for (const EntryLayout& layout : EntryLayouts()) {
        SCOPED_TRACE(layout.code);
        Open(layout.code);
        QStringList expected;
        for (const EntryBoxLayout& box : layout.boxes) {
            expected << QStringLiteral("Text%1").arg(box.number);
        }
        if (layout.lists == EntryLists::Roundings) {
            // The sheet itself takes the keys first.
            expected << QStringLiteral("frmPaper") << QStringLiteral("Combo3");
        } else if (layout.lists != EntryLists::None) {
            expected << QStringLiteral("Combo1") << QStringLiteral("Combo2");
        }
        for (const QString& name : expected) {
            EXPECT_EQ(Focused().toStdString(), name.toStdString());
            PressKey(*paper, Qt::Key_Tab);
        }
        PressKey(*paper, Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(Focused(), expected.back());
    }
}

TEST_F(EntryFormTest, ShowsItsPictureInThePictureBox) {
    for (const EntryLayout& layout : EntryLayouts()) {
        SCOPED_TRACE(layout.code);
        Open(layout.code);
        const auto pictures = Sheet().findChildren<QWidget*>(QStringLiteral("Picture3"));
        ASSERT_EQ(pictures.size(), layout.picture.empty() ? 0 : 1);
        if (pictures.empty()) {
            continue;
        }
        EXPECT_EQ(pictures.front()->geometry(), QRect(144, 62, 512, 200));
        QImage shown(512, 200, QImage::Format_ARGB32_Premultiplied);
        shown.fill(Qt::transparent);
        pictures.front()->render(&shown, {}, {}, QWidget::RenderFlags());
        QImage expected(shown.size(), shown.format());
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        painter.drawPixmap(layout.pictureX - 144, 0,
                           Artwork(ToQString(layout.picture), {400, 200}, 1));
        if (layout.code == 8) {
            painter.drawPixmap(layout.pictureX - 144, 0,
                               Artwork(QStringLiteral("triangleheight"), {400, 200}, 1));
        }
        painter.end();
        EXPECT_EQ(shown, expected);
    }
}

TEST_F(EntryFormTest, AllThirteenPicturesAreDrawn) {
    for (const char* key :
         {"similartriangles", "righttriangle", "parallelogram", "trapezoid", "cube", "cylinder",
          "cone", "pyramid", "sphere", "triangle", "circle2", "circle", "rectangle"}) {
        const QPixmap picture = Artwork(QString::fromUtf8(key), {400, 200}, 1);
        EXPECT_FALSE(picture.isNull()) << key;
        EXPECT_EQ(picture.size(), QSize(400, 200)) << key;
    }
}

TEST_F(EntryFormTest, NothingCoversAPictureAtAnyWidth) {
    for (const EntryLayout& layout : EntryLayouts()) {
        if (layout.picture.empty()) {
            continue;
        }
        SCOPED_TRACE(layout.code);
        Open(layout.code);
        FillToTheBrim(layout);
        const QImage drawing = Artwork(ToQString(layout.picture), {400, 200}, 1).toImage();
        const QPoint corner(layout.pictureX, 62);
        for (const QWidget* piece : Sheet().findChildren<QWidget*>()) {
            if (qobject_cast<const QLabel*>(piece) == nullptr &&
                qobject_cast<const EntryBox*>(piece) == nullptr) {
                continue;
            }
            const QRect covered = piece->geometry().translated(-corner).intersected(drawing.rect());
            int painted = 0;
            for (int y = covered.top(); y <= covered.bottom(); ++y) {
                for (int x = covered.left(); x <= covered.right(); ++x) {
                    painted += drawing.pixelColor(x, y).alpha() > 0 ? 1 : 0;
                }
            }
            EXPECT_EQ(painted, 0) << piece->accessibleName().toStdString();
        }
    }
}

TEST_F(EntryFormTest, ABoxWidensAwayFromItsLabel) {
    Open(3);  // radius= and height= of a cone
    Type(QStringLiteral("12345"));
    EXPECT_EQ(Box(2).geometry(), QRect(372, 232, 78, 30));
    EXPECT_LE(Label(QStringLiteral("radius=")).geometry().right(), Box(2).x());
    Open(7);  // =radius of a circle
    const int right = Box(2).geometry().right();
    const QRect label = Label(QStringLiteral("=radius")).geometry();
    Type(QStringLiteral("12345"));
    EXPECT_EQ(Box(2).width(), 78);
    EXPECT_EQ(Box(2).geometry().right(), right);
    EXPECT_EQ(Label(QStringLiteral("=radius")).geometry(), label);
    PressKeys(*paper, {Qt::Key_Backspace, Qt::Key_Backspace});
    EXPECT_EQ(Box(2).width(), 54);
}

TEST_F(EntryFormTest, InARowTheOthersMakeWay) {
    Open(14);
    const int of = Label(QStringLiteral("%    of")).x();
    const int base = Box(4).x();
    PressKey(*paper, Qt::Key_Tab);
    Type(QStringLiteral("12.345"));
    EXPECT_EQ(Label(QStringLiteral("%    of")).x(), of + 36);
    EXPECT_EQ(Box(4).x(), base + 36);
    EXPECT_EQ(Box(1).x(), 67);
}

TEST_F(EntryFormTest, StaysPaperAndInkOnADarkDesktop) {
    const QPalette usual = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    Open(6);
    EXPECT_EQ(Box(2).palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(Box(2).palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_EQ(Label(QStringLiteral("base=")).palette().color(QPalette::WindowText),
              QColor(Qt::black));
    Open(23);
    const QPalette list = List(1).palette();
    EXPECT_EQ(list.color(QPalette::Button), QColor(Qt::white));
    EXPECT_EQ(list.color(QPalette::ButtonText), QColor(Qt::black));
    EXPECT_EQ(list.color(QPalette::PlaceholderText).rgb(), qRgb(0, 0, 0));
    QApplication::setPalette(usual);
}

TEST_F(EntryFormTest, TheRoundingListStandsOverTheEndOfTheLine) {
    OpenRounding();
    EXPECT_EQ(List(3).geometry(), QRect(480, 66, 260, List(3).height()));
    EXPECT_LE(List(3).geometry().bottom(), 98);
    EXPECT_EQ(List(3).accessibleName(), "Rounding");
    EXPECT_EQ(List(3).currentText(), "Rounded to the nearest thousand");
    ASSERT_EQ(List(3).count(), 7);
    for (int row = 0; row < 7; ++row) {
        EXPECT_EQ(List(3).itemText(row), ToQString(RoundingRows()[static_cast<std::size_t>(row)]));
    }
}

/// Whether all that the list may show has room in it.
void ExpectNothingCut(EntryList& list) {
    QStyleOptionComboBox shown;
    shown.initFrom(&list);
    const QRect text = list.style()->subControlRect(QStyle::CC_ComboBox, &shown,
                                                    QStyle::SC_ComboBoxEditField, &list);
    EXPECT_LT(text.width(), list.width() - 10);
    for (int row = 0; row < list.count(); ++row) {
        EXPECT_LE(list.fontMetrics().horizontalAdvance(list.itemText(row)), text.width());
    }
    EXPECT_LE(list.fontMetrics().horizontalAdvance(list.placeholderText()), text.width());
}

TEST_F(EntryFormTest, ALargeInterfaceFontDoesNotCutTheRoundings) {
    const InterfaceFont large(18);
    OpenRounding();
    EXPECT_EQ(List(3).width(), 260);
    ExpectNothingCut(List(3));
}

TEST_F(EntryFormTest, ALargeInterfaceFontDoesNotCutTheUnits) {
    for (const int points : {9, 14, 18, 24}) {
        const InterfaceFont font(points);
        Open(23);
        ExpectNothingCut(List(1));
        ExpectNothingCut(List(2));
    }
}

}  // namespace
}  // namespace numerello
