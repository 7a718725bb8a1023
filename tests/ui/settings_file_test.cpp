#include "ui/settings_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/settings.h"

namespace numerello {
namespace {

class SettingsFileTest : public testing::Test {
  protected:
    QString Path() const { return folder.filePath(QStringLiteral("Vantrel.conf")); }

    void Put(const QByteArray& content) const {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray Content() const {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    Settings ReadBack() const { return ReadSettings(SettingsFile(Path())); }

    QTemporaryDir folder;
};

void ExpectDefaults(const Settings& settings) {
    EXPECT_EQ(settings.answers.whichAssistant, 3);
    EXPECT_EQ(settings.answers.RoundDigits, 2);
    EXPECT_EQ(settings.answers.ComplexEx, 0);
    EXPECT_EQ(settings.answers.ExpDetail, 3);
    EXPECT_EQ(settings.answers.DetailLevel, 1);
    EXPECT_TRUE(settings.answers.ClickNotify);
    EXPECT_TRUE(settings.answers.UseFractions);
    EXPECT_TRUE(settings.answers.mnuShowStep);
    EXPECT_TRUE(settings.mnuPencil);
    EXPECT_TRUE(settings.mnuHideWiz);
    EXPECT_TRUE(settings.mnuShowLight);
}

TEST_F(SettingsFileTest, AFirstRunHasTheDefaults) {
    ExpectDefaults(ReadBack());
    EXPECT_FALSE(QFile::exists(Path()));
}

TEST_F(SettingsFileTest, WhatIsStoredIsReadBack) {
    Settings settings;
    settings.answers = {.RoundDigits = 4,
                        .UseFractions = false,
                        .DetailLevel = 2,
                        .ExpDetail = 2,
                        .ComplexEx = 2,
                        .ClickNotify = false,
                        .whichAssistant = 1,
                        .mnuShowStep = false};
    settings.mnuPencil = false;
    settings.mnuHideWiz = false;
    settings.mnuShowLight = false;
    SettingsFile store(Path());
    StoreSettings(settings, store);
    const Settings read = ReadBack();
    EXPECT_EQ(read.answers.RoundDigits, 4);
    EXPECT_FALSE(read.answers.UseFractions);
    EXPECT_EQ(read.answers.DetailLevel, 2);
    EXPECT_EQ(read.answers.ExpDetail, 2);
    EXPECT_EQ(read.answers.ComplexEx, 2);
    EXPECT_FALSE(read.answers.ClickNotify);
    EXPECT_EQ(read.answers.whichAssistant, 1);
    EXPECT_FALSE(read.answers.mnuShowStep);
    EXPECT_FALSE(read.mnuPencil);
    EXPECT_FALSE(read.mnuHideWiz);
    EXPECT_FALSE(read.mnuShowLight);
}

TEST_F(SettingsFileTest, TheFileIsTextUnderItsSection) {
    SettingsFile store(Path());
    StoreSettings(Settings(), store);
    const QByteArray content = Content();
    EXPECT_TRUE(content.startsWith("[Numerello]\n")) << content.toStdString();
    for (const char* line : {"whichAssistant=3", "RoundVar=2", "ComplexEx=0", "ExpDetail=3",
                             "detail=1", "ClickNotify=true", "use_fraction=true", "mnuPencil=true",
                             "mnuShowStep=true", "mnuHideWiz=true", "mnuShowLight=true"}) {
        EXPECT_TRUE(content.contains(QByteArray("\n") + line + '\n')) << line;
    }
    EXPECT_EQ(content.count('='), 11);
}

TEST_F(SettingsFileTest, UnknownKeysAndOtherSectionsStay) {
    Put("[General]\ncolor=blue\n\n[Numerello]\nRoundVar=5\nlater=yes\n");
    SettingsFile store(Path());
    Settings settings = ReadSettings(store);
    EXPECT_EQ(settings.answers.RoundDigits, 5);
    settings.answers.RoundDigits = 1;
    StoreSettings(settings, store);
    EXPECT_TRUE(Content().contains("color=blue\n"));
    EXPECT_TRUE(Content().contains("later=yes\n"));
    EXPECT_EQ(ReadBack().answers.RoundDigits, 1);
}

TEST_F(SettingsFileTest, ADamagedValueIsTheDefaultOfItsKeyAlone) {
    Put("[Numerello]\nRoundVar=6\nExpDetail=2,3\ndetail=\"\"\nClickNotify=perhaps\n"
        "use_fraction=False\nComplexEx= 2 \nwhichAssistant=@Invalid()\nmnuPencil=0\n"
        "mnuHideWiz\nmnuShowLight=no\n");
    const Settings read = ReadBack();
    EXPECT_EQ(read.answers.RoundDigits, 2);
    EXPECT_EQ(read.answers.ExpDetail, 3);
    EXPECT_EQ(read.answers.DetailLevel, 1);
    EXPECT_TRUE(read.answers.ClickNotify);
    EXPECT_FALSE(read.answers.UseFractions);
    EXPECT_EQ(read.answers.ComplexEx, 2);
    EXPECT_EQ(read.answers.whichAssistant, 3);
    EXPECT_FALSE(read.mnuPencil);
    EXPECT_TRUE(read.mnuHideWiz);
    EXPECT_FALSE(read.mnuShowLight);
}

TEST_F(SettingsFileTest, BytesThatAreNoSettingsAreNone) {
    QByteArray bytes;
    for (int i = 0; i < 5000; ++i) {
        bytes.append(static_cast<char>((i * 7919) % 256));
    }
    Put(bytes);
    ExpectDefaults(ReadBack());
    Put("RoundVar=4\n=\n[[[\n[Other]\nRoundVar=4\n");
    ExpectDefaults(ReadBack());
}

TEST_F(SettingsFileTest, WhatIsNoFileIsLeftAlone) {
    ASSERT_EQ(mkfifo(Path().toUtf8().constData(), 0600), 0);
    ExpectDefaults(ReadBack());
    SettingsFile store(Path());
    StoreSettings(Settings(), store);
    ASSERT_TRUE(QFile::remove(Path()));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Vantrel.conf")));
    ExpectDefaults(ReadBack());
    StoreSettings(Settings(), store);
    EXPECT_TRUE(QFileInfo(Path()).isDir());
}

TEST_F(SettingsFileTest, AFolderThatIsMissingIsMade) {
    const QString path = folder.filePath(QStringLiteral("a/b/Vantrel.conf"));
    SettingsFile store(path);
    Settings settings;
    settings.answers.RoundDigits = 3;
    StoreSettings(settings, store);
    EXPECT_EQ(ReadSettings(SettingsFile(path)).answers.RoundDigits, 3);
}

TEST_F(SettingsFileTest, WhatCannotBeWrittenIsNotSpokenOf) {
    Put("no folder");
    SettingsFile store(Path() + QStringLiteral("/Vantrel.conf"));
    StoreSettings(Settings(), store);
    EXPECT_EQ(Content(), "no folder");
}

TEST_F(SettingsFileTest, StandsInTheFolderOfConfigurationFiles) {
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    EXPECT_EQ(SettingsFile::UsualPath(), Path());
    qputenv("XDG_CONFIG_HOME", before);
}

}  // namespace
}  // namespace numerello
