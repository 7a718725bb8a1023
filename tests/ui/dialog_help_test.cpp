#include "ui/dialog_help.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "tests/ui/frm_main_fixture.h"
#include "ui/frm_help.h"
#include "ui/help_view.h"

namespace numerello {
namespace {

/// Opens the help by its key, uses it and closes it; the dialog is still there behind it.
void ExpectHelp(QWidget& dialog, const char* page) {
    // The frame may still be told that it has the focus, from before the dialog opened.
    QTest::qWait(50);
    ShowActive(dialog);
    ASSERT_EQ(QApplication::activeWindow(), &dialog);
    PressKey(dialog, Qt::Key_F1);
    auto& help = Find<FrmHelp>(dialog, QStringLiteral("frmHelp"));
    ASSERT_TRUE(help.isVisible());
    EXPECT_EQ(Find<HelpView>(help, QStringLiteral("page")).Page(), page);
    ShowActive(help);
    auto& search = Find<QLineEdit>(help, QStringLiteral("search"));
    Click(search);
    EXPECT_TRUE(search.hasFocus());
    TypeText(help, QStringLiteral("root"));
    EXPECT_EQ(search.text(), "root");
    PressKeys(help, {Qt::Key_Escape, Qt::Key_Escape});
    EXPECT_FALSE(help.isVisible());
    EXPECT_TRUE(dialog.isVisible());
    ShowActive(dialog);
}

class DialogHelp : public Window {
  protected:
    void ExpectHelpOf(const char* command, const char* dialog, const char* page) {
        const WhenDialogOpens opened(QString::fromLatin1(dialog), [page](QWidget& window) {
            ExpectHelp(window, page);
            PressKey(window, Qt::Key_Escape);
        });
        Command(command).trigger();
    }
};

TEST_F(DialogHelp, TheChoosersOpensByF1) {
    ExpectHelpOf("mnuNew", "frmSelect", "choosing");
}

TEST_F(DialogHelp, ThatOfSettingsOpensByF1) {
    ExpectHelpOf("mnuChange", "frmOptions", "settings");
}

TEST_F(DialogHelp, ThatOfPrintOptionsOpensByF1) {
    Choose(QStringLiteral("Plotting A Point"));
    Type(QStringLiteral("(4,-8)"));
    Enter();
    ShowActive(frame);
    ExpectHelpOf("mnuPrint", "frmPrintSetup", "printing");
}

TEST_F(DialogHelp, ThoseOfPracticeTestAndPreviewOpenByF1) {
    const WhenDialogOpens opened(QStringLiteral("frmPracticeTest"), [](QWidget& test) {
        ExpectHelp(test, "practice-tests");
        const WhenDialogOpens preview(QStringLiteral("frmPrintPreview"), [](QWidget& window) {
            ExpectHelp(window, "printing");
            PressKey(window, Qt::Key_Escape);
        });
        PressButton(test, QStringLiteral("Create Practice Test"));
        PressKey(test, Qt::Key_Escape);
    });
    Command("mnuPracticeTest").trigger();
}

}  // namespace
}  // namespace numerello
