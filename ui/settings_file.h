#pragma once

#include <QString>

#include "core/settings_store.h"

namespace numerello {

/// The settings as texts in an INI file, in a section of their own.
class SettingsFile : public SettingsStore {
  public:
    /// The file is not opened before it is needed, and its folder is made when it is written.
    explicit SettingsFile(QString path);

    /// "Vantrel.conf" in the learner's folder of configuration files.
    static QString UsualPath();

    std::optional<std::string> Read(std::string_view key) const override;
    void Write(const std::vector<StoredSetting>& settings) override;

  private:
    bool CanBeOpened() const;

    QString path;
};

}  // namespace numerello
