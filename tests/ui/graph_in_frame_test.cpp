#include <gtest/gtest.h>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include "catalogue/topic_choice.h"
#include "graph/coordinate_list.h"
#include "tests/ui/frm_main_fixture.h"
#include "ui/frm_graph.h"
#include "ui/frm_help.h"

namespace numerello {
namespace {

TEST_F(Window, APointOpensItsGraphAtOnce) {
    Choose(QStringLiteral("Plotting A Point"));
    EXPECT_FALSE(Command("mnuGraph").isEnabled());
    Type(QStringLiteral("(4,-8)"));
    Enter();
    auto* form = frame.findChild<FrmGraph*>(QStringLiteral("frmGraph"));
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->windowTitle(), "Plotting A Point");
    EXPECT_EQ(form->Shown().Request().GraphMode, 1);
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_TRUE(Command("mnuGraph").isEnabled());
}

TEST_F(Window, TheGraphKnowsTheKeysForHelpAndExit) {
    Choose(QStringLiteral("Plotting A Point"));
    Type(QStringLiteral("(4,-8)"));
    Enter();
    auto& form = Find<FrmGraph>(frame, QStringLiteral("frmGraph"));
    ShowActive(form);
    PressKey(form, Qt::Key_F1);
    auto* help = frame.findChild<FrmHelp*>();
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->isVisible());

    const QSignalSpy closed(&frame, &FrmMain::Closed);
    ShowActive(form);
    PressKey(form, Qt::Key_Q, Qt::ControlModifier);
    QTest::qWait(0);
    EXPECT_EQ(closed.count(), 1);
    EXPECT_FALSE(frame.isVisible());
}

TEST_F(Window, TwoPointsOpenTheirGraphAlsoAllAtOnce) {
    Command("mnuShowStep").trigger();
    Choose(QStringLiteral("Graphing A Line Using Two Points"));
    Type(QStringLiteral("(1,2)-(5,6)"));
    Enter();
    auto* form = frame.findChild<FrmGraph*>(QStringLiteral("frmGraph"));
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->Shown().Request().GraphMode, 2);
}

TEST_F(Window, AQuadrantOpensItsGraphAtTheEndOfItsPlayback) {
    Choose(QStringLiteral("Calculating A Point's Quadrant"));
    Type(QStringLiteral("(-3,5)"));
    Enter();
    int steps = 0;
    while (Arrow().isVisible()) {
        ASSERT_EQ(frame.findChild<FrmGraph*>(), nullptr) << steps;
        Click(Arrow());
        ASSERT_LT(++steps, 20);
    }
    EXPECT_GT(steps, 0);
    auto* form = frame.findChild<FrmGraph*>();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->Shown().Request().GraphMode, 1);
}

TEST(GraphOfAnEquation, IsAskedForAtTheEndOfItsPlayback) {
    Problem problem;
    MersenneSource random;
    WindowLearner learner(nullptr);
    TreeViewSelect("Graphing A Linear Equation", problem.topic, SystemClock(), random);
    FrmPaper paper(problem, learner, nullptr);
    const QSignalSpy asked(&paper, &FrmPaper::GraphAsked);
    const QSignalSpy done(&paper, &FrmPaper::GraphDone);
    for (const char* key : {"2", "x", "+", "3", "y", "=", "6"}) {
        paper.Form_KeyPress(key);
    }
    paper.compute_Click();
    EXPECT_EQ(done.count(), 1);
    EXPECT_EQ(problem.graph.GraphMode, 3);
    while (problem.playback.ShownStep < problem.log.StepCount - 1) {
        ASSERT_EQ(asked.count(), 0) << problem.playback.ShownStep;
        paper.NextStep();
    }
    EXPECT_EQ(asked.count(), 1);
    GraphSettings settings;
    const FrmGraph form(problem, settings, nullptr);
    EXPECT_EQ(form.Shown().ThePlot().points.size(), 201U);
}

TEST_F(Window, AQuadrantOpensItsGraphByTheButtonAlone) {
    Command("mnuShowStep").trigger();
    Choose(QStringLiteral("Calculating A Point's Quadrant"));
    Type(QStringLiteral("(-3,5)"));
    Enter();
    EXPECT_EQ(frame.findChild<FrmGraph*>(), nullptr);
    ASSERT_TRUE(Command("mnuGraph").isEnabled());
    Command("mnuGraph").trigger();
    auto* form = frame.findChild<FrmGraph*>();
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->Shown().ShowsQuadrants());
}

TEST_F(Window, TheOpenGraphComesToTheFrontAndKeepsItsRange) {
    Choose(QStringLiteral("Plotting A Point"));
    Type(QStringLiteral("(4,-8)"));
    Enter();
    QPointer<FrmGraph> form = frame.findChild<FrmGraph*>();
    ASSERT_TRUE(form);
    Find<QAction>(*form, QStringLiteral("mnuGraphZoomOut")).trigger();
    ShowActive(frame);
    Command("mnuGraph").trigger();
    EXPECT_EQ(frame.findChildren<FrmGraph*>().size(), 1);
    EXPECT_EQ(form->Shown().Range().GraphXMax, 40);
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));

    // A fresh one begins anew.
    form->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(form);
    Command("mnuGraph").trigger();
    ASSERT_NE(frame.findChild<FrmGraph*>(), nullptr);
    EXPECT_EQ(frame.findChild<FrmGraph*>()->Shown().Range().GraphXMax, 20);
}

TEST_F(Window, ColorsAndQualityLastForTheRun) {
    Choose(QStringLiteral("Plotting A Point"));
    Type(QStringLiteral("(4,-8)"));
    Enter();
    QPointer<FrmGraph> form = frame.findChild<FrmGraph*>();
    ASSERT_TRUE(form);
    Find<QAction>(*form, QStringLiteral("mnuGraphHighQuality")).trigger();
    form->close();
    Command("mnuGraph").trigger();
    const auto forms = frame.findChildren<FrmGraph*>();
    ASSERT_FALSE(forms.isEmpty());
    EXPECT_TRUE(Find<QAction>(*forms.back(), QStringLiteral("mnuGraphHighQuality")).isChecked());
}

TEST_F(Window, TheGraphStaysOverEraseAndGoesWithTheNextSolve) {
    Choose(QStringLiteral("Plotting A Point"));
    Type(QStringLiteral("(4,-8)"));
    Enter();
    const QPointer<FrmGraph> form = frame.findChild<FrmGraph*>();
    ASSERT_TRUE(form);
    ShowActive(frame);
    Erase();
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_FALSE(Command("mnuGraph").isEnabled());
    Choose(QStringLiteral("Converting Inches To Yards"));
    EXPECT_TRUE(form && form->isVisible());
    // It shows what it was opened for, whatever the frame is at.
    EXPECT_EQ(form->windowTitle(), "Plotting A Point");
    Find<QAction>(*form, QStringLiteral("mnuGraphZoomOut")).trigger();
    EXPECT_EQ(CoordinateEntry(form->Shown().ThePlot(), 0), "x=4  y=-8");
    Type(QStringLiteral("40"));
    Enter();
    EXPECT_FALSE(form && form->isVisible());
}

TEST_F(Window, AFailedPointHasNoGraph) {
    Choose(QStringLiteral("Plotting A Point"));
    Type(QStringLiteral("(4,"));
    const WhenDialogOpens message(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        PressButton(dialog, QStringLiteral("OK"));
    });
    Enter();
    EXPECT_EQ(frame.findChild<FrmGraph*>(), nullptr);
    EXPECT_FALSE(Command("mnuGraph").isEnabled());
}

TEST_F(Window, TheGraphClosesWithTheFrame) {
    Choose(QStringLiteral("Plotting A Point"));
    Type(QStringLiteral("(4,-8)"));
    Enter();
    const QPointer<FrmGraph> form = frame.findChild<FrmGraph*>();
    ASSERT_TRUE(form);
    frame.close();
    EXPECT_FALSE(form && form->isVisible());
}

}  // namespace
}  // namespace numerello
