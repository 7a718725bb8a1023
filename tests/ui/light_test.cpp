#include <gtest/gtest.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "tests/ui/frm_main_fixture.h"

namespace numerello {
namespace {

TEST_F(Window, ARefusalIsForgottenWithTheLight) {
    ChooseFeet();
    Type(QStringLiteral("7x"));
    Enter();
    EXPECT_EQ(SheetText(), "7\nThere are 3 feet in a yard.");
}

TEST_F(Window, ARefusedKeyTurnsTheLightRedAndIsTold) {
    ChooseFeet();
    auto& light = Light();
    EXPECT_EQ(light.toolTip(), "Click the red light for incorrect input details.");
    Type(QStringLiteral("4"));
    EXPECT_EQ(light.toolTip(), "Correct Input.");
    const QImage green = light.grab().toImage();
    Type(QStringLiteral("x"));
    EXPECT_EQ(light.toolTip(), "Incorrect input.");
    EXPECT_NE(light.grab().toImage(), green);
    EXPECT_EQ(
        Reason(),
        "Variables are not allowed in 'Converting Feet To Yards'.  Click the Assistant Wiz for "
        "details.");
    Type(QStringLiteral("5"));
    EXPECT_EQ(SheetText(), "45");
}

TEST_F(Window, TheLightStandsBesideTheSheetAndNeverOutOfSight) {
    Choose(QStringLiteral("Arithmetic"));
    auto& paper = Find<QScrollArea>(frame, QStringLiteral("frmPaper"));
    auto& light = Light();
    // Over the middle of a figure 108 wide that begins 16 right of the sheet.
    frame.resize(1100, 800);
    QTest::qWait(20);
    EXPECT_EQ(light.pos(), QPoint(150 + 816 + 30, 24));
    frame.resize(640, 480);
    QTest::qWait(20);
    ASSERT_LT(paper.viewport()->width(), 752);
    const auto rightInView = [&] {
        return light.mapTo(paper.viewport(), QPoint(light.width(), 0)).x();
    };
    EXPECT_EQ(rightInView(), paper.viewport()->width() - 8);
    paper.horizontalScrollBar()->setValue(100);
    EXPECT_EQ(rightInView(), paper.viewport()->width() - 8);
}

TEST_F(Window, ArrowKeysLeaveTheFocusOnLightAndArrow) {
    Choose(QStringLiteral("Meter Conversions"));
    Type(QStringLiteral("5"));
    PressKeys(frame, {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down});
    Enter();
    ASSERT_TRUE(Arrow().hasFocus());
    for (QWidget* button : {static_cast<QWidget*>(&Arrow()), static_cast<QWidget*>(&Light())}) {
        button->setFocus();
        PressKeys(frame, {Qt::Key_Down, Qt::Key_Left, Qt::Key_Up, Qt::Key_Right});
        EXPECT_TRUE(button->hasFocus()) << button->objectName().toStdString();
    }
}

TEST_F(Window, TheLightCanBeHidden) {
    ChooseFeet();
    auto& light = Light();
    EXPECT_TRUE(light.isVisible());
    Command("mnuShowLight").trigger();
    EXPECT_FALSE(light.isVisible());
    Choose(QStringLiteral("Converting Miles To Feet"));
    EXPECT_FALSE(Light().isVisible());
}

}  // namespace
}  // namespace numerello
