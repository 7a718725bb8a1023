#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QtMath>

#include "tests/ui/frm_main_fixture.h"
#include "worksheet/spoken_line.h"

namespace numerello {
namespace {

constexpr const char* kRefusedX =
    "Variables are not allowed in 'Converting Feet To Yards'.  Click the Assistant Wiz for "
    "details.";

class ExplanationWindow : public Window {
  protected:
    ExplanationWindow() { frame.resize(1100, 800); }

    std::string Told() { return Explanation().accessibleDescription().toStdString(); }

    /// Types 4 and a refused x, and clicks the red light.
    void ExplainRefusal() {
        ChooseFeet();
        Type(QStringLiteral("4x"));
        Click(Light());
        ASSERT_TRUE(Explanation().isVisible());
    }
};

TEST_F(ExplanationWindow, TheRedLightOpensIt) {
    ChooseFeet();
    Click(Light());
    EXPECT_FALSE(Explanation().isVisible());
    Type(QStringLiteral("4"));
    Click(Light());
    EXPECT_FALSE(Explanation().isVisible());
    Type(QStringLiteral("x"));
    Click(Light());
    EXPECT_TRUE(Explanation().isVisible());
    EXPECT_EQ(Explanation().windowTitle(), "Assistant Wiz");
    EXPECT_EQ(Told(), kRefusedX);
}

TEST_F(ExplanationWindow, TakesNothingFromTheSheet) {
    ExplainRefusal();
    EXPECT_FALSE(Explanation().isModal());
    EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(frame, QStringLiteral("frmPaper")));
    EXPECT_TRUE(frame.isActiveWindow());
}

TEST_F(ExplanationWindow, HasACaptionAndNoButton) {
    ExplainRefusal();
    EXPECT_EQ(Find<QLabel>(Explanation(), QStringLiteral("Caption")).text(), "Assistant Wiz");
    EXPECT_TRUE(Explanation().findChildren<QAbstractButton*>().isEmpty());
}

TEST_F(ExplanationWindow, AMovedFrameDoesNotLeaveItBehind) {
    ExplainRefusal();
    frame.move(frame.pos() + QPoint(20, 20));
    EXPECT_FALSE(Explanation().isVisible());
}

TEST_F(ExplanationWindow, AKeyClosesItAndActs) {
    ExplainRefusal();
    PressKey(frame, Qt::Key_Shift);
    EXPECT_TRUE(Explanation().isVisible());
    Type(QStringLiteral("5"));
    EXPECT_FALSE(Explanation().isVisible());
    EXPECT_EQ(Now().typed.ProblemText, "45");
}

TEST_F(ExplanationWindow, AKeyThatTheDesktopGaveItActsOnTheSheet) {
    ExplainRefusal();
    TypeText(Explanation(), QStringLiteral("5"));
    EXPECT_FALSE(Explanation().isVisible());
    EXPECT_EQ(Now().typed.ProblemText, "45");
}

TEST_F(ExplanationWindow, AShortcutClosesIt) {
    ExplainRefusal();
    const WhenDialogOpens chooser(QStringLiteral("frmSelect"), [this](QWidget& dialog) {
        EXPECT_FALSE(Explanation().isVisible());
        PressKey(dialog, Qt::Key_Escape);
    });
    PressKey(frame, Qt::Key_N, Qt::ControlModifier);
}

TEST_F(ExplanationWindow, EscClosesItAndDoesNothingElse) {
    ExplainRefusal();
    PressKey(frame, Qt::Key_Escape);
    EXPECT_FALSE(Explanation().isVisible());
    EXPECT_EQ(Now().typed.ProblemText, "4");
    EXPECT_EQ(Light().toolTip(), "Incorrect input.");
}

TEST_F(ExplanationWindow, AClickElsewhereClosesIt) {
    ExplainRefusal();
    Click(Find<QScrollArea>(Explanation(), QStringLiteral("Text")));
    EXPECT_TRUE(Explanation().isVisible());
    Click(Sheet(), QPoint(300, 400));
    EXPECT_FALSE(Explanation().isVisible());
    Click(Light());
    EXPECT_TRUE(Explanation().isVisible());
    EXPECT_EQ(Told(), kRefusedX);
}

TEST_F(ExplanationWindow, ClosesWhenAnotherWindowGetsTheKeys) {
    ExplainRefusal();
    QWidget other;
    ShowActive(other);
    EXPECT_FALSE(Explanation().isVisible());
}

TEST_F(ExplanationWindow, SpaceOnTheLightIsAClick) {
    ChooseFeet();
    Type(QStringLiteral("4x"));
    Light().setFocus();
    PressKey(frame, Qt::Key_Space);
    EXPECT_TRUE(Explanation().isVisible());
    EXPECT_EQ(Told(), kRefusedX);
    EXPECT_TRUE(Light().hasFocus());
    Type(QStringLiteral("7"));
    EXPECT_FALSE(Explanation().isVisible());
    EXPECT_EQ(Now().typed.ProblemText, "47");
    Enter();
    EXPECT_EQ(Now().playback.ShownStep, 2);
}

TEST_F(ExplanationWindow, TheMenuTellsTheShownNote) {
    EXPECT_FALSE(Command("mnuExp").isEnabled());
    Choose(QStringLiteral("Meter Conversions"));
    Command("mnuExp").trigger();
    EXPECT_EQ(Told(), SpokenLine(Now().topic.InstructionText));
    ChooseFeet();
    EXPECT_FALSE(Explanation().isVisible());
    Type(QStringLiteral("7"));
    Command("mnuExp").trigger();
    EXPECT_TRUE(Explanation().isVisible());
    EXPECT_EQ(Told(), SpokenLine(Now().topic.InstructionText));

    Enter();
    EXPECT_FALSE(Explanation().isVisible());
    auto& notes = const_cast<Problem&>(Now()).log.StepNote;
    notes[2] = "";
    notes[3] = "The note of the third line.";
    Command("mnuExp").trigger();
    EXPECT_FALSE(Explanation().isVisible());
    EXPECT_TRUE(Command("mnuExp").isEnabled());
    Enter();
    Command("mnuExp").trigger();
    EXPECT_EQ(Told(), "The note of the third line.");
    Click(Arrow());
    EXPECT_FALSE(Explanation().isVisible());
    EXPECT_EQ(Now().playback.ShownStep, 4);
}

TEST_F(ExplanationWindow, ErasingClosesIt) {
    ExplainRefusal();
    Erase();
    EXPECT_FALSE(Explanation().isVisible());
    Click(Light());
    EXPECT_FALSE(Explanation().isVisible());
}

TEST_F(ExplanationWindow, StandsAtItsPlace) {
    // On a screen of 800 the window has to fit beside the line.
    frame.resize(860, 600);
    ExplainRefusal();
    EXPECT_EQ(Explanation().pos(), Sheet().mapToGlobal(QPoint(255, 70)));
    Enter();
    const_cast<Problem&>(Now()).log.StepNote[2] = "Why.";
    const_cast<Problem&>(Now()).playback.LineEndX = 100;
    Command("mnuExp").trigger();
    // Beside a line that ends at 100, on the base 81 + 28.8 + 46.
    EXPECT_EQ(Explanation().pos(), Sheet().mapToGlobal(QPoint(100 + 54, 156 + 120)));
}

TEST_F(ExplanationWindow, IsAsLargeAsItsText) {
    ChooseFeet();
    const double line =
        FontMetrics(FontMetrics::Medium::Explanation).LineHeight({"Book Antiqua", 12});
    const auto heightOf = [this](const char* note) {
        const_cast<Problem&>(Now()).log.StepNote[0] = note;
        Command("mnuExp").trigger();
        EXPECT_EQ(Explanation().width(), 400);
        return Explanation().height();
    };
    // A row is 3 and a line high; 3.5 lines are added, the caption included.
    EXPECT_EQ(heightOf("Short."), qCeil(3 + line + 3.5 * line));
    EXPECT_EQ(heightOf("Sixteen words of six letters and more, which can under no circumstances "
                       "stand in a single row."),
              qCeil(2 * (3 + line) + 3.5 * line));
}

TEST_F(ExplanationWindow, ALongTextScrolls) {
    ChooseFeet();
    std::string note;
    for (int i = 0; i < 400; ++i) {
        note += "another word ";
    }
    const_cast<Problem&>(Now()).log.StepNote[0] = note;
    Command("mnuExp").trigger();
    const QRect screen = frame.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(QRect(Explanation().pos(), Explanation().size())));
    auto& view = Find<QScrollArea>(Explanation(), QStringLiteral("Text"));
    EXPECT_TRUE(QTest::qWaitFor([&view] { return view.verticalScrollBar()->isVisible(); }, 1000));
    // As wide as without the bar, the border left out.
    EXPECT_EQ(view.viewport()->width(), 398);
}

TEST_F(ExplanationWindow, AQuotedRootBringsNoMessage) {
    Choose(QStringLiteral("Calculating Roots"));
    for (const char* keys : {"~~", "4~5"}) {
        Type(QString::fromUtf8(keys));
        const NoDialogOpens none;
        Click(Light());
        QTest::qWait(30);
        EXPECT_TRUE(Explanation().isVisible()) << keys;
    }
}

TEST_F(ExplanationWindow, WhatCannotBeDrawnIsToldAndTheWindowStands) {
    ChooseFeet();
    const_cast<Problem&>(Now()).log.StepNote[0] = "Take ~4 and go on.";
    const WhenDialogOpens message(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        PressButton(dialog, QStringLiteral("OK"));
    });
    Command("mnuExp").trigger();
    EXPECT_TRUE(Explanation().isVisible());
}

TEST_F(ExplanationWindow, TheLightsMenuHidesTheLight) {
    ChooseFeet();
    Click(Light(), Light().rect().center(), Qt::RightButton);
    EXPECT_TRUE(PopUp("mnuHidden3").isVisible());
    EXPECT_FALSE(Explanation().isVisible());
    QAction& hide = Command("mnuHideLight");
    EXPECT_EQ(hide.text(), "&Hide Guided Input Light");
    hide.trigger();
    PopUp("mnuHidden3").hide();
    EXPECT_FALSE(Light().isVisible());
    EXPECT_FALSE(Command("mnuShowLight").isChecked());
    Command("mnuShowLight").trigger();
    EXPECT_TRUE(Light().isVisible());
}

TEST_F(ExplanationWindow, TheMenuKeyWorksOnTheFocusedLight) {
    ChooseFeet();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(5, 5),
                            Light().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&Light(), &asked);
    EXPECT_TRUE(PopUp("mnuHidden3").isVisible());
    PopUp("mnuHidden3").hide();
}

TEST(PlaceOfExplanationTest, KeepsToTheScreenAndOffTheArrow) {
    const QRect screen(0, 0, 1000, 700);
    const QSize size(400, 200);
    const auto place = [&](QPoint wanted, QRect arrow = {}) {
        return PlaceOfExplanation({wanted, size}, screen, arrow);
    };
    EXPECT_EQ(place({300, 250}), QPoint(300, 250));
    EXPECT_EQ(place({900, 600}), QPoint(600, 500));
    EXPECT_EQ(place({-50, -20}), QPoint(0, 0));

    // Moved up from below the screen it would cover the arrow and has to go above it.
    const QRect low(640, 550, 36, 36);
    EXPECT_EQ(place({900, 660}, low), QPoint(600, 550 - 8 - 200));
    // And below an arrow with room under it.
    const QRect high(640, 100, 36, 36);
    EXPECT_EQ(place({620, 50}, high), QPoint(600, 135 + 8));
    EXPECT_EQ(place({100, 50}, high), QPoint(100, 50));
    // With room neither above nor below it stays.
    EXPECT_EQ(
        PlaceOfExplanation({QPoint(600, 40), QSize(400, 600)}, screen, QRect(640, 340, 36, 36)),
        QPoint(600, 40));
}

}  // namespace
}  // namespace numerello
