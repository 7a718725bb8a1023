#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "tests/ui/frm_main_fixture.h"

namespace numerello {
namespace {

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
    const QPoint mark = Sheet().mapTo(view.viewport(), end);
    EXPECT_TRUE(view.viewport()->rect().contains(mark));

    EXPECT_GT(view.verticalScrollBar()->value(), 0);
    Erase();
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    Type(QStringLiteral("7"));
    EXPECT_LT(view.verticalScrollBar()->value(), 100);
}

TEST_F(Window, TheDescriptionTellsWhatWasDrawn) {
    ChooseFeet();
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

TEST_F(Window, AMinimisedFrameDoesNotFlash) {
    ChooseFeet();
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
    ChooseFeet();
    Type(QStringLiteral("7"));
    const_cast<Problem&>(Now()).playback.LineEndX = 730;
    Type(QStringLiteral("5x"));
    EXPECT_EQ(SheetText(), "7");
    PressKey(frame, Qt::Key_Backspace);
    EXPECT_EQ(SheetText(), "");
}

TEST_F(Window, EnterSolvesThenSteps) {
    ChooseFeet();
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
    ChooseFeet();
    Type(QStringLiteral("7"));
    Enter();
    auto& sheet = Find<QWidget>(frame, QStringLiteral("frmPaper"));
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                       true);
    QCoreApplication::sendEvent(&sheet, &repeated);
    EXPECT_EQ(Now().playback.ShownStep, 2);
}

TEST_F(Window, TheArrowStandsBehindTheLineAndFlashes) {
    ChooseFeet();
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
    ChooseFeet();
    Command("mnuShowStep").trigger();
    Type(QStringLiteral("7"));
    Enter();
    EXPECT_FALSE(Arrow().isVisible());
    EXPECT_EQ(Now().playback.ShownStep, 4);
    EXPECT_EQ(SheetText().count(u'\n'), 3);
}

TEST_F(Window, BackspaceAndPasteEditTheLine) {
    ChooseFeet();
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
    ChooseFeet();
    QGuiApplication::clipboard()->setText(QString(480, u'x') + u'7');
    PressKey(frame, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Now().typed.ProblemText, "");
    QGuiApplication::clipboard()->setText(QString(479, u'x') + QStringLiteral("78"));
    PressKey(frame, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Now().typed.ProblemText, "7");
}

TEST_F(Window, AnUnfinishedNumberIsAnsweredWithTheFormatMessage) {
    ChooseFeet();
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

TEST_F(Window, TheFirstSheetStaysInTheMiddle) {
    ChooseFeet();
    auto& sheet = Sheet();
    EXPECT_EQ(sheet.size(), QSize(800, 657));
    for (const int width : {1000, 1240}) {
        frame.resize(width, 800);
        QTest::qWait(20);
        EXPECT_EQ(sheet.pos(), QPoint((width - 800) / 2, 0)) << width;
    }
}

}  // namespace
}  // namespace numerello
