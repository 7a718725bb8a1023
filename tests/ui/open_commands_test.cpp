#include <gtest/gtest.h>

#include <QMainWindow>
#include <QTest>
#include <QToolButton>
#include <vector>

#include "tests/ui/frm_main_fixture.h"
#include "ui/frame_commands.h"

namespace numerello {
namespace {

/// Commands that open and close together.
struct Group {
    const char* name;
    std::vector<const char*> commands;
};

const std::vector<Group>& Groups() {
    static const std::vector<Group> groups{
        {"save", {"mnuSave"}},
        {"print", {"mnuPrint", "mnuPrintSetup"}},
        {"graph", {"mnuGraph"}},
        {"solve", {"mnuSolve"}},
        {"sheet", {"mnuExample", "mnuErase", "mnuExp"}},
        {"keys",
         {"mnuSquareRoot", "mnuExponet", "mnuAbsValue", "mnuAddition", "mnuSubtraction",
          "mnuMultiplication", "mnuDivision"}},
    };
    return groups;
}

constexpr const char* kAlwaysOpen[] = {
    "mnuNew",      "mnuLoad",     "mnuPracticeTest",  "mnuConvertDF", "mnuPencil",
    "mnuShowStep", "mnuHideWiz",  "mnuShowLight",     "mnuChange",    "mnuHelpTopics",
    "mnuAlgSol",   "mnuHomePage", "mnuOnlineSupport", "mnuAbout",     "mnuExit"};

class OpenCommands : public Window {
  protected:
    /// The groups that are open now, each by its name.
    std::string Open() {
        for (const char* name : kAlwaysOpen) {
            EXPECT_TRUE(Command(name).isEnabled()) << name;
        }
        std::string open;
        for (const Group& group : Groups()) {
            const bool isOpen = Command(group.commands.front()).isEnabled();
            for (const char* name : group.commands) {
                EXPECT_EQ(Command(name).isEnabled(), isOpen) << name;
            }
            if (isOpen) {
                open += open.empty() ? group.name : std::string(" ") + group.name;
            }
        }
        for (const ButtonRow& row : ButtonRows()) {
            if (*row.key != '\0') {
                EXPECT_EQ(Find<QToolButton>(frame, QString::fromUtf8(row.key)).isEnabled(),
                          Command(row.command).isEnabled())
                    << row.key;
            }
        }
        return open;
    }
};

TEST_F(OpenCommands, OnTheEmptyDesk) {
    EXPECT_EQ(Open(), "");
    CancelNew();
    EXPECT_EQ(Open(), "");
}

TEST_F(OpenCommands, FromTheFirstKeyToTheCheckMark) {
    ChooseFeet();
    EXPECT_EQ(Open(), "sheet keys");
    Type(QStringLiteral("x"));
    EXPECT_EQ(Open(), "sheet keys");
    Type(QStringLiteral("7"));
    EXPECT_EQ(Open(), "solve sheet keys");
    Type(QStringLiteral("x"));
    EXPECT_EQ(Open(), "solve sheet keys");
    PressKey(frame, Qt::Key_Backspace);
    EXPECT_EQ(Open(), "sheet keys");
    Type(QStringLiteral("7"));
    CancelNew();
    EXPECT_EQ(Open(), "solve sheet keys");
    Enter();
    ASSERT_TRUE(Arrow().isVisible());
    EXPECT_EQ(Open(), "save print sheet");
    CancelNew();
    EXPECT_EQ(Open(), "save print sheet");
    Enter();
    Enter();
    ASSERT_FALSE(Arrow().isVisible());
    EXPECT_EQ(Open(), "save print sheet");
    Erase();
    EXPECT_EQ(Open(), "sheet keys");
    Choose(QStringLiteral("Converting Miles To Feet"));
    EXPECT_EQ(Open(), "sheet keys");
}

TEST_F(OpenCommands, AllAtOnceAndOverAfterUnticking) {
    ChooseFeet();
    Type(QStringLiteral("7"));
    Enter();
    Command("mnuShowStep").trigger();
    EXPECT_EQ(Open(), "save print sheet");
    Click(Arrow());
    ASSERT_FALSE(Arrow().isVisible());
    EXPECT_EQ(Open(), "save print sheet");
    Erase();
    Type(QStringLiteral("7"));
    Enter();
    EXPECT_EQ(Open(), "save print sheet");
}

TEST_F(OpenCommands, WhereBoxesAreFilled) {
    Choose(QStringLiteral("Area of a Triangle"));
    EXPECT_EQ(Open(), "sheet");
    Type(QStringLiteral("4"));
    EXPECT_EQ(Open(), "sheet");
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("2"));
    EXPECT_EQ(Open(), "solve sheet");
    PressKey(frame, Qt::Key_Backspace);
    EXPECT_EQ(Open(), "sheet");
    Type(QStringLiteral("2"));
    Enter();
    EXPECT_EQ(Open(), "save print sheet");
    Erase();
    EXPECT_EQ(Open(), "sheet");
}

TEST_F(OpenCommands, WhereAGraphIsDrawn) {
    Choose(QStringLiteral("Calculating A Point's Quadrant"));
    EXPECT_EQ(Open(), "sheet keys");
    Type(QStringLiteral("(3,4)"));
    EXPECT_EQ(Open(), "solve sheet keys");
    Enter();
    EXPECT_EQ(Open(), "save print graph sheet");
    Erase();
    EXPECT_EQ(Open(), "sheet keys");
}

TEST_F(OpenCommands, AfterALoadAndAnExample) {
    ChooseFeet();
    Command("mnuExample").trigger();
    EXPECT_EQ(Open(), "save print sheet");
    Erase();
    EXPECT_EQ(Open(), "sheet keys");
}

TEST_F(OpenCommands, AfterAFailure) {
    ChooseFeet();
    Type(QStringLiteral("7."));
    const WhenDialogOpens message(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        PressButton(dialog, QStringLiteral("OK"));
    });
    Enter();
    EXPECT_EQ(Open(), "save print sheet");
}

TEST_F(OpenCommands, WhatIsNotConnectedStaysGrey) {
    QMainWindow window;
    FrameCommands commands(window);
    EntryControls controls;
    controls.SaveEnabled = true;
    int saved = 0;
    commands.Connect("mnuSave", [&saved] { ++saved; });
    commands.Update(controls, true, true);
    EXPECT_TRUE(commands.At("mnuSave").isEnabled());
    EXPECT_FALSE(commands.At("mnuLoad").isEnabled());
    commands.At("mnuSave").trigger();
    commands.At("mnuLoad").trigger();
    EXPECT_EQ(saved, 1);
}

TEST_F(OpenCommands, ANarrowFrameKeepsTheRestBehindAButton) {
    frame.resize(640, 480);
    auto& more = Find<QToolButton>(frame, QStringLiteral("qt_toolbar_ext_button"));
    EXPECT_TRUE(QTest::qWaitFor([&more] { return more.isVisible(); }, 1000));
    EXPECT_FALSE(Find<QToolButton>(frame, QStringLiteral("web")).isVisible());
    EXPECT_EQ(more.accessibleName(), "More commands");
    EXPECT_EQ(more.focusPolicy(), Qt::NoFocus);
}

TEST_F(OpenCommands, APopUpFollowsItsCommand) {
    const auto pair = [this](const char* name, const char* command) {
        EXPECT_EQ(Command(name).isEnabled(), Command(command).isEnabled()) << name;
        EXPECT_TRUE(Command(name).isEnabled()) << name;
    };
    pair("mnuHide", "mnuHideWiz");
    pair("mnuHideOptions", "mnuChange");
    pair("mnuUsePencil", "mnuPencil");
    pair("mnuHideLight", "mnuShowLight");
    EXPECT_TRUE(Command("mnuUsePencil").isChecked());
    Command("mnuUsePencil").trigger();
    EXPECT_FALSE(Command("mnuPencil").isChecked());
    Command("mnuPencil").trigger();
    EXPECT_TRUE(Command("mnuUsePencil").isChecked());
    Command("mnuHide").trigger();
    EXPECT_FALSE(Command("mnuHideWiz").isChecked());
    Command("mnuHideLight").trigger();
    EXPECT_FALSE(Command("mnuShowLight").isChecked());
}

}  // namespace
}  // namespace numerello
