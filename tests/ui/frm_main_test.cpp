#include <gtest/gtest.h>

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include "tests/ui/frm_main_fixture.h"

namespace numerello {
namespace {

struct Captioned {
    const char* name;
    const char* text;
};

TEST_F(Window, HasEveryMenuEntryUnderItsName) {
    const Captioned menus[] = {{"mnuFile", "&File"},         {"mnuCreate", "&Tools"},
                               {"mnuSpecial", "&Functions"}, {"mnuOptions", "&Options"},
                               {"mnuHelp", "&Help"},         {"mnuWeb", "Vantrel on the &Web"}};
    for (const auto& [name, text] : menus) {
        EXPECT_EQ(Find<QMenu>(frame, QString::fromUtf8(name)).title().toStdString(), text);
    }
    const Captioned entries[] = {{"mnuNew", "&New Problem"},
                                 {"mnuPrint", "&Print"},
                                 {"mnuPrintSetup", "P&rint Setup"},
                                 {"mnuSave", "Save Problem"},
                                 {"mnuLoad", "Load Problem"},
                                 {"mnuExit", "&Exit"},
                                 {"mnuSolve", "&Solve!"},
                                 {"mnuExample", "E&xample Problem"},
                                 {"mnuErase", "Erase &Problem"},
                                 {"mnuGraph", "Create &Graph"},
                                 {"mnuPracticeTest", "Practice &Test"},
                                 {"mnuExp", "&Explanation"},
                                 {"mnuSquareRoot", "Square &Root"},
                                 {"mnuExponet", "&Exponent (^)"},
                                 {"mnuAbsValue", "Absolute &Value (|)"},
                                 {"mnuAddition", "&Add (+)"},
                                 {"mnuSubtraction", "&Subtract (-)"},
                                 {"mnuMultiplication", "&Multiply (*)"},
                                 {"mnuDivision", "&Divide (/)"},
                                 {"mnuConvertDF", "&Fraction/Decimal Conversion"},
                                 {"mnuPencil", "Use &Pencil"},
                                 {"mnuShowStep", "&Show Step-By-Step"},
                                 {"mnuHideWiz", "Show &Wiz Assistant"},
                                 {"mnuShowLight", "Show &Guided Input Light"},
                                 {"mnuChange", "Se&ttings"},
                                 {"mnuHelpTopics", "Help Topics"},
                                 {"mnuAlgSol", "Numerello &Solved!"},
                                 {"mnuHomePage", "Vantrel &Home Page"},
                                 {"mnuOnlineSupport", "Online Support"},
                                 {"mnuAbout", "&About Numerello"}};
    for (const auto& [name, text] : entries) {
        EXPECT_EQ(Command(name).text().toStdString(), text);
    }
    EXPECT_EQ(frame.windowTitle(), "Vantrel - Numerello");
}

TEST_F(Window, HasEveryButtonWithItsToolTip) {
    const Captioned buttons[] = {{"new", "New Problem"},
                                 {"save", "Save Problem"},
                                 {"open", "Load Problem"},
                                 {"print", "Print"},
                                 {"practice", "Practice Test"},
                                 {"graph", "Graph"},
                                 {"solve", "Solve!"},
                                 {"example", "Example"},
                                 {"clear", "Erase"},
                                 {"root", "Insert Root"},
                                 {"power", "Insert Exponent"},
                                 {"fracdec", "Convert Between Fraction and Decimal Format"},
                                 {"web", "Vantrel on the Web"}};
    auto& toolbar = Find<QToolBar>(frame, QStringLiteral("Toolbar1"));
    for (const auto& [name, text] : buttons) {
        const auto& button = Find<QToolButton>(toolbar, QString::fromUtf8(name));
        EXPECT_EQ(button.toolTip().toStdString(), text);
        EXPECT_EQ(button.accessibleName().toStdString(), text);
        EXPECT_EQ(button.focusPolicy(), Qt::NoFocus);
        EXPECT_FALSE(button.icon().isNull());
    }
    EXPECT_EQ(toolbar.actions().size(), 20);
    EXPECT_EQ(toolbar.iconSize(), QSize(48, 48));
}

TEST_F(Window, BeginsWithAnEmptyDesk) {
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    EXPECT_FALSE(Command("mnuErase").isEnabled());
    EXPECT_TRUE(Command("mnuNew").isEnabled());
    EXPECT_EQ(frame.findChild<QWidget*>(QStringLiteral("frmPaper")), nullptr);
}

TEST_F(Window, AHeldEnterDoesNotAnswerABox) {
    ChooseFeet();
    Type(QStringLiteral("7"));
    const WhenDialogOpens question(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        QWidget* focused = dialog.focusWidget();
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                           true);
        QCoreApplication::sendEvent(focused == nullptr ? &dialog : focused, &repeated);
        EXPECT_TRUE(dialog.isVisible());
        PressButton(dialog, QStringLiteral("Cancel"));
    });
    Command("mnuErase").trigger();
    EXPECT_EQ(SheetText(), "7");
}

TEST_F(Window, TheToolbarKeepsItsOrder) {
    QStringList order;
    auto& toolbar = Find<QToolBar>(frame, QStringLiteral("Toolbar1"));
    for (QAction* action : toolbar.actions()) {
        order += action->isSeparator() ? QStringLiteral("|")
                                       : toolbar.widgetForAction(action)->objectName();
    }
    EXPECT_EQ(
        order.join(u' ').toStdString(),
        "new | save open print | practice graph | solve | example clear | root power | fracdec "
        "| web");
}

TEST_F(Window, EraseAsksFirst) {
    ChooseFeet();
    Type(QStringLiteral("7"));
    Enter();
    const auto erase = [this](const char* button) {
        const WhenDialogOpens question(QStringLiteral("MessageBox"), [button](QWidget& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(box.windowTitle(), "Clear Problem");
            EXPECT_EQ(box.text(), "This will erase your entire problem.");
            EXPECT_EQ(box.standardButton(box.defaultButton()), QMessageBox::Ok);
            PressButton(dialog, QString::fromUtf8(button));
        });
        Command("mnuErase").trigger();
    };
    erase("Cancel");
    EXPECT_EQ(Now().playback.ShownStep, 2);
    EXPECT_TRUE(Arrow().isVisible());
    erase("OK");
    EXPECT_EQ(SheetText(), "");
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    Type(QStringLiteral("9"));
    EXPECT_EQ(SheetText(), "9");
}

TEST_F(Window, ACancelledNewLeavesTheSheetAsItWas) {
    ChooseFeet();
    Type(QStringLiteral("7"));
    CancelNew();
    EXPECT_EQ(Now().topic.TopicTitle, "Converting Feet To Yards");
    EXPECT_EQ(SheetText(), "7");
    Type(QStringLiteral("5"));
    Enter();
    EXPECT_EQ(Now().playback.ShownStep, 2);
    CancelNew();
    EXPECT_TRUE(Arrow().isVisible());
    Enter();
    EXPECT_EQ(Now().playback.ShownStep, 3);
}

TEST_F(Window, ANewTopicHasANewSheet) {
    ChooseFeet();
    Type(QStringLiteral("7"));
    Enter();
    Choose(QStringLiteral("Converting Miles To Feet"));
    EXPECT_EQ(SheetText(), "");
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_EQ(Sheet().accessibleName(), "Converting Miles To Feet");
    Type(QStringLiteral("2"));
    Enter();
    EXPECT_EQ(SheetText(), "2\nThere are 5280 feet in a mile.");
}

TEST_F(Window, FractionsAndDecimalsChangePlaces) {
    const QImage fractions = Command("mnuConvertDF").icon().pixmap(48).toImage();
    Command("mnuConvertDF").trigger();
    EXPECT_FALSE(Now().settings.UseFractions);
    EXPECT_NE(Command("mnuConvertDF").icon().pixmap(48).toImage(), fractions);
    Command("mnuConvertDF").trigger();
    EXPECT_TRUE(Now().settings.UseFractions);
}

}  // namespace
}  // namespace numerello
