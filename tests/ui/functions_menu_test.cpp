#include <gtest/gtest.h>

#include <QToolButton>

#include "tests/ui/frm_main_fixture.h"

namespace numerello {
namespace {

constexpr const char* kFunctions[] = {"mnuSquareRoot", "mnuExponet",     "mnuAbsValue",
                                      "mnuAddition",   "mnuSubtraction", "mnuMultiplication",
                                      "mnuDivision"};

class FunctionsMenu : public Window {
  protected:
    /// How many of the entries that type a key are open.
    int OpenFunctions() {
        int open = 0;
        for (const char* name : kFunctions) {
            open += Command(name).isEnabled() ? 1 : 0;
        }
        return open;
    }

    std::string Refusal() { return Now().input.InputError; }
};

TEST_F(FunctionsMenu, EachEntryTypesItsKey) {
    // The topic takes numbers alone, so that each key is answered with its own refusal.
    const std::string in = " in 'Converting Feet To Yards'.";
    const std::string wiz = "  Click the Assistant Wiz for details.";
    const std::string noSign = "  Enter a number without using + or -.";
    const std::pair<const char*, std::string> refusals[] = {
        {"mnuSquareRoot", "Square roots (~ ~) are not allowed" + in + wiz},
        {"mnuExponet", "Exponents are not allowed" + in + wiz},
        {"mnuAbsValue", "Absolute Values (|) are not allowed" + in + wiz},
        {"mnuAddition", "The '+' sign is not allowed" + in + noSign + wiz},
        {"mnuSubtraction", "The '-' sign is not allowed" + in + noSign + wiz},
        {"mnuMultiplication", "The '*' is not allowed" + in + wiz},
        {"mnuDivision", "The division symbol is not allowed" + in + wiz},
    };
    ChooseFeet();
    for (const auto& [name, refusal] : refusals) {
        Type(QStringLiteral("7"));
        EXPECT_EQ(Refusal(), "");
        Command(name).trigger();
        EXPECT_EQ(Refusal(), refusal) << name;
        // What the learner sees and hears has followed the key.
        EXPECT_EQ(Reason().toStdString(), refusal) << name;
        PressKey(frame, Qt::Key_Backspace);
    }
}

TEST_F(FunctionsMenu, TheInsertButtonsTypeAndLeaveTheKeysToTheSheet) {
    frame.resize(1100, 800);
    ChooseFeet();
    auto& sheet = Find<QWidget>(frame, QStringLiteral("frmPaper"));
    Type(QStringLiteral("4"));
    Click(Find<QToolButton>(frame, QStringLiteral("root")));
    EXPECT_TRUE(Refusal().starts_with("Square roots")) << Refusal();
    EXPECT_TRUE(sheet.hasFocus());
    Type(QStringLiteral("5"));
    Click(Find<QToolButton>(frame, QStringLiteral("power")));
    EXPECT_TRUE(Refusal().starts_with("Exponents")) << Refusal();
    EXPECT_TRUE(sheet.hasFocus());
    Type(QStringLiteral("6"));
    EXPECT_EQ(Now().typed.ProblemText, "456");
}

TEST_F(FunctionsMenu, IsOpenWhileALineIsTyped) {
    EXPECT_EQ(OpenFunctions(), 0);
    ChooseFeet();
    EXPECT_EQ(OpenFunctions(), 7);
    Type(QStringLiteral("7x"));
    EXPECT_EQ(OpenFunctions(), 7);
    CancelNew();
    EXPECT_EQ(OpenFunctions(), 7);
    Enter();
    EXPECT_EQ(OpenFunctions(), 0);
    Enter();
    Enter();
    ASSERT_FALSE(Arrow().isVisible());
    EXPECT_EQ(OpenFunctions(), 0);
    EXPECT_TRUE(Command("mnuConvertDF").isEnabled());
    Erase();
    EXPECT_EQ(OpenFunctions(), 7);
}

TEST_F(FunctionsMenu, IsClosedWhereBoxesAreFilled) {
    Choose(QStringLiteral("Meter Conversions"));
    EXPECT_EQ(OpenFunctions(), 0);
    EXPECT_FALSE(Find<QToolButton>(frame, QStringLiteral("root")).isEnabled());
    EXPECT_FALSE(Find<QToolButton>(frame, QStringLiteral("power")).isEnabled());
}

TEST_F(FunctionsMenu, TypesNothingAtTheEdgeOfTheSheet) {
    // No number is that long, so the end of the line is set by hand.
    ChooseFeet();
    Type(QStringLiteral("7"));
    const_cast<Problem&>(Now()).playback.LineEndX = 730;
    Command("mnuAddition").trigger();
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(SheetText(), "7");
}

}  // namespace
}  // namespace numerello
