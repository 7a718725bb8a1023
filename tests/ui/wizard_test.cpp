#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QScrollArea>
#include <QTest>
#include <QTimer>

#include "tests/ui/frm_main_fixture.h"
#include "tests/ui/still_desktop.h"
#include "ui/wizard_figure.h"
#include "worksheet/spoken_line.h"

namespace numerello {
namespace {

class WizOnTheDesk : public Window {
  protected:
    WizOnTheDesk() { frame.resize(1100, 800); }

    WizardButton& Wiz() { return Find<WizardButton>(frame, QStringLiteral("Wizard")); }
    MenuButton& Notice() { return Find<MenuButton>(frame, QStringLiteral("Click")); }
    QTimer& Timer(const char* name) { return Find<QTimer>(frame, QLatin1String(name)); }
    QWidget& View() { return *Find<QScrollArea>(frame, QStringLiteral("frmPaper")).viewport(); }

    /// Returns when the figure has grown.
    void ChooseFeet() {
        Window::ChooseFeet();
        ASSERT_TRUE(Grown());
    }

    bool Grown() {
        return QTest::qWaitFor([this] { return !Timer("wizIn").isActive(); }, 1000) &&
               Wiz().isVisible();
    }

    /// The next tick of the notice's timer, without waiting for it.
    void TickNotice() { QMetaObject::invokeMethod(&Timer("clickMe"), "timeout"); }

    QPoint InView() { return Wiz().mapTo(&View(), QPoint()); }

    /// Presses in the figure's middle and moves the mouse by so much before letting go.
    void DragBy(QPoint way) {
        const QPoint start = Wiz().mapTo(&frame, Wiz().rect().center());
        QTest::mousePress(frame.windowHandle(), Qt::LeftButton, {}, start);
        QTest::mouseMove(frame.windowHandle(), start + way / 2);
        QTest::mouseMove(frame.windowHandle(), start + way);
        QTest::mouseRelease(frame.windowHandle(), Qt::LeftButton, {}, start + way);
    }
};

TEST_F(WizOnTheDesk, GrowsInWhenTheFormOpens) {
    Window::ChooseFeet();
    EXPECT_EQ(Timer("wizIn").interval(), 10);
    EXPECT_EQ(Timer("WizOut").interval(), 10);
    EXPECT_EQ(Timer("clickMe").interval(), 800);
    ASSERT_TRUE(Grown());
    EXPECT_EQ(InView(), QPoint(966, 160));
    EXPECT_EQ(Wiz().size(), QSize(108, 128));
    EXPECT_EQ(Wiz().toolTip(), "Click me for an explanation!");
    EXPECT_TRUE(Command("mnuHideWiz").isChecked());
}

TEST_F(WizOnTheDesk, IsPaintedInTheMiddleOfItsGrowth) {
    Assistant model(Now());
    QWidget form;
    WizardButton figure(model, &form);
    model.Load();
    model.PlaceBeside(150, 1100, 690);
    model.mnuHideWiz_Click(true);
    for (int tick = 0; tick < 17; ++tick) {
        model.wizIn_Timer();
    }
    figure.Show();
    // The scale of the seventeenth tick is 2.
    EXPECT_EQ(figure.size(), QSize(54, 64));
    const QImage half = figure.grab().toImage();
    int colored = 0;
    for (int x = 0; x < 54; ++x) {
        colored += half.pixelColor(x, 40).saturation() > 100 ? 1 : 0;
    }
    EXPECT_GT(colored, 5);
}

TEST_F(WizOnTheDesk, TheMenuHidesAndShowsIt) {
    ChooseFeet();
    Command("mnuHideWiz").trigger();
    EXPECT_TRUE(Wiz().isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Wiz().isVisible(); }, 1000));
    EXPECT_FALSE(Timer("WizOut").isActive());
    Choose(QStringLiteral("Converting Miles To Feet"));
    QTest::qWait(50);
    EXPECT_FALSE(Wiz().isVisible());
    Command("mnuHideWiz").trigger();
    EXPECT_TRUE(Grown());
}

TEST_F(WizOnTheDesk, AppearsAndGoesAtOnceWhereTheDesktopAsksForNoMotion) {
    const StillDesktop still;
    Window::ChooseFeet();
    EXPECT_TRUE(Wiz().isVisible());
    EXPECT_EQ(Wiz().size(), QSize(108, 128));
    // The notice stands still.
    EXPECT_TRUE(Notice().isVisible());
    EXPECT_FALSE(Timer("clickMe").isActive());
    Type(QStringLiteral("7"));
    Enter();
    EXPECT_TRUE(Arrow().isVisible());
    EXPECT_FALSE(Timer("Timer2").isActive());
    Command("mnuHideWiz").trigger();
    EXPECT_FALSE(Wiz().isVisible());
    EXPECT_FALSE(Notice().isVisible());
}

TEST_F(WizOnTheDesk, AClickExplains) {
    ChooseFeet();
    Click(Wiz());
    EXPECT_TRUE(Explanation().isVisible());
    EXPECT_EQ(Explanation().accessibleDescription().toStdString(),
              SpokenLine(Now().topic.InstructionText));
    Type(QStringLiteral("7"));
    EXPECT_FALSE(Explanation().isVisible());
    Enter();
    const_cast<Problem&>(Now()).log.StepNote[2] = "";
    Click(Wiz());
    EXPECT_FALSE(Explanation().isVisible());
}

TEST_F(WizOnTheDesk, NinePixelsAreAClickAndTenADrag) {
    ChooseFeet();
    DragBy({-9, 9});
    EXPECT_EQ(InView(), QPoint(957, 169));
    EXPECT_TRUE(Explanation().isVisible());
    PressKey(frame, Qt::Key_Escape);
    DragBy({-10, 0});
    EXPECT_EQ(InView(), QPoint(947, 169));
    EXPECT_FALSE(Explanation().isVisible());
}

TEST_F(WizOnTheDesk, DraggedOffTheWindowItComesBack) {
    ChooseFeet();
    DragBy({400, 0});
    EXPECT_EQ(InView().x(), View().width() - 108 - 8);
    DragBy({0, 700});
    EXPECT_EQ(InView().y(), View().height() - 128 - 27);
    DragBy({-1200, -900});
    EXPECT_EQ(InView(), QPoint(0, 0));
    EXPECT_FALSE(Explanation().isVisible());
    frame.resize(1000, 700);
    QTest::qWait(20);
    EXPECT_EQ(InView(), QPoint(0, 0));
}

TEST_F(WizOnTheDesk, SpaceOnTheFocusedFigureIsAClick) {
    ChooseFeet();
    Type(QStringLiteral("7"));
    Wiz().setFocus();
    PressKey(frame, Qt::Key_Space);
    EXPECT_TRUE(Explanation().isVisible());
    // Every other key goes to the line.
    Type(QStringLiteral("5"));
    EXPECT_EQ(Now().typed.ProblemText, "75");
    Enter();
    EXPECT_EQ(Now().playback.ShownStep, 2);
}

TEST_F(WizOnTheDesk, TabLeadsToLightAndFigure) {
    ChooseFeet();
    PressKeys(frame, {Qt::Key_Tab});
    EXPECT_TRUE(Find<QWidget>(frame, QStringLiteral("Light")).hasFocus());
    PressKeys(frame, {Qt::Key_Tab});
    EXPECT_TRUE(Wiz().hasFocus());
}

TEST_F(WizOnTheDesk, TheRightButtonOpensItsMenu) {
    ChooseFeet();
    EXPECT_EQ(Command("mnuHide").text(), "&Hide");
    EXPECT_EQ(Command("mnuHideOptions").text(), "&Options...");
    EXPECT_EQ(Command("mnuHideOptions").isEnabled(), Command("mnuChange").isEnabled());
    Click(Wiz(), Wiz().rect().center(), Qt::RightButton);
    EXPECT_TRUE(PopUp("mnuHidden").isVisible());
    EXPECT_FALSE(Explanation().isVisible());
    PopUp("mnuHidden").hide();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(5, 5),
                            Wiz().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&Wiz(), &asked);
    EXPECT_TRUE(PopUp("mnuHidden").isVisible());
    Command("mnuHide").trigger();
    PopUp("mnuHidden").hide();
    EXPECT_FALSE(Command("mnuHideWiz").isChecked());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Wiz().isVisible(); }, 1000));
}

TEST_F(WizOnTheDesk, TheNoticeFlashesBelowTheFigure) {
    ChooseFeet();
    EXPECT_FALSE(Notice().isVisible());
    EXPECT_TRUE(Timer("clickMe").isActive());
    TickNotice();
    ASSERT_TRUE(Notice().isVisible());
    EXPECT_EQ(Notice().geometry().center().x(), Wiz().geometry().center().x());
    EXPECT_GT(Notice().geometry().top(), Wiz().geometry().bottom());
    TickNotice();
    EXPECT_FALSE(Notice().isVisible());
}

TEST_F(WizOnTheDesk, TheNoticeGoesWithTheFigure) {
    ChooseFeet();
    TickNotice();
    const QPoint apart = Notice().pos() - Wiz().pos();
    DragBy({-300, 60});
    EXPECT_EQ(Notice().pos() - Wiz().pos(), apart);
    DragBy({0, 700});
    EXPECT_LE(Notice().geometry().bottom(), View().height());
    Command("mnuHideWiz").trigger();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Notice().isVisible(); }, 1000));
    EXPECT_FALSE(Timer("clickMe").isActive());
}

TEST_F(WizOnTheDesk, AClickOnTheNoticeExplainsToo) {
    ChooseFeet();
    TickNotice();
    Click(Notice());
    EXPECT_TRUE(Explanation().isVisible());
    EXPECT_FALSE(Notice().isVisible());
    EXPECT_FALSE(Timer("clickMe").isActive());
    PressKey(frame, Qt::Key_Escape);
    Type(QStringLiteral("7"));
    Enter();
    TickNotice();
    ASSERT_TRUE(Notice().isVisible()) << "it waits beside the arrow";
    Click(Notice(), QPoint(50, 25), Qt::RightButton);
    EXPECT_TRUE(PopUp("mnuHidden").isVisible());
    PopUp("mnuHidden").hide();
    Click(Arrow());
    EXPECT_FALSE(Notice().isVisible());
    EXPECT_TRUE(Timer("clickMe").isActive());
}

TEST_F(WizOnTheDesk, NothingFlashesInAHiddenWindow) {
    ChooseFeet();
    EXPECT_TRUE(Timer("clickMe").isActive());
    frame.hide();
    EXPECT_FALSE(Timer("clickMe").isActive());
    ShowActive(frame);
    EXPECT_TRUE(Timer("clickMe").isActive());
}

TEST_F(WizOnTheDesk, TheSettingsChangeFigureAndNotice) {
    ChooseFeet();
    auto& paper = dynamic_cast<FrmPaper&>(Find<QScrollArea>(frame, QStringLiteral("frmPaper")));
    auto& settings = const_cast<Problem&>(Now()).settings;
    std::vector<QImage> figures;
    for (const int whichAssistant : {1, 2, 3}) {
        settings.whichAssistant = whichAssistant;
        settings.ClickNotify = whichAssistant != 2;
        paper.WizSettingsChanged();
        EXPECT_EQ(Notice().isVisible(), settings.ClickNotify);
        figures.push_back(Wiz().grab().toImage());
    }
    EXPECT_NE(figures[0], figures[1]);
    EXPECT_NE(figures[1], figures[2]);
}

}  // namespace
}  // namespace numerello
