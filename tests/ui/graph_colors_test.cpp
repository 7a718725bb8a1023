#include <gtest/gtest.h>

#include <QColorDialog>

#include "tests/ui/graph_window_fixture.h"

namespace numerello {
namespace {

TEST_F(GraphWindow, IsPaintedInItsColors) {
    OpenLine();
    // On the line, on a line of the grid, and between them.
    EXPECT_EQ(ColorAt(2, 7), QColor(255, 0, 0));
    EXPECT_EQ(ColorAt(-12.5, 5.5), QColor(255, 255, 255));
    // 400 pixels for 40 units: the middle of the line at -12 is the pixel at 80.
    EXPECT_EQ(ColorAt(-12, 5.5), QColor(132, 214, 255));
}

TEST_F(GraphWindow, FromTheFourthZoomOutTheGroundHasTheGridsColor) {
    OpenLine();
    for (int i = 0; i < 3; ++i) {
        Click(Out());
    }
    EXPECT_EQ(form->Shown().Picture().BackColor, 0xFFFFFFU);
    Click(Out());
    EXPECT_EQ(Edge(), 320);
    EXPECT_EQ(ColorAt(-200, 100), QColor(132, 214, 255));
}

TEST_F(GraphWindow, ColorsAreChosenInTheDialog) {
    OpenLine();
    const auto choose = [this](const char* command, const QColor& color, QDialog::DialogCode end) {
        const WhenDialogOpens dialog(QStringLiteral("CommonDialog1"), [&](QWidget& widget) {
            auto& colors = dynamic_cast<QColorDialog&>(widget);
            colors.setCurrentColor(color);
            dynamic_cast<QDialog&>(widget).done(end);
        });
        Command(command).trigger();
    };
    choose("mnuGraphColor", QColor(0, 128, 64), QDialog::Accepted);
    // Red in the low byte.
    EXPECT_EQ(settings.GraphLineColor, 64U * 65536 + 128U * 256);
    EXPECT_EQ(ColorAt(2, 7), QColor(0, 128, 64));
    choose("mnuGraphGridColor", QColor(200, 100, 50), QDialog::Accepted);
    EXPECT_EQ(settings.GraphGridColor, 50U * 65536 + 100U * 256 + 200);

    choose("mnuGraphColor", Qt::black, QDialog::Rejected);
    EXPECT_EQ(ColorAt(2, 7), QColor(0, 128, 64));

    Command("mnuGraphDefault").trigger();
    EXPECT_EQ(settings.GraphLineColor, 255U);
    EXPECT_EQ(settings.GraphGridColor, 16766596U);
    EXPECT_EQ(ColorAt(2, 7), QColor(255, 0, 0));
}

TEST_F(GraphWindow, TheColorDialogOpensOnTheColorInUse) {
    settings.GraphGridColor = 50U * 65536 + 100U * 256 + 200;
    OpenLine();
    const WhenDialogOpens dialog(QStringLiteral("CommonDialog1"), [](QWidget& widget) {
        auto& colors = dynamic_cast<QColorDialog&>(widget);
        EXPECT_EQ(colors.currentColor(), QColor(200, 100, 50));
        EXPECT_EQ(colors.windowTitle(), "Grid Color");
        PressKey(widget, Qt::Key_Escape);
    });
    Command("mnuGraphGridColor").trigger();
    EXPECT_EQ(settings.GraphGridColor, 50U * 65536 + 100U * 256 + 200);
}

TEST_F(GraphWindow, PaintsItselfIntoASquareOfAnySize) {
    OpenLine();
    for (const int side : {60, 533, 2000}) {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        form->Paint(painter, QRectF(0, 0, side, side));
        painter.end();
        EXPECT_NE(image.pixelColor(0, 0), QColor(Qt::magenta)) << side;
        EXPECT_NE(image.pixelColor(side - 1, side - 1), QColor(Qt::magenta)) << side;
        // (5, 13) of the line.
        const QColor on = image.pixelColor(side * 25 / 40, side * 7 / 40);
        EXPECT_GT(on.red(), 180) << side;
        EXPECT_LT(on.blue(), 190) << side;
    }
}

TEST_F(GraphWindow, PaintsNothingBesideTheSquare) {
    Open(Asked("+1/1y^+1=+99999/1x"));
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    form->Paint(painter, QRectF(100, 100, 100, 100));
    painter.end();
    for (int i = 0; i < 300; ++i) {
        for (const int beside : {50, 99, 200, 250}) {
            EXPECT_EQ(image.pixelColor(i, beside), QColor(Qt::magenta));
            EXPECT_EQ(image.pixelColor(beside, i), QColor(Qt::magenta));
        }
    }
}

}  // namespace
}  // namespace numerello
