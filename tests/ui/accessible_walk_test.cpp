#include "tests/ui/accessible_walk.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "tests/ui/window.h"

namespace numerello {
namespace {

/// Two boxes, one above the other, that want for nothing.
class AccessibleWalk : public testing::Test {
  protected:
    AccessibleWalk() {
        Add(first, "first", 0);
        Add(second, "second", 40);
    }

    void Add(QWidget& control, const char* name, int top) {
        control.setObjectName(QLatin1String(name));
        control.setAccessibleName(QLatin1String(name));
        control.move(0, top);
    }

    QWidget window;
    QLineEdit first{&window};
    QLineEdit second{&window};
};

TEST_F(AccessibleWalk, GoesThroughAWindowThatWantsForNothing) {
    ShowActive(window);
    first.setFocus();
    ExpectAllWithinReach(window);
    EXPECT_EQ(WalkByTab(window), (QStringList{"QLineEdit 'first'", "QLineEdit 'second'"}));
}

TEST_F(AccessibleWalk, FindsWhatHasNoNameOrThatOfAnother) {
    second.setAccessibleName(QString());
    ShowActive(window);
    EXPECT_EQ(ShownWithoutName(window), QStringList{"EditableText QLineEdit 'second'"});
    EXPECT_EQ(SharedNames(window), QStringList());
    second.setAccessibleName(QStringLiteral("first"));
    EXPECT_EQ(ShownWithoutName(window), QStringList());
    EXPECT_EQ(SharedNames(window), QStringList{"EditableText first"});
    second.hide();
    EXPECT_EQ(SharedNames(window), QStringList());
}

TEST_F(AccessibleWalk, FindsWhatTheTabKeyPassesOver) {
    QPushButton button(QStringLiteral("Go"), &window);
    Add(button, "go", 80);
    button.setFocusPolicy(Qt::ClickFocus);
    ShowActive(window);
    EXPECT_EQ(BeyondTheTabKey(window), QStringList{"QPushButton 'go'"});
    EXPECT_EQ(TabStops(window).size(), 2);
}

TEST_F(AccessibleWalk, FindsALabelOfSomethingElse) {
    QLabel label(QStringLiteral("&Third:"), &window);
    label.setBuddy(&second);
    ShowActive(window);
    EXPECT_EQ(LabelsAstray(window), QStringList{"&Third: of QLineEdit 'second'"});
    second.setAccessibleName(QStringLiteral("third"));
    EXPECT_EQ(LabelsAstray(window), QStringList());
}

TEST_F(AccessibleWalk, EndsWhereTheFocusIsTrapped) {
    QPlainTextEdit trap(&window);
    Add(trap, "trap", 80);
    ShowActive(window);
    first.setFocus();
    EXPECT_THROW(WalkByTab(window), std::runtime_error);
}

}  // namespace
}  // namespace numerello
