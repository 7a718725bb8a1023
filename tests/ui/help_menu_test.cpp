#include <gtest/gtest.h>

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QLabel>
#include <QStatusBar>
#include <QSysInfo>
#include <QTest>
#include <QToolButton>

#include "tests/ui/frm_main_fixture.h"
#include "ui/frm_about.h"
#include "ui/frm_help.h"
#include "ui/help_view.h"

namespace numerello {
namespace {

/// Takes the addresses that the program hands to the desktop.
class Browser : public QObject {
    Q_OBJECT

  public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "Open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    std::vector<std::string> opened;

  public slots:
    void Open(const QUrl& page) { opened.push_back(page.toString().toStdString()); }
};

class HelpMenu : public Window {
  protected:
    QStatusBar& Status() { return Find<QStatusBar>(frame, QStringLiteral("StatusLine")); }
};

TEST_F(HelpMenu, EachWebCommandOpensItsPage) {
    frame.resize(1100, 800);
    Browser browser;
    Command("mnuHomePage").trigger();
    Command("mnuAlgSol").trigger();
    Command("mnuOnlineSupport").trigger();
    Click(Find<QToolButton>(frame, QStringLiteral("web")));
    EXPECT_EQ(browser.opened, (std::vector<std::string>{
                                  "https://vantrel.example/",
                                  "https://vantrel.example/numerello.htm",
                                  "https://vantrel.example/contact.htm",
                                  "https://vantrel.example/",
                              }));
    EXPECT_FALSE(Status().isVisible());
}

TEST_F(HelpMenu, WithoutABrowserTheAddressIsShown) {
    Command("mnuAlgSol").trigger();
    EXPECT_TRUE(Status().isVisible());
    EXPECT_TRUE(Status().currentMessage().endsWith(
        QStringLiteral(" https://vantrel.example/numerello.htm")));
}

TEST_F(HelpMenu, OpensAnExampleInPlaceOfWhatIsOnTheSheetAfterAsking) {
    Choose(QStringLiteral("Arithmetic"));
    Type(QStringLiteral("3+4"));
    const auto open = [this](const char* button) {
        Command("mnuHelpTopics").trigger();
        auto& help = Find<FrmHelp>(frame, QStringLiteral("frmHelp"));
        help.ShowPage(QStringLiteral("solving-equations"));
        auto& page = Find<HelpView>(help, QStringLiteral("page"));
        const WhenDialogOpens question(QStringLiteral("MessageBox"), [button](QWidget& dialog) {
            PressButton(dialog, QString::fromUtf8(button));
        });
        page.setSource(QUrl(QStringLiteral("example:solving-equations")));
        QTest::qWait(0);
        EXPECT_EQ(page.Page(), "solving-equations");
        EXPECT_FALSE(help.isVisible());
    };
    open("Cancel");
    EXPECT_EQ(Now().topic.TopicTitle, "Arithmetic");
    EXPECT_EQ(Now().typed.ProblemText, "3+4");
    open("OK");
    EXPECT_EQ(Now().topic.TopicTitle, "Solving Equations");
    EXPECT_GT(Now().log.StepCount, 3);
    EXPECT_TRUE(Arrow().isVisible());
}

TEST_F(HelpMenu, AboutNamesTheProgramAndTheComputer) {
    QCoreApplication::setApplicationVersion(QStringLiteral("7.8.9"));
    const WhenDialogOpens about(QStringLiteral("frmAbout"), [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "About Numerello");
        QStringList texts;
        for (const QLabel* label : dialog.findChildren<QLabel*>()) {
            texts << label->text();
        }
        EXPECT_TRUE(texts.contains(QStringLiteral("Numerello")));
        EXPECT_TRUE(texts.contains(QStringLiteral("7.8.9")));
        EXPECT_TRUE(texts.contains(QString::fromLatin1(qVersion())));
        EXPECT_TRUE(texts.contains(QSysInfo::prettyProductName()));
        PressButton(dialog, QStringLiteral("Copy"));
        EXPECT_TRUE(dialog.isVisible());
        PressKey(dialog, Qt::Key_Escape);
    });
    Command("mnuAbout").trigger();
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith(QStringLiteral("Numerello\nVersion: 7.8.9\nQt: ")))
        << copied.toStdString();
    EXPECT_TRUE(copied.contains(QSysInfo::prettyProductName()));
    QCoreApplication::setApplicationVersion(QString());
}

TEST_F(HelpMenu, EnterClosesAbout) {
    FrmAbout about;
    ShowActive(about);
    PressKey(about, Qt::Key_Return);
    EXPECT_FALSE(about.isVisible());
}

}  // namespace
}  // namespace numerello

#include "help_menu_test.moc"
