#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <set>

#include "catalogue/entry_layouts.h"
#include "catalogue/topics.h"
#include "tests/ui/accessible_walk.h"
#include "tests/ui/frm_main_fixture.h"
#include "tests/ui/printed_forms.h"
#include "ui/frm_graph.h"
#include "ui/frm_help.h"
#include "ui/frm_logo.h"
#include "ui/frm_practice_test.h"
#include "ui/frm_print_preview.h"
#include "ui/text.h"
#include "ui/window_file_dialog.h"
#include "ui/window_learner.h"

namespace numerello {
namespace {

/// The caption of the button that Enter presses wherever the focus is.
std::string DefaultButton(QWidget& dialog) {
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->isDefault() && button->isVisible()) {
            return button->text().remove(u'&').toStdString();
        }
    }
    return "";
}

/// Walks through a dialog, in which Enter presses that button, and leaves it by Esc.
WhenDialogOpens::Action WalkAndLeave(const std::string& defaultButton) {
    return [defaultButton](QWidget& dialog) {
        EXPECT_EQ(DefaultButton(dialog), defaultButton);
        ExpectAllWithinReach(dialog);
        PressKey(dialog, Qt::Key_Escape);
    };
}

class WithinReach : public Window {
  protected:
    WithinReach() { frame.resize(1280, 800); }

    /// Returns when the Wiz has grown in: nothing may come during a walk.
    void Choose(const QString& caption) {
        Window::Choose(caption);
        const auto& growing = Find<QTimer>(frame, QStringLiteral("wizIn"));
        ASSERT_TRUE(QTest::qWaitFor([&growing] { return !growing.isActive(); }, 5000));
    }

    void Open(const char* command, const char* form, const std::string& defaultButton) {
        const WhenDialogOpens dialog(QString::fromLatin1(form), WalkAndLeave(defaultButton));
        Command(command).trigger();
        ShowActive(frame);
    }
};

TEST_F(WithinReach, IsTheEmptyFrame) {
    ExpectAllWithinReach(frame);
}

TEST_F(WithinReach, IsTheChooserOnBothTabs) {
    const WhenDialogOpens chooser(QStringLiteral("frmSelect"), [](QWidget& dialog) {
        auto& tree = Find<QTreeWidget>(dialog, QStringLiteral("TreeView1"));
        tree.expandAll();
        ExpectAllWithinReach(dialog);
        PressKey(dialog, Qt::Key_Tab, Qt::ControlModifier);
        ASSERT_EQ(Find<QTabWidget>(dialog, QStringLiteral("SSTab1")).currentIndex(), 1);
        ExpectAllWithinReach(dialog);
        PressKey(dialog, Qt::Key_Escape);
    });
    Command("mnuNew").trigger();
}

TEST_F(WithinReach, IsASheetForALineThroughItsSolution) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    ExpectAllWithinReach(frame);
    Type(QStringLiteral("40"));
    Enter();
    ASSERT_TRUE(Arrow().isVisible());
    ExpectAllWithinReach(frame);
    while (Arrow().isVisible()) {
        Enter();
    }
    ExpectAllWithinReach(frame);
}

TEST_F(WithinReach, IsEverySheetWithBoxesOrLists) {
    std::set<const EntryLayout*> walked;
    for (const Topic& topic : TreeTopics()) {
        const EntryLayout* layout = FindEntryLayout(topic.code);
        if (layout != nullptr && walked.insert(layout).second) {
            SCOPED_TRACE(topic.caption);
            Choose(ToQString(topic.caption));
            ExpectAllWithinReach(frame);
        }
    }
    EXPECT_EQ(walked.size(), EntryLayouts().size());
}

TEST_F(WithinReach, IsASheetWhoseBoxesAreLocked) {
    Choose(QStringLiteral("Pythagorean Theorem"));
    PressKeys(frame, {Qt::Key_Tab, Qt::Key_3, Qt::Key_Tab, Qt::Key_4, Qt::Key_Return});
    ASSERT_TRUE(Arrow().isVisible());
    ExpectAllWithinReach(frame);
}

TEST_F(WithinReach, IsTheSheetBesideAnExplanation) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("4x"));
    Click(Light());
    ASSERT_TRUE(Explanation().isVisible());
    EXPECT_EQ(ShownWithoutName(Explanation()), QStringList());
    EXPECT_EQ(TabStops(Explanation()), QStringList()) << "the keys are the sheet's";
    PressKey(frame, Qt::Key_Escape);
    EXPECT_FALSE(Explanation().isVisible());
    ExpectAllWithinReach(frame);
}

TEST_F(WithinReach, AreTheSettings) {
    Open("mnuChange", "frmOptions", "OK");
}

TEST_F(WithinReach, IsAbout) {
    Open("mnuAbout", "frmAbout", "OK");
}

TEST_F(WithinReach, ArePrintOptions) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("40"));
    Enter();
    Open("mnuPrint", "frmPrintSetup", "Print");
}

TEST_F(WithinReach, IsThePracticeTestOnBothTabs) {
    const WhenDialogOpens test(QStringLiteral("frmPracticeTest"), [](QWidget& dialog) {
        EXPECT_EQ(DefaultButton(dialog), "Create Practice Test");
        ExpectAllWithinReach(dialog);
        auto& tabs = Find<QTabWidget>(dialog, QStringLiteral("SSTab1"));
        tabs.setCurrentIndex(1);
        auto& index = Find<QAbstractItemView>(dialog, QStringLiteral("IndexList"));
        // Filled rows open their lists and ticks.
        index.setFocus();
        PressKeys(dialog, {Qt::Key_Return, Qt::Key_Down, Qt::Key_Return});
        ASSERT_TRUE(Find<QCheckBox>(dialog, QStringLiteral("Check1(1)")).isEnabled());
        ExpectAllWithinReach(dialog);
        PressKey(dialog, Qt::Key_Escape);
    });
    Command("mnuPracticeTest").trigger();
}

/// Enter prints nothing before somebody has looked at the pages.
TEST_F(WithinReach, ArePreviewAndAnswerKey) {
    const auto preview = [](bool withKey) {
        Previewed shown =
            PreviewOfTest({"a", "b", "c"}, {{"", "Add:", "1) 4 + 5"}, {}}, {.year = 2026});
        if (!withKey) {
            shown.answerKey = nullptr;
        }
        return shown;
    };
    PrintDevice device;
    for (const bool withKey : {false, true}) {
        const WhenDialogOpens walk(QStringLiteral("frmPrintPreview"), WalkAndLeave(""));
        FrmPrintPreview(preview(withKey), device).exec();
    }
}

TEST_F(WithinReach, IsTheGraph) {
    Choose(QStringLiteral("Graphing A Line Using Two Points"));
    Type(QStringLiteral("(1,2)-(5,6)"));
    Enter();
    auto& graph = Find<FrmGraph>(frame, QStringLiteral("frmGraph"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&graph));
    ExpectAllWithinReach(graph);
    const QPointer<QWidget> guarded(&graph);
    PressKey(graph, Qt::Key_Escape);
    QTest::qWait(1);
    EXPECT_TRUE(guarded.isNull());
}

TEST_F(WithinReach, IsTheHelpThroughASearch) {
    FrmHelp help(nullptr);
    help.ShowTopic("Fraction Arithmetic");
    ShowActive(help);
    ExpectAllWithinReach(help);
    PressKey(help, Qt::Key_F, Qt::ControlModifier);
    TypeText(help, QStringLiteral("quotient"));
    ExpectAllWithinReach(help);
    help.setFocus();
    PressKey(help, Qt::Key_Escape);
    PressKey(help, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

TEST_F(WithinReach, IsTheSplash) {
    FrmLogo splash;
    ShowActive(splash);
    EXPECT_EQ(ShownWithoutName(splash), QStringList());
    EXPECT_EQ(TabStops(splash).size(), 1);
    PressKey(splash, Qt::Key_Escape);
    EXPECT_FALSE(splash.isVisible());
}

TEST_F(WithinReach, AreMessageQuestionAndPrompt) {
    WindowLearner learner(&frame);
    {
        const WhenDialogOpens message(QStringLiteral("MessageBox"), WalkAndLeave("OK"));
        learner.MessageBox("", "Overflow.");
    }
    {
        const WhenDialogOpens question(QStringLiteral("MessageBox"), WalkAndLeave("OK"));
        EXPECT_FALSE(learner.Confirm("Clear Problem", "Erase?"));
    }
    const WhenDialogOpens prompt(QStringLiteral("InputBox"), WalkAndLeave("OK"));
    EXPECT_EQ(learner.InputBox("Graph", "Which letter?"), std::nullopt);
}

TEST_F(WithinReach, AreTheDialogsForFiles) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("40"));
    Enter();
    Open("mnuSave", "CommonDialog1", "Save");
    Open("mnuLoad", "CommonDialog1", "Open");
}

}  // namespace
}  // namespace numerello
