#include "ui/double_click.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "tests/ui/window.h"

namespace numerello {
namespace {

constexpr int kInterval = 60;  // of a double click, in milliseconds
constexpr QPoint kPlace(100, 100);

class SecondClickTest : public testing::Test {
  protected:
    SecondClickTest() {
        QApplication::setDoubleClickInterval(kInterval);
        window.resize(300, 300);
        ShowActive(window);
    }

    ~SecondClickTest() override {
        QTest::qWait(kInterval + 20);
        QApplication::setDoubleClickInterval(usualInterval);
    }

    /// Where another window was closed by a click.
    void CloseAtPlace() { SwallowSecondClick(window.mapToGlobal(kPlace)); }

    const int usualInterval = QApplication::doubleClickInterval();
    MouseCounter window;
};

TEST_F(SecondClickTest, IsSwallowed) {
    CloseAtPlace();
    Click(window, kPlace);
    EXPECT_EQ(window.events, 0);
}

TEST_F(SecondClickTest, MayBeHeldDownLong) {
    CloseAtPlace();
    Press(window, kPlace);
    QTest::qWait(kInterval + 20);
    Release(window, kPlace);
    EXPECT_EQ(window.events, 0);
    Click(window, kPlace);
    EXPECT_EQ(window.events, 2);
}

TEST_F(SecondClickTest, ClicksElsewhereAndLaterAndOfOtherButtonsGoOn) {
    CloseAtPlace();
    Click(window, kPlace + QPoint(60, 0));
    EXPECT_EQ(window.events, 2);
    Click(window, kPlace, Qt::RightButton);
    EXPECT_EQ(window.events, 4);
    QTest::qWait(kInterval + 20);
    Click(window, kPlace);
    EXPECT_EQ(window.events, 6);
}

}  // namespace
}  // namespace numerello
