#include <gtest/gtest.h>

#include <QLineEdit>

#include "tests/ui/frm_main_fixture.h"

namespace numerello {
namespace {

TEST_F(Window, ADivisionIsWorkedInColumnsClickByClick) {
    Choose(QStringLiteral("Division"));
    Type(QStringLiteral("7"));
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("95"));
    EXPECT_EQ(SheetText(), "");
    Enter();
    EXPECT_EQ(SheetText(), "7 into 95");
    // The bar ends at 80 + 20 + 2 * 20 + 5, 3 above the row at 300.
    EXPECT_EQ(Arrow().pos(), QPoint(155, 264));
    EXPECT_TRUE(Arrow().hasFocus());
    EXPECT_TRUE(Find<QLineEdit>(frame, QStringLiteral("Text1")).isReadOnly());
    Click(Arrow());
    EXPECT_EQ(SheetText(), "1\n7 into 95\nminus 7\n25");
    EXPECT_TRUE(Arrow().isVisible());
    Enter();
    EXPECT_EQ(SheetText(), "13 r 4\n7 into 95\nminus 7\n25\nminus 21\n4");
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_FALSE(Now().columns.Any());
    Erase();
    EXPECT_EQ(SheetText(), "");
}

TEST_F(Window, TheLongestQuotientGetsPaperToTheEnd) {
    Choose(QStringLiteral("Division"));
    Type(QStringLiteral("1"));
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("2147483647"));
    Enter();
    auto& paper = Sheet();
    EXPECT_EQ(paper.height(), 657);
    for (int digit = 0; digit < 10; ++digit) {
        Enter();
    }
    EXPECT_EQ(paper.height(), 703);
    EXPECT_GE(paper.parentWidget()->height(), 703);
    const QImage seen = paper.grab().toImage();
    // The margin line and the rules go on, each row of 46 like the one above it.
    for (int y = 640; y < 700; ++y) {
        EXPECT_EQ(seen.pixelColor(59, y), seen.pixelColor(59, y - 46)) << y;
        EXPECT_EQ(seen.pixelColor(700, y), seen.pixelColor(700, y - 46)) << y;
    }
    Erase();
    EXPECT_EQ(paper.height(), 657);
}

TEST_F(Window, AProductThatIsCutOffIsPlayedOnWithoutEnd) {
    Choose(QStringLiteral("Multiplication"));
    Type(QStringLiteral("9999999999"));
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("9999999999"));
    Enter();
    for (int step = 0; step < 210; ++step) {
        Enter();
        ASSERT_TRUE(Arrow().isVisible());
    }
    EXPECT_GT(Now().playback.ShownStep, 200);
    Command("mnuExp").trigger();
}

}  // namespace
}  // namespace numerello
