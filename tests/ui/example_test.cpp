#include <gtest/gtest.h>

#include <QLineEdit>
#include <QScrollBar>
#include <QToolButton>

#include "catalogue/topic_choice.h"
#include "catalogue/topics.h"
#include "tests/ui/frm_main_fixture.h"
#include "ui/frm_paper.h"

namespace numerello {
namespace {

class ExampleProblem : public Window {
  protected:
    void Press() {
        Find<QToolButton>(frame, QStringLiteral("example")).click();
        ShowActive(frame);
    }
};

TEST_F(ExampleProblem, IsThereOnceATopicIsChosen) {
    EXPECT_FALSE(Command("mnuExample").isEnabled());
    CancelNew();
    EXPECT_FALSE(Command("mnuExample").isEnabled());
    Choose(QStringLiteral("Arithmetic"));
    EXPECT_TRUE(Command("mnuExample").isEnabled());
    Press();
    EXPECT_TRUE(Command("mnuExample").isEnabled());
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
}

TEST_F(ExampleProblem, IsTypedOnTheLineAndPlayed) {
    Choose(QStringLiteral("Calculating With Exponents"));
    Type(QStringLiteral("4^2+"));
    Press();
    const std::string& typed = Now().typed.ProblemText;
    EXPECT_GE(typed.size(), 7U);
    EXPECT_NE(typed.substr(0, 4), "4^2+4");
    EXPECT_EQ(Now().playback.ShownStep, 2);
    EXPECT_TRUE(Arrow().isVisible());
    EXPECT_EQ(SheetText().count(u'\n'), 1);
    const int steps = Now().log.StepCount;
    for (int shown = 2; shown < steps - 1; ++shown) {
        Enter();
    }
    EXPECT_EQ(Now().playback.ShownStep, steps - 1);
}

TEST_F(ExampleProblem, FillsTheBoxes) {
    Choose(QStringLiteral("Volume of a Box/Cube"));
    TypeText(frame, QStringLiteral("123456789"));
    Press();
    for (const char* name : {"Text1", "Text2", "Text3"}) {
        const auto& box = Find<QLineEdit>(frame, QString::fromUtf8(name));
        EXPECT_EQ(box.text().size(), 1) << name;
        EXPECT_EQ(box.width(), 54) << name;
    }
    EXPECT_TRUE(Arrow().isVisible());
    EXPECT_TRUE(Arrow().hasFocus());
}

TEST_F(ExampleProblem, BeginsAnewOnTheFirstSheet) {
    Choose(QStringLiteral("Factoring"));
    Type(QStringLiteral("83160"));
    Command("mnuShowStep").trigger();
    Enter();
    ASSERT_GT(Now().playback.CurrentPage, 0);
    Press();
    EXPECT_EQ(Now().playback.CurrentPage, 0);
    EXPECT_LE(Now().typed.ProblemText.size(), 2U);
    EXPECT_FALSE(Find<QWidget>(frame, QStringLiteral("Paper1")).isVisible());
}

/// No topic's example may be dropped at the edge of the sheet or end in a message.
TEST_F(ExampleProblem, OfEveryTopicIsSolved) {
    QMainWindow other;
    other.resize(1100, 800);
    WindowLearner learner(&other);
    for (const Topic& topic : Topics()) {
        Problem problem;
        MersenneSource random;
        TreeViewSelect(topic.caption, problem.topic, FixedClock(0), random);
        // These ask for values, or open a graph.
        const bool opensWindow =
            topic.code == 103 || topic.code == 105 || topic.code == 106 || topic.code == 108;
        if (opensWindow) {
            continue;
        }
        problem.settings.ComplexEx = 2;
        auto* paper = new FrmPaper(problem, learner, &other);
        other.setCentralWidget(paper);
        ShowActive(other);
        paper->example_Click(FixedClock(1517));
        EXPECT_FALSE(problem.playback.TypingEnabled) << topic.caption;
        EXPECT_TRUE(problem.controls.SaveEnabled) << topic.caption;
        EXPECT_TRUE(problem.columns.Any() || problem.log.StepCount > 1 ||
                    problem.graph.GraphMode != 0)
            << topic.caption;
        delete other.takeCentralWidget();
    }
}

}  // namespace
}  // namespace numerello
