#include "ui/desktop_motion.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <algorithm>

namespace numerello {

namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";

/// A setting and the value with which it asks for less motion.
struct MotionSetting {
    const char* space;
    const char* key;
    uint still;
};

constexpr std::array kSettingTable{
    MotionSetting{"org.gnome.desktop.interface", "enable-animations", 0},
    MotionSetting{"org.freedesktop.appearance", "reduced-motion", 1},
};

}  // namespace

DesktopMotion::DesktopMotion(QObject* parent) : QObject(parent) {
    static_assert(kSettingTable.size() == kSettings);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    bus.connect(QLatin1String(kService), QLatin1String(kPath), QLatin1String(kInterface),
                QStringLiteral("SettingChanged"), this, SLOT(SettingChanged(QDBusMessage)));
    for (int i = 0; i < kSettings; ++i) {
        Ask(i);
    }
}

void DesktopMotion::Ask(int setting) {
    const MotionSetting& row = kSettingTable[static_cast<std::size_t>(setting)];
    QDBusMessage question =
        QDBusMessage::createMethodCall(QLatin1String(kService), QLatin1String(kPath),
                                       QLatin1String(kInterface), QStringLiteral("Read"));
    question << QString::fromUtf8(row.space) << QString::fromUtf8(row.key);
    auto* answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, setting] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid()) {
            Take(setting, reply.value().variant());
        }
        answer->deleteLater();
    });
}

void DesktopMotion::Take(int setting, const QVariant& value) {
    // The answer to a question is wrapped once more than the news of a change.
    QVariant bare = value;
    while (bare.canConvert<QDBusVariant>()) {
        bare = bare.value<QDBusVariant>().variant();
    }
    const auto at = static_cast<std::size_t>(setting);
    still[at] = bare.isValid() && bare.toUInt() == kSettingTable[at].still;
}

void DesktopMotion::SettingChanged(const QDBusMessage& news) {
    const QVariantList told = news.arguments();
    if (told.size() != 3) {
        return;
    }
    for (int i = 0; i < kSettings; ++i) {
        const MotionSetting& row = kSettingTable[static_cast<std::size_t>(i)];
        if (told[0] == QLatin1String(row.space) && told[1] == QLatin1String(row.key)) {
            Take(i, told[2]);
        }
    }
}

bool DesktopMotion::AsksForStillness() const {
    return std::find(still.begin(), still.end(), true) != still.end();
}

}  // namespace numerello
