#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>

#include "tests/ui/frm_main_fixture.h"

namespace numerello {
namespace {

TEST_F(Window, ForeignTextReachesNoBox) {
    Choose(QStringLiteral("Meter Conversions"));
    auto& value = Find<QLineEdit>(frame, QStringLiteral("Text4"));
    QGuiApplication::clipboard()->setText(QStringLiteral("a1b2"));
    EXPECT_FALSE(value.acceptDrops());
    PressKey(frame, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(value.text(), "12");
}

TEST_F(Window, TheUnitsFitALargeInterfaceFont) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(22);
    QApplication::setFont(large);
    Choose(QStringLiteral("Meter Conversions"));
    auto& from = Find<QComboBox>(frame, QStringLiteral("Combo1"));
    auto& to = Find<QComboBox>(frame, QStringLiteral("Combo2"));
    EXPECT_GE(from.width(), from.fontMetrics().horizontalAdvance(from.placeholderText()));
    EXPECT_GE(from.height(), from.sizeHint().height());
    EXPECT_LT(from.geometry().right(), to.geometry().left());
    EXPECT_LE(to.geometry().right(), 750);
    QApplication::setFont(usual);
}

TEST_F(Window, AMetricProblemIsEnteredInABoxAndTwoLists) {
    Choose(QStringLiteral("Meter Conversions"));
    auto& value = Find<QLineEdit>(frame, QStringLiteral("Text4"));
    auto& from = Find<QComboBox>(frame, QStringLiteral("Combo1"));
    auto& to = Find<QComboBox>(frame, QStringLiteral("Combo2"));
    EXPECT_TRUE(value.hasFocus());
    EXPECT_EQ(value.width(), 54);
    EXPECT_EQ(from.currentIndex(), -1);
    EXPECT_EQ(from.placeholderText(), "Select a choice from the list.");
    EXPECT_EQ(from.count(), 7);
    EXPECT_EQ(from.itemText(6), "km (1000 meters)");

    Type(QStringLiteral("2x.5-"));
    EXPECT_EQ(value.text(), "2.5");
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    PressKey(frame, Qt::Key_Tab);
    EXPECT_TRUE(from.hasFocus());
    PressKey(frame, Qt::Key_End);
    PressKey(frame, Qt::Key_Tab);
    EXPECT_TRUE(to.hasFocus());
    for (int row = 0; row < 4; ++row) {
        PressKey(frame, Qt::Key_Down);
    }
    EXPECT_EQ(from.currentIndex(), 6);
    EXPECT_EQ(to.currentIndex(), 3);
    EXPECT_TRUE(Command("mnuSolve").isEnabled());

    Enter();
    EXPECT_EQ(Now().log.StepText[6], "2.5 km = 2500 m");
    EXPECT_TRUE(Arrow().isVisible());
    EXPECT_EQ(Arrow().y(), qRound(243 + 2.4 * 12 - 13));
    EXPECT_TRUE(Arrow().hasFocus());
    PressKey(frame, Qt::Key_Space);
    EXPECT_EQ(Now().playback.ShownStep, 3);
    EXPECT_TRUE(Arrow().hasFocus());
}

TEST_F(Window, ASolvedMetricProblemIsLocked) {
    Choose(QStringLiteral("Gram Conversions"));
    auto& value = Find<QLineEdit>(frame, QStringLiteral("Text4"));
    auto& from = Find<QComboBox>(frame, QStringLiteral("Combo1"));
    Type(QStringLiteral("5"));
    PressKeys(frame, {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down});
    Enter();
    ASSERT_TRUE(Arrow().isVisible());
    value.setFocus();
    Type(QStringLiteral("7"));
    PressKey(frame, Qt::Key_Backspace);
    EXPECT_EQ(value.text(), "5");
    from.setFocus();
    PressKey(frame, Qt::Key_Down);
    EXPECT_EQ(from.currentIndex(), 0);
    EXPECT_TRUE(value.isEnabled());
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
}

TEST_F(Window, ABoxWidensWithItsText) {
    Choose(QStringLiteral("Meter Conversions"));
    auto& value = Find<QLineEdit>(frame, QStringLiteral("Text4"));
    Type(QStringLiteral("123"));
    EXPECT_EQ(value.width(), 54);
    Type(QStringLiteral("45"));
    EXPECT_EQ(value.width(), 54 + 2 * 12);
    PressKey(frame, Qt::Key_Home);
    Type(QStringLiteral("6"));
    EXPECT_EQ(value.text(), "123456");
    EXPECT_EQ(value.cursorPosition(), 6);
}

TEST_F(Window, EraseEmptiesBoxesAndLists) {
    Choose(QStringLiteral("Meter Conversions"));
    Type(QStringLiteral("5"));
    PressKeys(frame, {Qt::Key_Tab, Qt::Key_Down});
    const WhenDialogOpens question(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        PressButton(dialog, QStringLiteral("OK"));
    });
    Command("mnuErase").trigger();
    EXPECT_EQ(Find<QLineEdit>(frame, QStringLiteral("Text4")).text(), "");
    EXPECT_EQ(Find<QComboBox>(frame, QStringLiteral("Combo1")).currentIndex(), -1);
}

TEST_F(Window, AShapeIsMeasuredInTheBoxesOnItsPicture) {
    Choose(QStringLiteral("Area of a Triangle"));
    auto& base = Find<QLineEdit>(frame, QStringLiteral("Text2"));
    auto& height = Find<QLineEdit>(frame, QStringLiteral("Text1"));
    EXPECT_TRUE(base.hasFocus());
    Type(QStringLiteral("4"));
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    PressKey(frame, Qt::Key_Tab);
    EXPECT_TRUE(height.hasFocus());
    Type(QStringLiteral("2.5"));
    EXPECT_TRUE(Command("mnuSolve").isEnabled());
    PressKeys(frame, {Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Backspace});
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    Erase();
    EXPECT_EQ(base.text(), "");
    EXPECT_TRUE(base.hasFocus());
}

}  // namespace
}  // namespace numerello
