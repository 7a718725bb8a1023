#include <gtest/gtest.h>

#include <QFileDialog>
#include <QTest>

#include "tests/ui/saved_problems_fixture.h"

namespace numerello {
namespace {

TEST_F(SavedProblems, APointerIsNotBusyOverAMessage) {
    Put(QStringLiteral("zero.nrl"),
        "Arithmetic BB 4/0 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\n");
    const WhenDialogOpens message(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Division by 0!");
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        PressButton(dialog, QStringLiteral("OK"));
    });
    Drop(File(QStringLiteral("zero.nrl")));
    EXPECT_EQ(Now().typed.ProblemText, "4/0");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(Command("mnuSave").isEnabled());
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
}

TEST_F(SavedProblems, BoxesThatAreNotReadyStayUnsolved) {
    Put(QStringLiteral("half.nrl"),
        "Area of a Triangle BB  BB  BB 4 BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 8\n");
    Load(QStringLiteral("half.nrl"));
    EXPECT_EQ(Box("Text2").text(), "4");
    EXPECT_FALSE(Box("Text2").isReadOnly());
    EXPECT_EQ(SheetText(), "");
    EXPECT_FALSE(Command("mnuSolve").isEnabled());
    Box("Text1").setFocus();
    Type(QStringLiteral("3"));
    EXPECT_TRUE(Command("mnuSolve").isEnabled());
}

TEST_F(SavedProblems, TheLoadDialogShowsProblemFiles) {
    Put(QStringLiteral("a.nrl"), kArithmetic);
    const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"), [this](QWidget& window) {
        auto& dialog = dynamic_cast<QFileDialog&>(window);
        EXPECT_EQ(dialog.windowTitle(), "Load Problem");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(dialog.directory().path(), Folder());
        PressKey(dialog, Qt::Key_Escape);
    });
    Command("mnuLoad").trigger();
}

TEST_F(SavedProblems, AFileThatCannotBeUsedLeavesTheSheetAlone) {
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("4+3*2"));
    Enter();
    const QString sheet = SheetText();
    const QByteArray unusable[] = {
        "",
        "no problem",
        "Arithmetic BB 4+3*2 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0\n",
        "Arithmetic BB 4+3*2 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB x\n",
        "arithmetic BB 4+3*2 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\n",
        QByteArray(1048577, 'x'),
    };
    for (const QByteArray& content : unusable) {
        const NoDialogOpens quiet;
        Drop(Put(QStringLiteral("bad.nrl"), content));
        EXPECT_EQ(Status().currentMessage(), "The problem file could not be read.");
        EXPECT_TRUE(Status().isVisible());
        EXPECT_EQ(SheetText(), sheet);
        EXPECT_EQ(Now().playback.ShownStep, 2);
        EXPECT_TRUE(Arrow().isVisible());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        Status().clearMessage();
        EXPECT_FALSE(Status().isVisible());
    }
    Drop(File(QStringLiteral("missing.nrl")));
    EXPECT_TRUE(Status().isVisible());
    Drop(Folder());
    EXPECT_EQ(SheetText(), sheet);
    Enter();
    EXPECT_EQ(Now().playback.ShownStep, 3);
}

TEST_F(SavedProblems, TheStatusLineIsNotEmptiedByThePointer) {
    Drop(Put(QStringLiteral("bad.nrl"), "bad"));
    Command("mnuSave").hover();
    Command("mnuNew").hover();
    EXPECT_EQ(Status().currentMessage(), "The problem file could not be read.");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Status().isVisible(); }, 6000));
}

TEST_F(SavedProblems, ALineThatIsTooLongIsLoadedAsFarAsItGoes) {
    const QByteArray keys = QByteArray("7+").repeated(2400);
    const QString file =
        Put(QStringLiteral("long.nrl"),
            "Arithmetic BB " + keys + "7 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\n");
    Drop(file);
    EXPECT_TRUE(Now().typed.ProblemText.starts_with("7+7+7+7+7+7"));
}

}  // namespace
}  // namespace numerello
