#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QTest>

#include "tests/ui/entry_form_fixture.h"

namespace numerello {
namespace {

TEST_F(EntryFormTest, KeypadAndPasteGoThroughTheBoxRule) {
    Open(6);
    for (const auto& [key, text] :
         {std::pair(Qt::Key_Minus, "-"), std::pair(Qt::Key_4, "4"), std::pair(Qt::Key_Period, "."),
          std::pair(Qt::Key_Plus, "+"), std::pair(Qt::Key_5, "5")}) {
        QTest::sendKeyEvent(QTest::Click, paper->windowHandle(), key, QString::fromUtf8(text),
                            Qt::KeypadModifier);
    }
    EXPECT_EQ(Box(2).text(), "-4.5");
    PressKey(*paper, Qt::Key_Tab);
    Paste(QStringLiteral(" 1,2-3.4.5\n"));
    EXPECT_EQ(Box(1).text(), "123.45");
    Paste(QStringLiteral("6789012"));
    EXPECT_EQ(Box(1).text(), "123.456789");
    EXPECT_TRUE(problem.controls.SolveEnabled);
}

TEST_F(EntryFormTest, ColumnBoxesTakeDigitsAlone) {
    Open(200);
    Type(QStringLiteral("-4.7"));
    EXPECT_EQ(Box(1).text(), "47");
    PressKey(*paper, Qt::Key_Tab);
    Type(QStringLiteral("3e8"));
    EXPECT_EQ(Box(2).text(), "38");
    EXPECT_TRUE(problem.controls.SolveEnabled);
}

TEST_F(EntryFormTest, OnceSolvedEveryBoxIsLocked) {
    for (const EntryLayout& layout : EntryLayouts()) {
        SCOPED_TRACE(layout.code);
        Open(layout.code);
        for (const EntryBoxLayout& box : layout.boxes) {
            Box(box.number).setFocus();
            Type(QStringLiteral("5"));
            EXPECT_FALSE(Box(box.number).isReadOnly());
        }
        const bool ready = problem.controls.SolveEnabled;
        problem.playback.TypingEnabled = false;
        paper->mnuShowStep_Click(true);
        for (const EntryBoxLayout& box : layout.boxes) {
            EntryBox& locked = Box(box.number);
            EXPECT_TRUE(locked.isReadOnly());
            EXPECT_TRUE(locked.isEnabled());
            locked.setFocus();
            EXPECT_TRUE(locked.hasFocus());
            Type(QStringLiteral("7"));
            PressKey(*paper, Qt::Key_Backspace);
            Paste(QStringLiteral("8"));
            EXPECT_EQ(locked.text(), "5");
        }
        for (EntryList* list : Sheet().findChildren<EntryList*>()) {
            const int choice = list->currentIndex();
            list->setFocus();
            PressKey(*paper, Qt::Key_Down);
            EXPECT_EQ(list->currentIndex(), choice);
        }
        EXPECT_EQ(problem.controls.SolveEnabled, ready);
    }
}

TEST_F(EntryFormTest, EnterInABoxSolvesWhatIsReady) {
    Open(23);
    Type(QStringLiteral("5"));
    PressKey(*paper, Qt::Key_Return);
    EXPECT_EQ(problem.log.StepCount, 1);
    PressKeys(*paper, {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down});
    Box(4).setFocus();
    PressKey(*paper, Qt::Key_Enter);
    EXPECT_EQ(problem.log.StepText[6], "5 mm = 5 mm");
}

TEST_F(EntryFormTest, UnitListsDropDigits) {
    Open(23);
    Type(QStringLiteral("5"));
    PressKeys(*paper, {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down});
    EXPECT_EQ(List(1).currentIndex(), 1);
    Type(QStringLiteral("1"));
    EXPECT_EQ(List(1).currentIndex(), 1);
    EXPECT_EQ(Box(4).text(), "5");
    EXPECT_EQ(problem.typed.ProblemText, "");
    Type(QStringLiteral("k"));
    EXPECT_EQ(List(1).currentText(), "km (1000 meters)");
}

TEST_F(EntryFormTest, CharactersTypedOnTheRoundingListGoToTheLine) {
    OpenRounding();
    Type(QStringLiteral("4"));
    PressKeys(*paper, {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down});
    EXPECT_TRUE(List(3).hasFocus());
    EXPECT_EQ(List(3).currentText(), "Rounded to the nearest ten");
    Type(QStringLiteral("52R"));
    EXPECT_EQ(problem.typed.ProblemText, "452");
    EXPECT_EQ(problem.controls.Light, EntryControls::LightPicture::Incorrect);
    PressKey(*paper, Qt::Key_Backspace);
    Paste(QStringLiteral(".25"));
    EXPECT_EQ(problem.typed.ProblemText, "45.25");
    EXPECT_EQ(List(3).currentText(), "Rounded to the nearest ten");
    EXPECT_TRUE(List(3).hasFocus());
}

TEST_F(EntryFormTest, AChangeOfTheRoundingKeepsLineAndSolve) {
    OpenRounding();
    PressKeys(*paper, {Qt::Key_Tab, Qt::Key_Down});
    EXPECT_EQ(problem.boxes.ListIndex[2], 1);
    EXPECT_TRUE(problem.topic.ClickedOnly);
    EXPECT_FALSE(problem.controls.SolveEnabled);
    Type(QStringLiteral("45"));
    PressKey(*paper, Qt::Key_End);
    EXPECT_EQ(List(3).currentText(), "Rounded to the nearest thousandth");
    EXPECT_EQ(problem.typed.ProblemText, "45");
    EXPECT_TRUE(problem.controls.SolveEnabled);
}

TEST_F(EntryFormTest, AnOpenedListLightsTheRowThatEnterTakes) {
    Open(23);
    List(1).setFocus();
    PressKey(*paper, Qt::Key_Down, Qt::AltModifier);
    QTest::qWait(20);
    QAbstractItemView& rows = *List(1).view();
    EXPECT_TRUE(rows.selectionModel()->isRowSelected(0));
    PressKey(*rows.window(), Qt::Key_Down);
    PressKey(*rows.window(), Qt::Key_Return);
    EXPECT_EQ(List(1).currentText(), "cm (0.01 meters)");
    EXPECT_EQ(List(1).accessibleDescription(), "From");
    EXPECT_EQ(List(2).accessibleDescription(), "To");
}

TEST_F(EntryFormTest, ErasingSetsTheRoundingBack) {
    OpenRounding();
    PressKeys(*paper, {Qt::Key_Tab, Qt::Key_End});
    const WhenDialogOpens question(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        PressButton(dialog, QStringLiteral("OK"));
    });
    paper->clear_Click();
    EXPECT_EQ(List(3).currentText(), "Rounded to the nearest thousand");
}

TEST_F(EntryFormTest, ErasingEmptiesAllBoxesAndMakesThemNarrow) {
    Open(11);
    FillToTheBrim(*FindEntryLayout(11));
    const WhenDialogOpens question(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        PressButton(dialog, QStringLiteral("OK"));
    });
    paper->clear_Click();
    for (int box = 1; box <= 6; ++box) {
        EXPECT_EQ(Box(box).text(), "");
        EXPECT_EQ(Box(box).width(), 54);
    }
    ShowActive(*paper);
    EXPECT_EQ(Focused(), "Text3");
    EXPECT_FALSE(problem.controls.SolveEnabled);
}

}  // namespace
}  // namespace numerello
