#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace numerello {

/// Under which names the settings are kept, wherever that is.
inline constexpr std::string_view kSettingsApplication = "Vantrel";
inline constexpr std::string_view kSettingsSection = "Numerello";

struct StoredSetting {
    std::string_view key;
    std::string value;
};

/// Where the texts that outlive a run of the program are kept, each under its key. A store that
/// cannot be read has none; one that cannot be written keeps what it had. Neither throws.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// Nothing for a missing key.
    virtual std::optional<std::string> Read(std::string_view key) const = 0;

    /// Stores all of them in one go. Other keys stay.
    virtual void Write(const std::vector<StoredSetting>& settings) = 0;
};

/// A store that lasts as long as the program.
class MemorySettingsStore : public SettingsStore {
  public:
    std::optional<std::string> Read(std::string_view key) const override {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    void Write(const std::vector<StoredSetting>& settings) override {
        for (const StoredSetting& setting : settings) {
            values.insert_or_assign(std::string(setting.key), setting.value);
        }
    }

  private:
    std::map<std::string, std::string, std::less<>> values;
};

}  // namespace numerello
