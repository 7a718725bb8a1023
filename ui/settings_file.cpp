#include "ui/settings_file.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <utility>

#include "ui/text.h"

namespace numerello {

namespace {

QString KeyOf(std::string_view key) {
    return ToQString(kSettingsSection) + u'/' + ToQString(key);
}

}  // namespace

SettingsFile::SettingsFile(QString path) : path(std::move(path)) {}

QString SettingsFile::UsualPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' +
           ToQString(kSettingsApplication) + QStringLiteral(".conf");
}

/// A pipe of that name would keep the window waiting for ever.
bool SettingsFile::CanBeOpened() const {
    const QFileInfo file(path);
    return file.isFile() || !file.exists();
}

std::optional<std::string> SettingsFile::Read(std::string_view key) const {
    if (!CanBeOpened()) {
        return std::nullopt;
    }
    const QSettings file(path, QSettings::IniFormat);
    const QVariant value = file.value(KeyOf(key));
    return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

void SettingsFile::Write(const std::vector<StoredSetting>& settings) {
    if (!CanBeOpened()) {
        return;
    }
    QSettings file(path, QSettings::IniFormat);
    for (const StoredSetting& setting : settings) {
        file.setValue(KeyOf(setting.key), ToQString(setting.value));
    }
}

}  // namespace numerello
