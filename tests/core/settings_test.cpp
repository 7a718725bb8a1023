#include "core/settings.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

MemorySettingsStore Holding(const std::vector<StoredSetting>& settings) {
    MemorySettingsStore store;
    store.Write(settings);
    return store;
}

void ExpectDefaults(const Settings& settings) {
    EXPECT_EQ(settings.answers.whichAssistant, 3);
    EXPECT_EQ(settings.answers.RoundDigits, 2);
    EXPECT_EQ(settings.answers.ComplexEx, 0);
    EXPECT_TRUE(settings.answers.ClickNotify);
    EXPECT_EQ(settings.answers.ExpDetail, 3);
    EXPECT_TRUE(settings.answers.UseFractions);
    EXPECT_EQ(settings.answers.DetailLevel, 1);
    EXPECT_TRUE(settings.answers.mnuShowStep);
    EXPECT_TRUE(settings.mnuPencil);
    EXPECT_TRUE(settings.mnuHideWiz);
    EXPECT_TRUE(settings.mnuShowLight);
}

TEST(Settings, AFirstRunHasTheDefaults) {
    ExpectDefaults(ReadSettings(MemorySettingsStore()));
}

TEST(Settings, StandUnderTheNamesOfTheMaker) {
    EXPECT_EQ(kSettingsApplication, "Vantrel");
    EXPECT_EQ(kSettingsSection, "Numerello");
}

TEST(Settings, AllElevenAreStoredAsTexts) {
    Settings settings;
    settings.answers.whichAssistant = 1;
    settings.answers.RoundDigits = 5;
    settings.answers.ComplexEx = 2;
    settings.answers.ClickNotify = false;
    settings.answers.ExpDetail = 1;
    settings.answers.UseFractions = false;
    settings.answers.DetailLevel = 3;
    settings.mnuHideWiz = false;
    MemorySettingsStore store;
    StoreSettings(settings, store);
    const std::map<std::string, std::string> expected{
        {"whichAssistant", "1"},  {"RoundVar", "5"},        {"ComplexEx", "2"},
        {"ClickNotify", "false"}, {"ExpDetail", "1"},       {"use_fraction", "false"},
        {"detail", "3"},          {"mnuPencil", "true"},    {"mnuShowStep", "true"},
        {"mnuHideWiz", "false"},  {"mnuShowLight", "true"},
    };
    for (const auto& [key, value] : expected) {
        EXPECT_EQ(store.Read(key), value) << key;
    }
}

/// Keeps what is written at a time.
class CountingStore : public SettingsStore {
  public:
    std::optional<std::string> Read(std::string_view) const override { return std::nullopt; }
    void Write(const std::vector<StoredSetting>& settings) override {
        sizes.push_back(settings.size());
    }
    std::vector<std::size_t> sizes;
};

TEST(Settings, AreWrittenInOneGo) {
    CountingStore store;
    StoreSettings(Settings(), store);
    EXPECT_EQ(store.sizes, std::vector<std::size_t>{11});
}

TEST(Settings, OtherKeysStay) {
    MemorySettingsStore store = Holding({{"colour", "green"}});
    StoreSettings(Settings(), store);
    EXPECT_EQ(store.Read("colour"), "green");
}

TEST(Settings, EveryFlagIsReadByItsOwnKey) {
    const auto flagOf = [](const Settings& settings, std::string_view key) {
        const std::map<std::string_view, bool> flags{
            {"ClickNotify", settings.answers.ClickNotify},
            {"use_fraction", settings.answers.UseFractions},
            {"mnuShowStep", settings.answers.mnuShowStep},
            {"mnuPencil", settings.mnuPencil},
            {"mnuHideWiz", settings.mnuHideWiz},
            {"mnuShowLight", settings.mnuShowLight}};
        return flags.at(key);
    };
    const std::string_view keys[] = {"ClickNotify", "use_fraction", "mnuShowStep",
                                     "mnuPencil",   "mnuHideWiz",   "mnuShowLight"};
    for (const std::string_view off : keys) {
        const Settings settings = ReadSettings(Holding({{off, "False"}}));
        for (const std::string_view key : keys) {
            EXPECT_EQ(flagOf(settings, key), key != off) << off << ' ' << key;
        }
    }
}

TEST(Settings, FlagsAreWordsInAnyCaseOrNumbers) {
    for (const char* word : {"false", "False", "FALSE", "0", "no", "No", "  false "}) {
        EXPECT_FALSE(ReadSettings(Holding({{"mnuPencil", word}})).mnuPencil) << word;
    }
    for (const char* word : {"true", "True", "TRUE", "-1", "1", "yes", "YES", " 1 "}) {
        EXPECT_TRUE(ReadSettings(Holding({{"mnuPencil", word}})).mnuPencil) << word;
    }
}

TEST(Settings, AWordThatIsNoFlagIsTheDefault) {
    for (const char* word : {"", " ", "falsch", "2", "off", "f", "falsefalse", "0.0", "00"}) {
        EXPECT_TRUE(ReadSettings(Holding({{"mnuPencil", word}})).mnuPencil) << word;
    }
}

struct NumberCase {
    const char* key;
    int AnswerSettings::*value;
    int otherwise;
    std::vector<int> allowed;
};

TEST(Settings, ANumberOutsideItsRangeIsTheDefault) {
    const NumberCase cases[] = {
        {"whichAssistant", &AnswerSettings::whichAssistant, 3, {1, 2, 3}},
        {"RoundVar", &AnswerSettings::RoundDigits, 2, {1, 2, 3, 4, 5}},
        {"ComplexEx", &AnswerSettings::ComplexEx, 0, {0, 2}},
        {"ExpDetail", &AnswerSettings::ExpDetail, 3, {1, 2, 3}},
        {"detail", &AnswerSettings::DetailLevel, 1, {1, 2, 3}},
    };
    for (const NumberCase& each : cases) {
        for (int number = -3; number <= 9; ++number) {
            const std::string text = std::to_string(number);
            const Settings settings = ReadSettings(Holding({{each.key, text}}));
            const bool allowed =
                std::find(each.allowed.begin(), each.allowed.end(), number) != each.allowed.end();
            EXPECT_EQ(settings.answers.*each.value, allowed ? number : each.otherwise)
                << each.key << ' ' << number;
        }
    }
}

TEST(Settings, ATextThatIsNoWholeNumberIsTheDefault) {
    for (const char* text : {"", "four", "4.0", "4x", "0x4", "4 4", "65540", "99999999999999999999",
                             "4\n", "\xFF", "true", "+-4", "-"}) {
        EXPECT_EQ(ReadSettings(Holding({{"RoundVar", text}})).answers.RoundDigits, 2) << text;
    }
    EXPECT_EQ(ReadSettings(Holding({{"RoundVar", " 4 "}})).answers.RoundDigits, 4);
}

TEST(Settings, OneDamagedValueLeavesTheOthers) {
    const Settings settings =
        ReadSettings(Holding({{"RoundVar", "?"}, {"detail", "2"}, {"mnuPencil", "false"}}));
    EXPECT_EQ(settings.answers.RoundDigits, 2);
    EXPECT_EQ(settings.answers.DetailLevel, 2);
    EXPECT_FALSE(settings.mnuPencil);
}

TEST(Settings, APairOfDetailsThatDoesNotMatchIsKept) {
    const Settings settings = ReadSettings(Holding({{"ExpDetail", "3"}, {"detail", "2"}}));
    EXPECT_EQ(settings.answers.ExpDetail, 3);
    EXPECT_EQ(settings.answers.DetailLevel, 2);
}

TEST(Settings, ComeBackAsTheyWereStored) {
    for (int digits = 1; digits <= 5; ++digits) {
        for (int detail = 1; detail <= 3; ++detail) {
            for (const bool flag : {false, true}) {
                Settings settings;
                settings.answers.RoundDigits = digits;
                settings.answers.DetailLevel = detail;
                settings.answers.whichAssistant = 4 - detail;
                settings.answers.mnuShowStep = flag;
                settings.mnuShowLight = !flag;
                MemorySettingsStore store;
                StoreSettings(settings, store);
                const Settings read = ReadSettings(store);
                EXPECT_EQ(read.answers.RoundDigits, digits);
                EXPECT_EQ(read.answers.DetailLevel, detail);
                EXPECT_EQ(read.answers.whichAssistant, 4 - detail);
                EXPECT_EQ(read.answers.mnuShowStep, flag);
                EXPECT_EQ(read.mnuShowLight, !flag);
            }
        }
    }
}

}  // namespace
}  // namespace numerello
