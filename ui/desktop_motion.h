#pragma once

#include <QDBusMessage>
#include <QObject>
#include <array>

namespace numerello {

/// Listens to what the desktop's settings say about motion. Without such a service on the session's
/// bus it hears nothing, and motion stays wanted.
class DesktopMotion : public QObject {
    Q_OBJECT

  public:
    /// Asks at once; the answer comes through the event loop.
    explicit DesktopMotion(QObject* parent);

    /// Whether one of the settings asks for less motion.
    bool AsksForStillness() const;

  private:
    /// The service tells that a setting has changed.
    Q_SLOT void SettingChanged(const QDBusMessage& news);

    static constexpr int kSettings = 2;

    void Ask(int setting);
    void Take(int setting, const QVariant& value);

    std::array<bool, kSettings> still{};
};

}  // namespace numerello
