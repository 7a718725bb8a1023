#include <gtest/gtest.h>

#include <QMimeData>
#include <QStatusBar>
#include <QUrl>

#include "tests/ui/saved_problems_fixture.h"

namespace numerello {
namespace {

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
