#include <gtest/gtest.h>

#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "tests/full_disk.h"
#include "tests/ui/saved_problems_fixture.h"

namespace numerello {
namespace {

TEST_F(SavedProblems, TheFolderIsThereFromTheStart) {
    EXPECT_TRUE(QDir(Folder()).exists());
}

TEST_F(SavedProblems, ALineGoesOutAndComesBack) {
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("12+3*4"));
    Enter();
    const QString sheet = SheetText();
    Save(QStringLiteral("line"));
    EXPECT_EQ(SheetText(), sheet);
    EXPECT_TRUE(Arrow().isVisible());
    EXPECT_EQ(ContentOf(QStringLiteral("line.nrl")),
              "Arithmetic BB 12+3*4 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\n");

    ChooseFeet();
    Type(QStringLiteral("7"));
    Load(QStringLiteral("line.nrl"));
    EXPECT_EQ(Now().topic.TopicTitle, "Arithmetic");
    EXPECT_EQ(SheetText(), sheet);
    EXPECT_TRUE(Arrow().isVisible());
    EXPECT_EQ(Now().playback.ShownStep, 2);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    Enter();
    EXPECT_EQ(Now().playback.ShownStep, 3);
}

TEST_F(SavedProblems, BoxesGoOutAndComeBack) {
    Choose(QStringLiteral("Area of a Triangle"));
    Type(QStringLiteral("4"));
    PressKey(frame, Qt::Key_Tab);
    Type(QStringLiteral("2.5"));
    Enter();
    const QString sheet = SheetText();
    Save(QStringLiteral("boxes"));
    EXPECT_EQ(ContentOf(QStringLiteral("boxes.nrl")),
              "Area of a Triangle BB  BB 2.5 BB 4 BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 8\n");
    Choose(QStringLiteral("Arithmetic"));
    Load(QStringLiteral("boxes.nrl"));
    EXPECT_EQ(Box("Text1").text(), "2.5");
    EXPECT_EQ(Box("Text2").text(), "4");
    EXPECT_TRUE(Box("Text1").isReadOnly());
    EXPECT_EQ(SheetText(), sheet);
    EXPECT_TRUE(Arrow().hasFocus());
}

TEST_F(SavedProblems, ListsGoOutAndComeBack) {
    Choose(QStringLiteral("Meter Conversions"));
    Type(QStringLiteral("2.5"));
    PressKeys(frame, {Qt::Key_Tab, Qt::Key_End, Qt::Key_Tab});
    for (int row = 0; row < 4; ++row) {
        PressKey(frame, Qt::Key_Down);
    }
    Enter();
    const QString sheet = SheetText();
    Save(QStringLiteral("lists"));
    EXPECT_TRUE(ContentOf(QStringLiteral("lists.nrl"))
                    .startsWith("Meter Conversions BB  BB  BB  BB  BB 2.5 BB  BB  BB 6 BB 3 BB "));
    Choose(QStringLiteral("Arithmetic"));
    Load(QStringLiteral("lists.nrl"));
    EXPECT_EQ(Box("Text4").text(), "2.5");
    EXPECT_EQ(List("Combo1").currentIndex(), 6);
    EXPECT_EQ(List("Combo2").currentIndex(), 3);
    EXPECT_EQ(SheetText(), sheet);
}

TEST_F(SavedProblems, AListBesideALineComesBack) {
    Choose(QStringLiteral("Rounding"));
    Type(QStringLiteral("1234"));
    List("Combo3").setFocus();
    PressKey(frame, Qt::Key_Down);
    Enter();
    const QString sheet = SheetText();
    Save(QStringLiteral("rounding"));
    Load(QStringLiteral("rounding.nrl"));
    EXPECT_EQ(List("Combo3").currentIndex(), 1);
    EXPECT_EQ(SheetText(), sheet);
}

TEST_F(SavedProblems, TheSaveDialogSuggestsTopicAndDate) {
    Choose(QStringLiteral("Work = Rate * Time"));
    for (const char* text : {"2", "3"}) {
        Type(QString::fromUtf8(text));
        PressKey(frame, Qt::Key_Tab);
    }
    Enter();
    ASSERT_TRUE(Command("mnuSave").isEnabled());
    const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"), [this](QWidget& window) {
        auto& dialog = dynamic_cast<QFileDialog&>(window);
        EXPECT_EQ(dialog.windowTitle(), "Save Problem As");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.directory().path(), Folder());
        EXPECT_EQ(Find<QComboBox>(dialog, QStringLiteral("fileTypeCombo")).currentText(),
                  "Numerello files (.nrl)");
        EXPECT_TRUE(dialog.nameFilters().constFirst().endsWith(QStringLiteral("(*.nrl)")));
        EXPECT_EQ(dialog.defaultSuffix(), "nrl");
        const QString name = QStringLiteral("Work = Rate x Time ") +
                             QDate::currentDate().toString(QStringLiteral("MM-dd-yy"));
        EXPECT_EQ(Find<QLineEdit>(dialog, QStringLiteral("fileNameEdit")).text(), name);
        PressKey(dialog, Qt::Key_Return);
    });
    Command("mnuSave").trigger();
    EXPECT_EQ(QDir(Folder()).entryList({QStringLiteral("Work = Rate x Time *.nrl")}).size(), 1);
}

TEST_F(SavedProblems, ACancelledDialogChangesNothing) {
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("4+3*2"));
    Enter();
    const QString sheet = SheetText();
    for (const char* command : {"mnuSave", "mnuLoad"}) {
        const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"), [](QWidget& window) {
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            PressKey(window, Qt::Key_Escape);
        });
        Command(command).trigger();
        EXPECT_EQ(SheetText(), sheet);
        EXPECT_TRUE(Arrow().isVisible());
        EXPECT_FALSE(Status().isVisible());
    }
    EXPECT_TRUE(QDir(Folder()).isEmpty());
}

TEST_F(SavedProblems, AnOverwriteIsAsked) {
    Put(QStringLiteral("old.nrl"), "old");
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("4+3*2"));
    Enter();
    const WhenDialogOpens question(
        [](const QWidget& window) { return qobject_cast<const QMessageBox*>(&window) != nullptr; },
        [](QWidget& dialog) { PressKey(dialog, Qt::Key_Escape); }, QStringLiteral("question"));
    const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"), [](QWidget& dialog) {
        EnterName(dialog, QStringLiteral("old"));
        PressKey(dialog, Qt::Key_Escape);
    });
    Command("mnuSave").trigger();
    EXPECT_EQ(ContentOf(QStringLiteral("old.nrl")), "old");
}

TEST_F(SavedProblems, AnOverwriteIsAskedUnderTheNameThatIsWritten) {
    Put(QStringLiteral("Test 21.11.26.nrl"), "old");
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("4+3*2"));
    Enter();
    const WhenDialogOpens question(
        [](const QWidget& window) { return qobject_cast<const QMessageBox*>(&window) != nullptr; },
        [](QWidget& dialog) {
            EXPECT_TRUE(dynamic_cast<QMessageBox&>(dialog).text().contains(
                QStringLiteral("Test 21.11.26.nrl")));
            PressKey(dialog, Qt::Key_Escape);
        },
        QStringLiteral("question"));
    const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"), [](QWidget& dialog) {
        EnterName(dialog, QStringLiteral("Test 21.11.26"));
        PressKey(dialog, Qt::Key_Escape);
    });
    Command("mnuSave").trigger();
    EXPECT_EQ(ContentOf(QStringLiteral("Test 21.11.26.nrl")), "old");
}

TEST_F(SavedProblems, ANameWithPointsIsSeenAgain) {
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("4+3*2"));
    Enter();
    Save(QStringLiteral("Test 21.11.26"));
    EXPECT_EQ(ContentOf(QStringLiteral("Test 21.11.26.nrl")), kArithmetic);
    Save(QStringLiteral("Loud.NRL"));
    EXPECT_EQ(ContentOf(QStringLiteral("Loud.NRL")), kArithmetic);
    EXPECT_EQ(QDir(Folder()).entryList({QStringLiteral("*.nrl")}).size(), 2);
}

TEST_F(SavedProblems, AFolderThatIsTypedIsEntered) {
    QDir(Folder()).mkdir(QStringLiteral("June 1.6"));
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("4+3*2"));
    Enter();
    const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"), [](QWidget& dialog) {
        EnterName(dialog, QStringLiteral("June 1.6"));
        EnterName(dialog, QStringLiteral("mine"));
    });
    Command("mnuSave").trigger();
    EXPECT_EQ(ContentOf(QStringLiteral("June 1.6/mine.nrl")), kArithmetic);
}

TEST_F(SavedProblems, AFileThatCannotBeWrittenIsTold) {
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("4+3*2"));
    Enter();
    const WhenDialogOpens message(QStringLiteral("MessageBox"), [](QWidget& dialog) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).text(), "The problem could not be saved.");
        PressButton(dialog, QStringLiteral("OK"));
    });
    const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"), [](QWidget& dialog) {
        EnterName(dialog, QStringLiteral("full"));
    });
    const FullDisk full(0);
    Command("mnuSave").trigger();
    EXPECT_FALSE(QFile::exists(File(QStringLiteral("full.nrl"))));
}

}  // namespace
}  // namespace numerello
