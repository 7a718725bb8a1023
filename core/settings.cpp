#include "core/settings.h"

#include <algorithm>
#include <array>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

/// A setting that is a number, and the numbers that it may be.
struct NumberKey {
    std::string_view key;
    int AnswerSettings::*value;
    int least;
    int most;
    int step;
};

constexpr std::array kNumbers{
    NumberKey{"whichAssistant", &AnswerSettings::whichAssistant, 1, 3, 1},
    NumberKey{"RoundVar", &AnswerSettings::RoundDigits, 1, 5, 1},
    NumberKey{"ComplexEx", &AnswerSettings::ComplexEx, 0, AnswerSettings::kComplex,
              AnswerSettings::kComplex},
    NumberKey{"ExpDetail", &AnswerSettings::ExpDetail, 1, 3, 1},
    NumberKey{"detail", &AnswerSettings::DetailLevel, 1, 3, 1},
};

struct FlagKey {
    std::string_view key;
    bool AnswerSettings::*value;
};

constexpr std::array kFlags{
    FlagKey{"ClickNotify", &AnswerSettings::ClickNotify},
    FlagKey{"use_fraction", &AnswerSettings::UseFractions},
    FlagKey{"mnuShowStep", &AnswerSettings::mnuShowStep},
};

struct TickKey {
    std::string_view key;
    bool Settings::*value;
};

constexpr std::array kTicks{
    TickKey{"mnuPencil", &Settings::mnuPencil},
    TickKey{"mnuHideWiz", &Settings::mnuHideWiz},
    TickKey{"mnuShowLight", &Settings::mnuShowLight},
};

constexpr std::string_view kTrue = "true";
constexpr std::string_view kFalse = "false";
constexpr std::array kTrueWords{kTrue, std::string_view("-1"), std::string_view("1"),
                                std::string_view("yes")};
constexpr std::array kFalseWords{kFalse, std::string_view("0"), std::string_view("no")};

void ReadNumber(const SettingsStore& store, const NumberKey& number, AnswerSettings& answers) {
    const auto value = ReadInteger16(store.Read(number.key).value_or(""));
    if (value && *value >= number.least && *value <= number.most &&
        (*value - number.least) % number.step == 0) {
        answers.*number.value = *value;
    }
}

void ReadFlag(const SettingsStore& store, std::string_view key, bool& flag) {
    const std::string text = store.Read(key).value_or("");
    const std::string word = LowerCase(Trimmed(text));
    if (std::find(kTrueWords.begin(), kTrueWords.end(), word) != kTrueWords.end()) {
        flag = true;
    } else if (std::find(kFalseWords.begin(), kFalseWords.end(), word) != kFalseWords.end()) {
        flag = false;
    }
}

std::string FlagText(bool flag) {
    return std::string(flag ? kTrue : kFalse);
}

}  // namespace

Settings ReadSettings(const SettingsStore& store) {
    Settings settings;
    for (const NumberKey& number : kNumbers) {
        ReadNumber(store, number, settings.answers);
    }
    for (const FlagKey& flag : kFlags) {
        ReadFlag(store, flag.key, settings.answers.*flag.value);
    }
    for (const TickKey& tick : kTicks) {
        ReadFlag(store, tick.key, settings.*tick.value);
    }
    return settings;
}

void StoreSettings(const Settings& settings, SettingsStore& store) {
    std::vector<StoredSetting> stored;
    stored.reserve(kNumbers.size() + kFlags.size() + kTicks.size());
    for (const NumberKey& number : kNumbers) {
        stored.push_back({number.key, WholeText(settings.answers.*number.value)});
    }
    for (const FlagKey& flag : kFlags) {
        stored.push_back({flag.key, FlagText(settings.answers.*flag.value)});
    }
    for (const TickKey& tick : kTicks) {
        stored.push_back({tick.key, FlagText(settings.*tick.value)});
    }
    store.Write(stored);
}

}  // namespace numerello
