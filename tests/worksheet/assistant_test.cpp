#include "worksheet/assistant.h"

#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

class AssistantTest : public testing::Test {
  protected:
    AssistantTest() {
        problem.log.StepNote[0] = "Enter a number.";
        wiz.Load();
        wiz.PlaceBeside(150, 1100, 690);
    }

    void Grow() {
        wiz.mnuHideWiz_Click(true);
        while (wiz.WizInEnabled()) {
            wiz.wizIn_Timer();
        }
    }

    /// Presses in the middle and drags by so much, as an event of the mouse after the other.
    bool DragBy(int x, int y) {
        wiz.Wizard_MouseDown(54, 64);
        wiz.Wizard_MouseMove(54 + x, 64 + y);
        return wiz.Wizard_MouseUp();
    }

    void ExpectAt(double left, double top) {
        EXPECT_EQ(wiz.Left(), left);
        EXPECT_EQ(wiz.Top(), top);
    }

    Problem problem;
    Assistant wiz{problem};
};

TEST_F(AssistantTest, GrowsInNineteenTicks) {
    EXPECT_FALSE(wiz.Visible());
    wiz.mnuHideWiz_Click(true);
    EXPECT_EQ(wiz.WizScale(), 10);
    EXPECT_FALSE(wiz.Visible());
    for (int tick = 1; tick <= 19; ++tick) {
        const double scale = 10.5 - 0.5 * tick;
        EXPECT_TRUE(wiz.WizInEnabled()) << tick;
        wiz.wizIn_Timer();
        EXPECT_TRUE(wiz.Visible() && wiz.Painted()) << tick;
        EXPECT_DOUBLE_EQ(wiz.Width(), 108 / scale);
        EXPECT_DOUBLE_EQ(wiz.Height(), 128 / scale);
    }
    EXPECT_FALSE(wiz.WizInEnabled());
    EXPECT_EQ(wiz.Width(), 108);
    wiz.wizIn_Timer();
    EXPECT_EQ(wiz.Width(), 108) << "a tick that was still on its way";
}

TEST_F(AssistantTest, ShrinksOutInNineteenTicks) {
    Grow();
    wiz.mnuHideWiz_Click(false);
    EXPECT_EQ(wiz.WizScale(), 1);
    for (int tick = 1; tick <= 19; ++tick) {
        EXPECT_TRUE(wiz.Visible() && wiz.WizOutEnabled()) << tick;
        wiz.WizOut_Timer();
        EXPECT_DOUBLE_EQ(wiz.Height(), 128 / (0.5 + 0.5 * tick));
    }
    EXPECT_FALSE(wiz.Visible());
    EXPECT_FALSE(wiz.WizOutEnabled());
    wiz.WizOut_Timer();
    EXPECT_FALSE(wiz.Visible());
}

TEST_F(AssistantTest, AToggleInMidMotionRestartsAtTheScaleThatItSets) {
    Grow();
    wiz.mnuHideWiz_Click(false);
    wiz.WizOut_Timer();
    wiz.WizOut_Timer();
    wiz.mnuHideWiz_Click(true);
    EXPECT_EQ(wiz.WizScale(), 10);
    EXPECT_FALSE(wiz.WizOutEnabled());
    EXPECT_FALSE(wiz.Painted());
    wiz.wizIn_Timer();
    EXPECT_DOUBLE_EQ(wiz.Width(), 10.8);
    wiz.mnuHideWiz_Click(false);
    EXPECT_EQ(wiz.WizScale(), 1);
    EXPECT_FALSE(wiz.WizInEnabled());
    wiz.WizOut_Timer();
    EXPECT_EQ(wiz.Width(), 108);
}

TEST_F(AssistantTest, EndsItsMotionAtOnceForThoseWhoWantNone) {
    wiz.mnuHideWiz_Click(true);
    wiz.EndMotion();
    EXPECT_TRUE(wiz.Visible());
    EXPECT_EQ(wiz.Width(), 108);
    wiz.mnuHideWiz_Click(false);
    wiz.EndMotion();
    EXPECT_FALSE(wiz.Visible());
}

TEST_F(AssistantTest, TheSettingChoosesTheFigure) {
    const std::pair<int, const char*> figures[] = {
        {1, "wiz1"}, {2, "wiz2"}, {3, "wiz3"}, {7, "wiz3"}};
    for (const auto& [whichAssistant, key] : figures) {
        problem.settings.whichAssistant = whichAssistant;
        wiz.ChooseFigure();
        EXPECT_EQ(wiz.WizImage(), key);
    }
    problem.settings.whichAssistant = 2;
    EXPECT_EQ(wiz.WizImage(), "wiz3") << "not before the settings are left";
    wiz.Load();
    EXPECT_EQ(wiz.WizImage(), "wiz2");
}

TEST_F(AssistantTest, StandsBesideTheFirstSheet) {
    ExpectAt(966, 160);
    wiz.PlaceBeside(240, 1280, 690);
    ExpectAt(1056, 160);
    // 116 from the right edge where there is no room beside the sheet.
    wiz.PlaceBeside(0, 800, 690);
    ExpectAt(684, 160);
    wiz.PlaceBeside(0, 800, 250);
    ExpectAt(684, 95);
}

TEST_F(AssistantTest, FollowsTheMouseWhileTheButtonIsDown) {
    Grow();
    wiz.Wizard_MouseMove(0, 0);
    ExpectAt(966, 160);
    wiz.Wizard_MouseDown(10, 20);
    wiz.Wizard_MouseMove(-90, 50);
    ExpectAt(866, 190);
    wiz.Wizard_MouseMove(10, 20);
    ExpectAt(866, 190);
    wiz.Wizard_MouseMove(1010, -480);
    ExpectAt(1866, -310);
}

TEST_F(AssistantTest, ComesBackOntoTheFormAtRelease) {
    Grow();
    DragBy(-2000, -2000);
    ExpectAt(0, 0);
    DragBy(2000, 2000);
    ExpectAt(1100 - 108 - 8, 690 - 128 - 27);
    DragBy(-300, -200);
    ExpectAt(684, 335);
}

TEST_F(AssistantTest, LessThanTenInBothDirectionsIsAClick) {
    Grow();
    EXPECT_TRUE(DragBy(0, 0));
    EXPECT_TRUE(DragBy(-9, 9));
    EXPECT_FALSE(DragBy(-10, 0));
    EXPECT_FALSE(DragBy(0, 10));
    EXPECT_FALSE(DragBy(10, -10));
    EXPECT_FALSE(wiz.Wizard_MouseUp()) << "released without a press";
}

TEST_F(AssistantTest, ADragAgainstTheEdgeIsNoClick) {
    Grow();
    DragBy(2000, 0);
    const double left = wiz.Left();
    EXPECT_FALSE(DragBy(50, 0));
    EXPECT_EQ(wiz.Left(), left);
}

TEST_F(AssistantTest, AClickWithNothingToExplainShowsNothing) {
    Grow();
    problem.log.StepNote[0].clear();
    EXPECT_FALSE(DragBy(0, 0));
}

TEST_F(AssistantTest, ADraggedFigureStaysWhereItIsButInSight) {
    Grow();
    DragBy(-100, 100);
    ExpectAt(866, 260);
    wiz.PlaceBeside(0, 700, 690);
    ExpectAt(700 - 116, 260);
    wiz.PlaceBeside(300, 1400, 690);
    ExpectAt(866, 260);
    wiz.Load();
    wiz.PlaceBeside(300, 1400, 690);
    ExpectAt(1116, 160);
}

TEST_F(AssistantTest, AShakingHandDoesNotTakeItFromItsPlace) {
    Grow();
    EXPECT_TRUE(DragBy(9, -9));
    wiz.PlaceBeside(300, 1400, 690);
    ExpectAt(1116, 160);
    DragBy(10, 0);
    wiz.PlaceBeside(150, 1300, 690);
    ExpectAt(1126, 160);
}

TEST_F(AssistantTest, TheNoticeFlashesFromWhenTheFigureStands) {
    EXPECT_FALSE(wiz.ClickMeEnabled());
    Grow();
    EXPECT_TRUE(wiz.ClickMeEnabled());
    EXPECT_FALSE(wiz.ClickVisible());
    wiz.clickMe_Timer();
    EXPECT_TRUE(wiz.ClickVisible());
    wiz.clickMe_Timer();
    EXPECT_FALSE(wiz.ClickVisible());
}

TEST_F(AssistantTest, ShrinkingTakesTheNoticeAway) {
    Grow();
    wiz.clickMe_Timer();
    wiz.mnuHideWiz_Click(false);
    wiz.WizOut_Timer();
    EXPECT_FALSE(wiz.ClickVisible());
    EXPECT_FALSE(wiz.ClickMeEnabled());
    wiz.EndMotion();
    wiz.Notify();
    EXPECT_FALSE(wiz.ClickMeEnabled()) << "no notice without a figure";
}

TEST_F(AssistantTest, TheNoticeNeedsItsSettingAndSomethingToExplain) {
    problem.settings.ClickNotify = false;
    Grow();
    EXPECT_FALSE(wiz.ClickMeEnabled());
    problem.settings.ClickNotify = true;
    wiz.ClickNotifyChanged();
    EXPECT_TRUE(wiz.ClickVisible() && wiz.ClickMeEnabled());
    problem.settings.ClickNotify = false;
    wiz.ClickNotifyChanged();
    EXPECT_FALSE(wiz.ClickVisible() || wiz.ClickMeEnabled());

    problem.settings.ClickNotify = true;
    wiz.Notify();
    wiz.clickMe_Timer();
    problem.log.StepNote[0].clear();
    wiz.clickMe_Timer();
    EXPECT_FALSE(wiz.ClickVisible() || wiz.ClickMeEnabled());
    wiz.Notify();
    EXPECT_FALSE(wiz.ClickMeEnabled());
}

TEST_F(AssistantTest, NothingFlashesBehindTheCheckMark) {
    Grow();
    wiz.clickMe_Timer();
    wiz.EndWork();
    EXPECT_FALSE(wiz.ClickVisible() || wiz.ClickMeEnabled());
    Grow();
    EXPECT_FALSE(wiz.ClickMeEnabled());
    wiz.RestartWork();
    wiz.Notify();
    EXPECT_TRUE(wiz.ClickMeEnabled());
}

/// The notice beside a solution that is played step by step.
class NoticeInPlay : public Desk {
  protected:
    NoticeInPlay() {
        Choose(31);
        Wiz().mnuHideWiz_Click(true);
        Wiz().EndMotion();
        Type("7");
    }

    Assistant& Wiz() { return sheet.TheAssistant(); }
    bool Flashes() { return Wiz().ClickMeEnabled(); }
};

TEST_F(NoticeInPlay, WaitsWithTheArrow) {
    Wiz().StopNotice();
    SolveInLines<3>();
    EXPECT_TRUE(Flashes());
    Wiz().clickMe_Timer();
    EXPECT_TRUE(Wiz().ClickVisible());
    sheet.blinker_Click();
    EXPECT_FALSE(Flashes()) << "the last line has the check mark";
    EXPECT_FALSE(Wiz().ClickVisible());
    EXPECT_FALSE(ChecksOf(First()).empty());
}

TEST_F(NoticeInPlay, StopsWithAnArrowThatGoesForGood) {
    SolveInLines<5>();
    sheet.mnuShowStep_Click(false);
    EXPECT_TRUE(Flashes());
    sheet.blinker_Click();
    EXPECT_FALSE(Flashes());
}

TEST_F(NoticeInPlay, StartsAgainWithEachArrow) {
    SolveInLines<5>();
    Wiz().StopNotice();
    sheet.blinker_Click();
    EXPECT_TRUE(Flashes());
}

TEST_F(NoticeInPlay, ErasingTakesItAway) {
    SolveInLines<5>();
    Wiz().clickMe_Timer();
    EraseProblem(problem, sheet);
    EXPECT_FALSE(Flashes() || Wiz().ClickVisible());
}

}  // namespace
}  // namespace numerello
