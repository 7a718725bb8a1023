#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollArea>
#include <QTest>
#include <QTimer>

#include "tests/ui/frm_main_fixture.h"
#include "tests/ui/still_desktop.h"

namespace numerello {
namespace {

class PencilInUse : public Window {
  protected:
    PencilInUse() { frame.resize(1100, 800); }

    QLabel& ThePencil() { return Find<QLabel>(frame, QStringLiteral("Pencil")); }
    QLabel& DeskPencil() { return Find<QLabel>(frame, QStringLiteral("deskPencil")); }
    QTimer& Timer1() { return Find<QTimer>(frame, QStringLiteral("Timer1")); }

    QPoint OnSheet() { return ThePencil().pos() - Sheet().pos(); }
    bool LetWrite() {
        return QTest::qWaitFor([this] { return !Timer1().isActive(); }, 1000);
    }

    /// Where the end of a typed line is.
    static int EndOf(const char* line) {
        return qRound(63 +
                      FontMetrics(FontMetrics::Medium::Sheet).Width(line, {"VantrelFont", 12}));
    }
};

TEST_F(PencilInUse, BobsAndFollowsTheLine) {
    ChooseFeet();
    EXPECT_EQ(ThePencil().size(), QSize(14, 234));
    EXPECT_EQ(OnSheet(), QPoint(63, -132));
    EXPECT_EQ(Timer1().interval(), 10);
    Type(QStringLiteral("4"));
    EXPECT_TRUE(Timer1().isActive());
    EXPECT_TRUE(LetWrite());
    EXPECT_EQ(OnSheet(), QPoint(EndOf("4"), -137));
    Type(QStringLiteral("071"));
    EXPECT_TRUE(LetWrite());
    EXPECT_EQ(OnSheet(), QPoint(EndOf("4071"), -137));
    Type(QStringLiteral("x"));
    EXPECT_FALSE(Timer1().isActive());
    EXPECT_EQ(OnSheet(), QPoint(EndOf("4071"), -137));
}

TEST_F(PencilInUse, TurnsItsRubberToTheLineForABackspace) {
    ChooseFeet();
    Type(QStringLiteral("40"));
    EXPECT_TRUE(LetWrite());
    const QImage writes = ThePencil().grab().toImage();
    PressKey(frame, Qt::Key_Backspace);
    EXPECT_TRUE(LetWrite());
    EXPECT_EQ(OnSheet(), QPoint(EndOf("4"), -137));
    EXPECT_NE(ThePencil().grab().toImage(), writes);
    Type(QStringLiteral("1"));
    EXPECT_EQ(ThePencil().grab().toImage(), writes);
    PressKey(frame, Qt::Key_Backspace);
    Enter();
    EXPECT_EQ(ThePencil().grab().toImage(), writes);
}

TEST_F(PencilInUse, JumpsWhereTheDesktopAsksForNoMotion) {
    const StillDesktop still;
    ChooseFeet();
    Type(QStringLiteral("4"));
    EXPECT_FALSE(Timer1().isActive());
    EXPECT_EQ(OnSheet(), QPoint(EndOf("4"), -137));
}

TEST_F(PencilInUse, RestsBesideBoxes) {
    Choose(QStringLiteral("Meter Conversions"));
    const QPoint place = OnSheet();
    Type(QStringLiteral("25"));
    EXPECT_FALSE(Timer1().isActive());
    EXPECT_EQ(OnSheet(), place);
    const QWidget& box = Find<QWidget>(frame, QStringLiteral("Text4"));
    EXPECT_LT(ThePencil().geometry().right(), Sheet().x() + box.x());
}

TEST_F(PencilInUse, LiesOnTheDeskWhenItIsNotUsed) {
    ChooseFeet();
    EXPECT_TRUE(Command("mnuPencil").isChecked());
    EXPECT_TRUE(ThePencil().isVisible());
    EXPECT_FALSE(DeskPencil().isVisible());

    Command("mnuPencil").trigger();
    EXPECT_FALSE(ThePencil().isVisible());
    EXPECT_TRUE(DeskPencil().isVisible());
    QWidget& view = *Find<QScrollArea>(frame, QStringLiteral("frmPaper")).viewport();
    EXPECT_EQ(DeskPencil().geometry(), QRect(68, view.height() - 24 - 234, 14, 234));
    Type(QStringLiteral("4"));
    EXPECT_FALSE(ThePencil().isVisible());

    Choose(QStringLiteral("Converting Miles To Feet"));
    EXPECT_TRUE(DeskPencil().isVisible());
    Command("mnuPencil").trigger();
    EXPECT_TRUE(ThePencil().isVisible());
    EXPECT_FALSE(DeskPencil().isVisible());
}

TEST_F(PencilInUse, NeedsRoomToLieOnTheDesk) {
    ChooseFeet();
    Command("mnuPencil").trigger();
    // The sheet of 800 stands in the middle: 39 and 40 of desk are left of it.
    for (const auto& [width, isShown] : {std::pair(878, false), std::pair(880, true)}) {
        frame.resize(width, 800);
        QTest::qWait(20);
        EXPECT_EQ(DeskPencil().isVisible(), isShown) << width;
    }
    EXPECT_LT(DeskPencil().geometry().right(), Sheet().x());
}

TEST_F(PencilInUse, StaysAtItsPlaceOnTheDeskWhereverTheSheetIsDragged) {
    ChooseFeet();
    Command("mnuPencil").trigger();
    const QPoint place = DeskPencil().pos();
    const QPoint start = Sheet().mapTo(&frame, QPoint(400, 600));
    QTest::mousePress(frame.windowHandle(), Qt::LeftButton, {}, start);
    QTest::mouseMove(frame.windowHandle(), start - QPoint(120, 0));
    QTest::mouseRelease(frame.windowHandle(), Qt::LeftButton, {}, start - QPoint(120, 0));
    ASSERT_LT(Sheet().x(), 40);
    EXPECT_TRUE(DeskPencil().isVisible());
    EXPECT_EQ(DeskPencil().pos(), place);
}

TEST_F(PencilInUse, TheRightButtonOpensItsMenuAndNothingElseDoes) {
    ChooseFeet();
    const QPoint low(7, 200);
    Click(ThePencil(), low, Qt::LeftButton);
    EXPECT_FALSE(PopUp("mnuHidden2").isVisible());
    Click(Sheet(), QPoint(300, 300), Qt::RightButton);
    EXPECT_FALSE(PopUp("mnuHidden2").isVisible());

    Press(ThePencil(), low, Qt::RightButton);
    EXPECT_FALSE(PopUp("mnuHidden2").isVisible());
    Release(ThePencil(), low, Qt::RightButton);
    EXPECT_TRUE(PopUp("mnuHidden2").isVisible());
    QAction& use = Command("mnuUsePencil");
    EXPECT_EQ(use.text(), "Use &Pencil");
    EXPECT_TRUE(use.isChecked());
    use.trigger();
    PopUp("mnuHidden2").hide();
    EXPECT_FALSE(use.isChecked());
    EXPECT_FALSE(Command("mnuPencil").isChecked());
    EXPECT_TRUE(DeskPencil().isVisible());

    Click(DeskPencil(), low, Qt::RightButton);
    EXPECT_TRUE(PopUp("mnuHidden2").isVisible());
    use.trigger();
    PopUp("mnuHidden2").hide();
    EXPECT_TRUE(Command("mnuPencil").isChecked());
    EXPECT_TRUE(ThePencil().isVisible());
}

TEST_F(PencilInUse, ALaterSheetCoversIt) {
    // High enough for both sheets, so that nothing scrolls.
    frame.resize(1100, 900);
    ChooseFeet();
    Type(QStringLiteral("7"));
    EXPECT_TRUE(LetWrite());
    Enter();
    auto& problem = const_cast<Problem&>(Now());
    while (problem.log.StepCount < 15) {
        problem.log.Write("one more line", "");
    }
    while (Arrow().isVisible() || Now().playback.CurrentPage == 0) {
        Enter();
    }
    // The second sheet begins 25 lower; the pencil reaches from 137 above the first to 97 below.
    ASSERT_EQ(Now().playback.CurrentPage, 1);
    const auto opensAt = [this](int onSheet) {
        Click(ThePencil(), QPoint(7, 137 + onSheet), Qt::RightButton);
        const bool opened = PopUp("mnuHidden2").isVisible();
        PopUp("mnuHidden2").hide();
        return opened;
    };
    EXPECT_TRUE(opensAt(20));
    EXPECT_FALSE(opensAt(30));
    const QImage covered = frame.grab().toImage();
    Command("mnuPencil").trigger();
    const QImage without = frame.grab().toImage();
    const auto colorAt = [this](const QImage& picture, int onSheet) {
        return picture.pixel(Sheet().mapTo(&frame, QPoint(EndOf("7") + 7, onSheet)));
    };
    EXPECT_NE(colorAt(covered, 20), colorAt(without, 20));
    EXPECT_EQ(colorAt(covered, 60), colorAt(without, 60));
}

TEST_F(PencilInUse, TakesNoPressFromTheSheet) {
    ChooseFeet();
    MouseCounter below;
    below.setParent(&Sheet());
    below.setGeometry(0, 0, 200, 200);
    below.show();
    Click(ThePencil(), QPoint(7, 200), Qt::LeftButton);
    EXPECT_EQ(below.events, 2);
}

TEST_F(PencilInUse, ErasingBringsItBack) {
    ChooseFeet();
    Type(QStringLiteral("407"));
    EXPECT_TRUE(LetWrite());
    Erase();
    EXPECT_EQ(OnSheet(), QPoint(63, -132));
    EXPECT_FALSE(Timer1().isActive());
}

}  // namespace
}  // namespace numerello
