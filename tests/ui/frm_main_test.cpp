#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "tests/ui/frm_main_fixture.h"
#include "ui/frm_logo.h"
#include "ui/light_button.h"

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

TEST_F(Window, PlaysAConversionToTheCheckMark) {
    Choose(QStringLiteral("Converting Inches To Yards"));
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    Type(QStringLiteral("40"));
    EXPECT_TRUE(Command("mnuSolve").isEnabled());
    Command("mnuSolve").trigger();
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    for (int shown = 2; shown < 9; ++shown) {
        ASSERT_TRUE(Arrow().isVisible()) << shown;
        EXPECT_EQ(Now().playback.ShownStep, shown);
        Click(Arrow());
    }
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_EQ(Now().playback.ShownStep, 9);
    EXPECT_TRUE(SheetText().endsWith(QStringLiteral("40 inches equals 1.11 yards")));
    EXPECT_EQ(SheetText().count(u'\n'), 8);
}

TEST_F(Window, ASmallWindowScrollsToTheArrowAndTheCheckMark) {
    frame.resize(640, 480);
    Choose(QStringLiteral("Converting Inches To Yards"));
    auto& view = Find<QScrollArea>(frame, QStringLiteral("frmPaper"));
    Type(QStringLiteral("40"));
    Enter();
    for (int shown = 2; shown < 9; ++shown) {
        const QRect arrow(Arrow().mapTo(view.viewport(), QPoint()), Arrow().size());
        EXPECT_TRUE(view.viewport()->rect().contains(arrow)) << shown;
        Enter();
    }
    const QPoint end(qRound(Now().playback.LineEndX + 20), qRound(Now().playback.LineEndY));
    const QPoint mark = Find<QWidget>(frame, QStringLiteral("Paper0")).mapTo(view.viewport(), end);
    EXPECT_TRUE(view.viewport()->rect().contains(mark));

    EXPECT_GT(view.verticalScrollBar()->value(), 0);
    Erase();
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    Type(QStringLiteral("7"));
    EXPECT_LT(view.verticalScrollBar()->value(), 100);
}

TEST_F(Window, AHeldEnterDoesNotAnswerABox) {
    Choose(QStringLiteral("Converting Feet To Yards"));
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

TEST_F(Window, ARefusalIsForgottenWithTheLight) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7x"));
    Enter();
    EXPECT_EQ(SheetText(), "7\nThere are 3 feet in a yard.");
}

TEST_F(Window, TheDescriptionTellsWhatWasDrawn) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7"));
    Enter();
    Enter();
    const QString drawn = SheetText();
    EXPECT_EQ(drawn.count(u'\n'), 2);
    Command("mnuShowStep").trigger();
    EXPECT_EQ(SheetText(), drawn);
    Click(Arrow());
    EXPECT_EQ(SheetText(), drawn);
    EXPECT_FALSE(Arrow().isVisible());
}

TEST_F(Window, ForeignTextReachesNoBox) {
    Choose(QStringLiteral("Meter Conversions"));
    auto& value = Find<QLineEdit>(frame, QStringLiteral("Text4"));
    QGuiApplication::clipboard()->setText(QStringLiteral("a1b2"));
    EXPECT_FALSE(value.acceptDrops());
    PressKey(frame, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(value.text(), "12");
}

TEST_F(Window, TheUnitsFitALargeInterfaceFont) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(22);
    QApplication::setFont(large);
    Choose(QStringLiteral("Meter Conversions"));
    auto& from = Find<QComboBox>(frame, QStringLiteral("Combo1"));
    auto& to = Find<QComboBox>(frame, QStringLiteral("Combo2"));
    EXPECT_GE(from.width(), from.fontMetrics().horizontalAdvance(from.placeholderText()));
    EXPECT_GE(from.height(), from.sizeHint().height());
    EXPECT_LT(from.geometry().right(), to.geometry().left());
    EXPECT_LE(to.geometry().right(), 750);
    QApplication::setFont(usual);
}

TEST_F(Window, AMinimisedFrameDoesNotFlash) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7"));
    Enter();
    auto& timer = Find<QTimer>(frame, QStringLiteral("Timer2"));
    EXPECT_TRUE(timer.isActive());
    // A minimised frame's form is told that it is hidden, and yet counts as visible.
    auto& sheet = Find<QWidget>(frame, QStringLiteral("frmPaper"));
    QHideEvent minimised;
    QCoreApplication::sendEvent(&sheet, &minimised);
    EXPECT_TRUE(sheet.isVisible());
    EXPECT_FALSE(timer.isActive());
    QShowEvent restored;
    QCoreApplication::sendEvent(&sheet, &restored);
    EXPECT_TRUE(timer.isActive());
    while (Arrow().isVisible()) {
        EXPECT_TRUE(timer.isActive());
        Click(Arrow());
    }
    EXPECT_FALSE(timer.isActive());
}

TEST_F(Window, TheLineEndsAtTheEdgeOfTheSheet) {
    // No number is that long, so the end of the line is set by hand.
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7"));
    const_cast<Problem&>(Now()).playback.LineEndX = 730;
    Type(QStringLiteral("5x"));
    EXPECT_EQ(SheetText(), "7");
    PressKey(frame, Qt::Key_Backspace);
    EXPECT_EQ(SheetText(), "");
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

TEST(Splash, ClosesByItselfOnAKeyAndOnAClick) {
    LoadSheetFont();
    const auto closed = [](const std::function<void(FrmLogo&)>& action, int patience) {
        FrmLogo logo;
        bool done = false;
        QObject::connect(&logo, &FrmLogo::Closed, [&done] { done = true; });
        ShowActive(logo);
        action(logo);
        return QTest::qWaitFor([&done] { return done; }, patience);
    };
    EXPECT_FALSE(closed([](FrmLogo&) {}, 700));
    EXPECT_TRUE(closed([](FrmLogo&) {}, 1500));
    EXPECT_TRUE(closed([](FrmLogo& logo) { PressKey(logo, Qt::Key_Space); }, 100));
    EXPECT_TRUE(closed([](FrmLogo& logo) { Click(logo); }, 100));
}

TEST_F(Window, EnterSolvesThenSteps) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7"));
    Enter();
    EXPECT_EQ(SheetText(), "7\nThere are 3 feet in a yard.");
    PressKey(frame, Qt::Key_Enter);
    Enter();
    EXPECT_TRUE(SheetText().endsWith(QStringLiteral("7 feet equals 2.33333333333333 yards")));
    EXPECT_FALSE(Arrow().isVisible());
    Enter();
    EXPECT_EQ(Now().playback.ShownStep, 4);
}

TEST_F(Window, AHeldEnterStepsOnce) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7"));
    Enter();
    auto& sheet = Find<QWidget>(frame, QStringLiteral("frmPaper"));
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                       true);
    QCoreApplication::sendEvent(&sheet, &repeated);
    EXPECT_EQ(Now().playback.ShownStep, 2);
}

TEST_F(Window, TheArrowStandsBehindTheLineAndFlashes) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7"));
    Enter();
    EXPECT_EQ(Arrow().size(), QSize(36, 36));
    EXPECT_EQ(Arrow().toolTip(), "Next Step");
    // Behind the line's end less 4, and 13 above the second line's base, 81 + 28.8 + 46.
    const double width = FontMetrics(FontMetrics::Medium::Sheet)
                             .Width("There are 3 feet in a yard.", {"VantrelFont", 12});
    EXPECT_EQ(Arrow().x(), qRound(67 + width - 4 + 10));
    EXPECT_EQ(Arrow().y(), qRound(81 + 28.8 + 46 - 13));
    const QImage bright = Arrow().grab().toImage();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Arrow().grab().toImage() != bright; }, 1500));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Arrow().grab().toImage() == bright; }, 1500));
}

TEST_F(Window, AllAtOnceWhenStepByStepIsUnticked) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Command("mnuShowStep").trigger();
    Type(QStringLiteral("7"));
    Enter();
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_EQ(Now().playback.ShownStep, 4);
    EXPECT_EQ(SheetText().count(u'\n'), 3);
}

TEST_F(Window, ARefusedKeyTurnsTheLightRedAndIsTold) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    auto& light = Find<LightButton>(frame, QStringLiteral("Light"));
    EXPECT_EQ(light.toolTip(), "Click the red light for incorrect input details.");
    Type(QStringLiteral("4"));
    EXPECT_EQ(light.toolTip(), "Correct Input.");
    const QImage green = light.grab().toImage();
    Type(QStringLiteral("x"));
    EXPECT_EQ(light.toolTip(), "Incorrect input.");
    EXPECT_NE(light.grab().toImage(), green);
    EXPECT_EQ(
        Reason(),
        "Variables are not allowed in 'Converting Feet To Yards'.  Click the Assistant Wiz for "
        "details.");
    Type(QStringLiteral("5"));
    EXPECT_EQ(SheetText(), "45");
}

TEST_F(Window, BackspaceAndPasteEditTheLine) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("12"));
    PressKey(frame, Qt::Key_Backspace);
    EXPECT_EQ(SheetText(), "1");
    QGuiApplication::clipboard()->setText(QStringLiteral("3x.5"));
    PressKey(frame, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Now().typed.ProblemText, "13.5");
    PressKey(frame, Qt::Key_A, Qt::ControlModifier);
    PressKey(frame, Qt::Key_7, Qt::AltModifier);
    EXPECT_EQ(Now().typed.ProblemText, "13.5");
}

TEST_F(Window, APasteEndsWithItsFirstLine) {
    Choose(QStringLiteral("Arithmetic"));
    for (const char* pasted : {"12\n", "+3\r\n+4"}) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(pasted));
        PressKey(frame, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Now().controls.Light, EntryControls::LightPicture::Correct);
    }
    EXPECT_EQ(SheetText(), "12 plus 3");
}

TEST_F(Window, AHugePasteIsCutOff) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    QGuiApplication::clipboard()->setText(QString(480, u'x') + u'7');
    PressKey(frame, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Now().typed.ProblemText, "");
    QGuiApplication::clipboard()->setText(QString(479, u'x') + QStringLiteral("78"));
    PressKey(frame, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Now().typed.ProblemText, "7");
}

TEST_F(Window, EraseAsksFirst) {
    Choose(QStringLiteral("Converting Feet To Yards"));
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
    Choose(QStringLiteral("Converting Feet To Yards"));
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
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7"));
    Enter();
    Choose(QStringLiteral("Converting Miles To Feet"));
    EXPECT_EQ(SheetText(), "");
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_EQ(Find<QWidget>(frame, QStringLiteral("Paper0")).accessibleName(),
              "Converting Miles To Feet");
    Type(QStringLiteral("2"));
    Enter();
    EXPECT_EQ(SheetText(), "2\nThere are 5280 feet in a mile.");
}

TEST_F(Window, AMetricProblemIsEnteredInABoxAndTwoLists) {
    Choose(QStringLiteral("Meter Conversions"));
    auto& value = Find<QLineEdit>(frame, QStringLiteral("Text4"));
    auto& from = Find<QComboBox>(frame, QStringLiteral("Combo1"));
    auto& to = Find<QComboBox>(frame, QStringLiteral("Combo2"));
    EXPECT_TRUE(value.hasFocus());
    EXPECT_EQ(value.width(), 54);
    EXPECT_EQ(from.currentIndex(), -1);
    EXPECT_EQ(from.placeholderText(), "Select a choice from the list.");
    EXPECT_EQ(from.count(), 7);
    EXPECT_EQ(from.itemText(6), "km (1000 meters)");

    Type(QStringLiteral("2x.5-"));
    EXPECT_EQ(value.text(), "2.5");
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    PressKey(frame, Qt::Key_Tab);
    EXPECT_TRUE(from.hasFocus());
    PressKey(frame, Qt::Key_End);
    PressKey(frame, Qt::Key_Tab);
    EXPECT_TRUE(to.hasFocus());
    for (int row = 0; row < 4; ++row) {
        PressKey(frame, Qt::Key_Down);
    }
    EXPECT_EQ(from.currentIndex(), 6);
    EXPECT_EQ(to.currentIndex(), 3);
    EXPECT_TRUE(Command("mnuSolve").isEnabled());

    Enter();
    EXPECT_EQ(Now().log.StepText[6], "2.5 km = 2500 m");
    EXPECT_TRUE(Arrow().isVisible());
    EXPECT_EQ(Arrow().y(), qRound(243 + 2.4 * 12 - 13));
    EXPECT_TRUE(Arrow().hasFocus());
    PressKey(frame, Qt::Key_Space);
    EXPECT_EQ(Now().playback.ShownStep, 3);
    EXPECT_TRUE(Arrow().hasFocus());
}

TEST_F(Window, ASolvedMetricProblemIsLocked) {
    Choose(QStringLiteral("Gram Conversions"));
    auto& value = Find<QLineEdit>(frame, QStringLiteral("Text4"));
    auto& from = Find<QComboBox>(frame, QStringLiteral("Combo1"));
    Type(QStringLiteral("5"));
    PressKeys(frame, {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down});
    Enter();
    ASSERT_TRUE(Arrow().isVisible());
    value.setFocus();
    Type(QStringLiteral("7"));
    PressKey(frame, Qt::Key_Backspace);
    EXPECT_EQ(value.text(), "5");
    from.setFocus();
    PressKey(frame, Qt::Key_Down);
    EXPECT_EQ(from.currentIndex(), 0);
    EXPECT_TRUE(value.isEnabled());
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
}

TEST_F(Window, ABoxWidensWithItsText) {
    Choose(QStringLiteral("Meter Conversions"));
    auto& value = Find<QLineEdit>(frame, QStringLiteral("Text4"));
    Type(QStringLiteral("123"));
    EXPECT_EQ(value.width(), 54);
    Type(QStringLiteral("45"));
    EXPECT_EQ(value.width(), 54 + 2 * 12);
    PressKey(frame, Qt::Key_Home);
    Type(QStringLiteral("6"));
    EXPECT_EQ(value.text(), "123456");
    EXPECT_EQ(value.cursorPosition(), 6);
}

TEST_F(Window, EraseEmptiesBoxesAndLists) {
    Choose(QStringLiteral("Meter Conversions"));
    Type(QStringLiteral("5"));
    PressKeys(frame, {Qt::Key_Tab, Qt::Key_Down});
    const WhenDialogOpens question(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        PressButton(dialog, QStringLiteral("OK"));
    });
    Command("mnuErase").trigger();
    EXPECT_EQ(Find<QLineEdit>(frame, QStringLiteral("Text4")).text(), "");
    EXPECT_EQ(Find<QComboBox>(frame, QStringLiteral("Combo1")).currentIndex(), -1);
}

TEST_F(Window, AShapeIsMeasuredInTheBoxesOnItsPicture) {
    Choose(QStringLiteral("Area of a Triangle"));
    auto& base = Find<QLineEdit>(frame, QStringLiteral("Text2"));
    auto& height = Find<QLineEdit>(frame, QStringLiteral("Text1"));
    EXPECT_TRUE(base.hasFocus());
    Type(QStringLiteral("4"));
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    PressKey(frame, Qt::Key_Tab);
    EXPECT_TRUE(height.hasFocus());
    Type(QStringLiteral("2.5"));
    EXPECT_TRUE(Command("mnuSolve").isEnabled());
    PressKeys(frame, {Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Backspace});
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    Erase();
    EXPECT_EQ(base.text(), "");
    EXPECT_TRUE(base.hasFocus());
}

TEST_F(Window, ADivisionIsWorkedInColumnsClickByClick) {
    Choose(QStringLiteral("Division"));
    Type(QStringLiteral("7"));
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("95"));
    EXPECT_EQ(SheetText(), "");
    Enter();
    EXPECT_EQ(SheetText(), "7 into 95");
    // The bar ends at 80 + 20 + 2 * 20 + 5, 3 above the row at 300.
    EXPECT_EQ(Arrow().pos(), QPoint(155, 264));
    EXPECT_TRUE(Arrow().hasFocus());
    EXPECT_TRUE(Find<QLineEdit>(frame, QStringLiteral("Text1")).isReadOnly());
    Click(Arrow());
    EXPECT_EQ(SheetText(), "1\n7 into 95\nminus 7\n25");
    EXPECT_TRUE(Arrow().isVisible());
    Enter();
    EXPECT_EQ(SheetText(), "13 r 4\n7 into 95\nminus 7\n25\nminus 21\n4");
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_FALSE(Now().columns.Any());
    Erase();
    EXPECT_EQ(SheetText(), "");
}

TEST_F(Window, TheLongestQuotientGetsPaperToTheEnd) {
    Choose(QStringLiteral("Division"));
    Type(QStringLiteral("1"));
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("2147483647"));
    Enter();
    auto& paper = Find<SheetWidget>(frame, QStringLiteral("Paper0"));
    EXPECT_EQ(paper.height(), 657);
    for (int digit = 0; digit < 10; ++digit) {
        Enter();
    }
    EXPECT_EQ(paper.height(), 703);
    EXPECT_GE(paper.parentWidget()->height(), 703);
    const QImage seen = paper.grab().toImage();
    // The margin line and the rules go on, each row of 46 like the one above it.
    for (int y = 640; y < 700; ++y) {
        EXPECT_EQ(seen.pixelColor(59, y), seen.pixelColor(59, y - 46)) << y;
        EXPECT_EQ(seen.pixelColor(700, y), seen.pixelColor(700, y - 46)) << y;
    }
    Erase();
    EXPECT_EQ(paper.height(), 657);
}

TEST_F(Window, AProductThatIsCutOffIsPlayedOnWithoutEnd) {
    Choose(QStringLiteral("Multiplication"));
    Type(QStringLiteral("9999999999"));
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("9999999999"));
    Enter();
    for (int step = 0; step < 210; ++step) {
        Enter();
        ASSERT_TRUE(Arrow().isVisible());
    }
    EXPECT_GT(Now().playback.ShownStep, 200);
    Command("mnuExp").trigger();
}

TEST_F(Window, AnUnfinishedNumberIsAnsweredWithTheFormatMessage) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    Type(QStringLiteral("7."));
    const WhenDialogOpens message(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.windowTitle(), "Vantrel - Numerello");
        EXPECT_EQ(box.text(),
                  "The format of the entered problem was not recognized.  Click the 'Erase' button "
                  "and try again.");
        PressButton(dialog, QStringLiteral("OK"));
    });
    Enter();
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Window, TheLightStandsBesideTheSheetAndNeverOutOfSight) {
    Choose(QStringLiteral("Arithmetic"));
    auto& paper = Find<QScrollArea>(frame, QStringLiteral("frmPaper"));
    auto& light = Find<QWidget>(frame, QStringLiteral("Light"));
    // Over the middle of a figure 108 wide that begins 16 right of the sheet.
    frame.resize(1100, 800);
    QTest::qWait(20);
    EXPECT_EQ(light.pos(), QPoint(150 + 816 + 30, 24));
    frame.resize(640, 480);
    QTest::qWait(20);
    ASSERT_LT(paper.viewport()->width(), 752);
    const auto rightInView = [&] {
        return light.mapTo(paper.viewport(), QPoint(light.width(), 0)).x();
    };
    EXPECT_EQ(rightInView(), paper.viewport()->width() - 8);
    paper.horizontalScrollBar()->setValue(100);
    EXPECT_EQ(rightInView(), paper.viewport()->width() - 8);
}

TEST_F(Window, ArrowKeysLeaveTheFocusOnLightAndArrow) {
    Choose(QStringLiteral("Meter Conversions"));
    Type(QStringLiteral("5"));
    PressKeys(frame, {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down});
    Enter();
    ASSERT_TRUE(Arrow().hasFocus());
    auto& light = Find<QWidget>(frame, QStringLiteral("Light"));
    for (QWidget* button : {static_cast<QWidget*>(&Arrow()), &light}) {
        button->setFocus();
        PressKeys(frame, {Qt::Key_Down, Qt::Key_Left, Qt::Key_Up, Qt::Key_Right});
        EXPECT_TRUE(button->hasFocus()) << button->objectName().toStdString();
    }
}

TEST_F(Window, TheFirstSheetStaysInTheMiddle) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    auto& sheet = Find<QWidget>(frame, QStringLiteral("Paper0"));
    EXPECT_EQ(sheet.size(), QSize(800, 657));
    for (const int width : {1000, 1240}) {
        frame.resize(width, 800);
        QTest::qWait(20);
        EXPECT_EQ(sheet.pos(), QPoint((width - 800) / 2, 0)) << width;
    }
}

TEST_F(Window, TheLightCanBeHidden) {
    Choose(QStringLiteral("Converting Feet To Yards"));
    auto& light = Find<LightButton>(frame, QStringLiteral("Light"));
    EXPECT_TRUE(light.isVisible());
    Command("mnuShowLight").trigger();
    EXPECT_FALSE(light.isVisible());
    Choose(QStringLiteral("Converting Miles To Feet"));
    EXPECT_FALSE(Find<LightButton>(frame, QStringLiteral("Light")).isVisible());
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
