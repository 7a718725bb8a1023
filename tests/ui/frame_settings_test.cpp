#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>

#include "tests/ui/frm_main_fixture.h"
#include "tests/ui/still_desktop.h"
#include "ui/artwork.h"
#include "ui/figure_button.h"

namespace numerello {
namespace {

using Stored = std::vector<StoredSetting>;

/// A store that notes when it was written, and whether a graph stood then.
class WatchedStore : public MemorySettingsStore {
  public:
    void Write(const Stored& settings) override {
        ++writes;
        graphWasOpen = graph != nullptr && graph->isVisible();
        MemorySettingsStore::Write(settings);
    }

    int writes = 0;
    QPointer<QWidget> graph;
    bool graphWasOpen = false;
};

class FrameSettings : public testing::Test {
  protected:
    FrameSettings() { LoadSheetFont(); }

    std::unique_ptr<FrmMain> Open() {
        auto frame = std::make_unique<FrmMain>(store, documents.path().toStdString());
        ShowActive(*frame);
        return frame;
    }

    static bool Ticked(FrmMain& frame, const char* name) {
        return Find<QAction>(frame, QLatin1String(name)).isChecked();
    }

    std::string Value(const char* key) { return store.Read(key).value_or("missing"); }

    WatchedStore store;
    QTemporaryDir documents;
};

constexpr const char* kTicks[] = {"mnuPencil", "mnuShowStep", "mnuHideWiz", "mnuShowLight"};

TEST_F(FrameSettings, AFirstRunIsTicked) {
    const auto frame = Open();
    for (const char* name : kTicks) {
        EXPECT_TRUE(Ticked(*frame, name)) << name;
    }
    EXPECT_TRUE(Ticked(*frame, "mnuUsePencil"));
    EXPECT_EQ(store.writes, 0);
}

TEST_F(FrameSettings, EachTickIsReadByItself) {
    for (const char* unticked : kTicks) {
        store.MemorySettingsStore::Write({{unticked, "false"}});
        const auto frame = Open();
        for (const char* name : kTicks) {
            EXPECT_EQ(Ticked(*frame, name), name != unticked) << name << ' ' << unticked;
        }
        EXPECT_EQ(frame->CurrentProblem().settings.mnuShowStep,
                  std::string_view(unticked) != "mnuShowStep");
        store.MemorySettingsStore::Write({{unticked, "true"}});
    }
}

TEST_F(FrameSettings, TheButtonShowsTheNumberForm) {
    const auto picture = [](FrmMain& frame) {
        return Find<QAction>(frame, QStringLiteral("mnuConvertDF")).icon().pixmap(48).toImage();
    };
    EXPECT_EQ(picture(*Open()), ToolbarIcon(QStringLiteral("fracdec")).pixmap(48).toImage());
    store.MemorySettingsStore::Write({{"use_fraction", "false"}});
    const auto frame = Open();
    EXPECT_EQ(picture(*frame), ToolbarIcon(QStringLiteral("fracdec2")).pixmap(48).toImage());
    EXPECT_FALSE(frame->CurrentProblem().settings.UseFractions);
}

TEST_F(FrameSettings, TheFrameStoresAllElevenWhenItCloses) {
    const auto frame = Open();
    for (const char* name : {"mnuPencil", "mnuHideWiz", "mnuConvertDF"}) {
        Find<QAction>(*frame, QLatin1String(name)).trigger();
    }
    EXPECT_EQ(store.writes, 0);
    Find<QAction>(*frame, QStringLiteral("mnuExit")).trigger();
    EXPECT_FALSE(frame->isVisible());
    EXPECT_EQ(store.writes, 1);
    EXPECT_EQ(Value("mnuPencil"), "false");
    EXPECT_EQ(Value("mnuHideWiz"), "false");
    EXPECT_EQ(Value("mnuShowLight"), "true");
    EXPECT_EQ(Value("mnuShowStep"), "true");
    EXPECT_EQ(Value("use_fraction"), "false");
    EXPECT_EQ(Value("whichAssistant"), "3");
    EXPECT_EQ(Value("RoundVar"), "2");
    EXPECT_EQ(Value("ComplexEx"), "0");
    EXPECT_EQ(Value("ClickNotify"), "true");
    EXPECT_EQ(Value("ExpDetail"), "3");
    EXPECT_EQ(Value("detail"), "1");
}

TEST_F(FrameSettings, TheGraphIsClosedFirst) {
    QFile file(documents.filePath(QStringLiteral("point.nrl")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Plotting A Point BB (3,4) BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 108\n");
    file.close();
    FrmMain frame(store, documents.path().toStdString(), file.fileName().toStdString());
    ShowActive(frame);
    frame.Begin();
    store.graph = &Find<QWidget>(frame, QStringLiteral("frmGraph"));
    EXPECT_TRUE(store.graph->isVisible());
    bool closed = false;
    QObject::connect(&frame, &FrmMain::Closed, [&closed] { closed = true; });
    frame.close();
    EXPECT_EQ(store.writes, 1);
    EXPECT_FALSE(store.graphWasOpen);
    EXPECT_TRUE(closed);
}

TEST_F(FrameSettings, APairOfDetailsThatDoesNotMatchIsKept) {
    store.MemorySettingsStore::Write({{"ExpDetail", "1"}, {"detail", "2"}, {"RoundVar", "9"}});
    Open()->close();
    EXPECT_EQ(Value("ExpDetail"), "1");
    EXPECT_EQ(Value("detail"), "2");
    EXPECT_EQ(Value("RoundVar"), "2");
}

class SettingsInTheFrame : public Window {
  protected:
    void ChangeSettings(const char* command, const std::function<void(QWidget&)>& action) {
        const WhenDialogOpens options(QStringLiteral("frmOptions"), action);
        Command(command).trigger();
        ShowActive(frame);
    }

    QWidget& Wizard() { return Find<QWidget>(frame, QStringLiteral("Wizard")); }
    QWidget& Notice() { return Find<QWidget>(frame, QStringLiteral("Click")); }
    QImage Figure() { return Wizard().grab().toImage(); }

  private:
    StillDesktop still;  ///< so that the figure stands at once
};

TEST_F(SettingsInTheFrame, OpenFromMenuAndPopUpAndWithoutATopic) {
    for (const char* command : {"mnuChange", "mnuHideOptions"}) {
        ChangeSettings(command, [](QWidget& dialog) {
            Find<QComboBox>(dialog, QStringLiteral("Combo1")).setCurrentIndex(3);
            PressKey(dialog, Qt::Key_Return);
        });
        EXPECT_EQ(Now().settings.RoundDigits, 4);
    }
}

TEST_F(SettingsInTheFrame, AnotherFigureAppearsAtOk) {
    ChooseFeet();
    const QImage before = Figure();
    ChangeSettings("mnuChange", [&](QWidget& dialog) {
        Click(Find<FigureButton>(dialog, QStringLiteral("wiz1")));
        EXPECT_EQ(Figure(), before);
        PressKey(dialog, Qt::Key_Return);
    });
    EXPECT_NE(Figure(), before);
    EXPECT_EQ(Wizard().size(), QSize(108, 128));
}

TEST_F(SettingsInTheFrame, AfterCancelItAppearsWithTheNextTopic) {
    ChooseFeet();
    const QImage before = Figure();
    ChangeSettings("mnuChange", [](QWidget& dialog) {
        Click(Find<FigureButton>(dialog, QStringLiteral("wiz2")));
        PressKey(dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(Figure(), before);
    Choose(QStringLiteral("Converting Miles To Feet"));
    EXPECT_NE(Figure(), before);
}

TEST_F(SettingsInTheFrame, TheNoticeComesAndGoesWithItsSetting) {
    ChooseFeet();
    Type(QStringLiteral("7"));
    Enter();
    const auto turnOver = [](QWidget& dialog) {
        PressKeys(dialog, {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return});
    };
    ChangeSettings("mnuChange", turnOver);
    EXPECT_FALSE(Now().settings.ClickNotify);
    EXPECT_FALSE(Notice().isVisible());
    ChangeSettings("mnuChange", turnOver);
    EXPECT_TRUE(Now().settings.ClickNotify);
    EXPECT_TRUE(Notice().isVisible());
}

TEST_F(SettingsInTheFrame, TheWorkedSheetStaysAndTheNextSolveFollows) {
    Choose(QStringLiteral("Converting Fahrenheit To Celsius"));
    Type(QStringLiteral("100"));
    Enter();
    const QString before = SheetText();
    ChangeSettings("mnuChange", [](QWidget& dialog) {
        Find<QComboBox>(dialog, QStringLiteral("Combo1")).setCurrentIndex(0);
        PressKey(dialog, Qt::Key_Return);
    });
    EXPECT_EQ(SheetText(), before);
    Erase();
    Type(QStringLiteral("100"));
    Enter();
    // (100 - 32) * 5/9 = 37.77..., to one digit.
    EXPECT_EQ(Now().log.StepText[Now().log.StepCount - 1], "100^o^ F = 37.8^o^ C");
}

}  // namespace
}  // namespace numerello
