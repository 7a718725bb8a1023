#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QUrl>
#include <csignal>

#include "tests/ui/frm_main_fixture.h"

namespace numerello {
namespace {

/// A disk on which nothing more can be written.
class FullDisk {
  public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{0, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before{};
};

/// Problems saved to files and loaded from them in the window.
class SavedProblems : public Window {
  protected:
    QString Folder() const {
        return documents.filePath(QStringLiteral("Numerello/Saved Problems"));
    }
    QString File(const QString& name) const { return Folder() + u'/' + name; }

    QString Put(const QString& name, const QByteArray& content) {
        QFile file(File(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QByteArray ContentOf(const QString& name) const {
        QFile file(File(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void EnterName(QWidget& dialog, const QString& name) {
        auto& edit = Find<QLineEdit>(dialog, QStringLiteral("fileNameEdit"));
        edit.setFocus();
        edit.selectAll();
        TypeText(dialog, name);
        PressKey(dialog, Qt::Key_Return);
    }

    void Save(const QString& name) {
        const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"),
                                      [&](QWidget& dialog) { EnterName(dialog, name); });
        PressKey(frame, Qt::Key_S, Qt::ControlModifier);
        ShowActive(frame);
    }
    void Load(const QString& name) {
        const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"),
                                      [&](QWidget& dialog) { EnterName(dialog, name); });
        PressKey(frame, Qt::Key_O, Qt::ControlModifier);
        ShowActive(frame);
    }
    void Drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        const QPoint place(300, 300);
        QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&frame, &enter);
        taken = enter.isAccepted() && enter.dropAction() == Qt::CopyAction;
        if (taken) {
            QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&frame, &drop);
            EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        }
        QTest::qWait(10);
    }
    void Drop(const QString& path) { Drop({QUrl::fromLocalFile(path)}); }

    QStatusBar& Status() { return Find<QStatusBar>(frame, QStringLiteral("StatusLine")); }
    QLineEdit& Box(const char* name) { return Find<QLineEdit>(frame, QLatin1String(name)); }
    QComboBox& List(const char* name) { return Find<QComboBox>(frame, QLatin1String(name)); }

    bool taken = false;
};

constexpr const char* kArithmetic =
    "Arithmetic BB 4+3*2 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\n";

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

    Choose(QStringLiteral("Converting Feet To Yards"));
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
    const FullDisk full;
    Command("mnuSave").trigger();
    EXPECT_FALSE(QFile::exists(File(QStringLiteral("full.nrl"))));
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

TEST_F(SavedProblems, ADroppedFileIsLoaded) {
    const QString name = QStringLiteral("100% \"Übung\" 1.nrl");
    Drop(Put(name, kArithmetic));
    EXPECT_TRUE(taken);
    EXPECT_EQ(Now().typed.ProblemText, "4+3*2");
    EXPECT_TRUE(Arrow().isVisible());
    // The first one that is a file counts.
    Put(QStringLiteral("yards.nrl"),
        "Converting Feet To Yards BB 7 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 31\n");
    Drop({QUrl(QStringLiteral("https://vantrel.example/a.nrl")),
          QUrl::fromLocalFile(File(QStringLiteral("yards.nrl"))), QUrl::fromLocalFile(File(name))});
    EXPECT_EQ(Now().topic.TopicTitle, "Converting Feet To Yards");
}

TEST_F(SavedProblems, WhatIsNoFileIsNotTaken) {
    Drop({QUrl(QStringLiteral("https://vantrel.example/a.nrl"))});
    EXPECT_FALSE(taken);
    QMimeData text;
    text.setText(QStringLiteral("4+3*2"));
    QDragEnterEvent enter({300, 300}, Qt::CopyAction, &text, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&frame, &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(SavedProblems, NothingIsDroppedBehindADialog) {
    const QString file = Put(QStringLiteral("a.nrl"), kArithmetic);
    const WhenDialogOpens chooser(QStringLiteral("frmSelect"), [&](QWidget& dialog) {
        Drop(file);
        EXPECT_FALSE(taken);
        PressKey(dialog, Qt::Key_Escape);
    });
    Command("mnuNew").trigger();
    EXPECT_EQ(frame.findChild<QWidget*>(QStringLiteral("frmPaper")), nullptr);
}

TEST_F(SavedProblems, ALineThatIsTooLongIsLoadedAsFarAsItGoes) {
    const QByteArray keys = QByteArray("7+").repeated(2400);
    const QString file =
        Put(QStringLiteral("long.nrl"),
            "Arithmetic BB " + keys + "7 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\n");
    Drop(file);
    EXPECT_TRUE(Now().typed.ProblemText.starts_with("7+7+7+7+7+7"));
}

/// The program as it is started from a terminal or a file manager.
class StartFile : public SavedProblems {
  protected:
    std::unique_ptr<FrmMain> Start(const QString& StartFile) {
        auto started = std::make_unique<FrmMain>(store, Documents(), StartFile.toStdString());
        ShowActive(*started);
        started->Begin();
        return started;
    }
};

TEST_F(StartFile, IsLoadedWithoutAChooser) {
    const QString file = Put(QStringLiteral("my problem.nrl"), kArithmetic);
    const NoDialogOpens quiet;
    for (const QString& name : {file, u'"' + file + u'"', QStringLiteral("  ") + file,
                                QString::fromUtf8(QUrl::fromLocalFile(file).toEncoded())}) {
        const auto started = Start(name);
        EXPECT_EQ(started->CurrentProblem().typed.ProblemText, "4+3*2") << name.toStdString();
        EXPECT_EQ(started->CurrentProblem().playback.ShownStep, 2);
    }
}

TEST_F(StartFile, ThatFailsLeavesAnEmptyDesk) {
    const NoDialogOpens quiet;
    const auto started = Start(File(QStringLiteral("missing.nrl")));
    EXPECT_EQ(started->findChild<QWidget*>(QStringLiteral("frmPaper")), nullptr);
    EXPECT_TRUE(Find<QStatusBar>(*started, QStringLiteral("StatusLine")).isVisible());
    // It has been used up.
    started->Begin();
    EXPECT_EQ(started->findChild<QWidget*>(QStringLiteral("frmPaper")), nullptr);
}

TEST_F(StartFile, OfNothingButQuotesIsNone) {
    for (const char* nothing : {"", "  ", "\"\""}) {
        const WhenDialogOpens chooser(QStringLiteral("frmSelect"),
                                      [](QWidget& dialog) { PressKey(dialog, Qt::Key_Escape); });
        const auto started = Start(QString::fromUtf8(nothing));
        EXPECT_EQ(started->CurrentProblem().topic.ProblemType, 0);
    }
}

TEST_F(StartFile, IsForgottenOnceItIsLoaded) {
    const auto started = Start(Put(QStringLiteral("a.nrl"), kArithmetic));
    const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"),
                                  [](QWidget& dialog) { PressKey(dialog, Qt::Key_Escape); });
    Find<QAction>(*started, QStringLiteral("mnuLoad")).trigger();
}

}  // namespace
}  // namespace numerello
