#pragma once

#include "platform/Autostart.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QVariantMap>

namespace norvin {

class Preferences;

/// Inside a sandbox the desktop starts the program at login, where its user lets it: the background portal is
/// asked. It cannot be asked what it has granted before; that is kept in the preferences.
class PortalAutostart final : public Autostart {
    Q_OBJECT
public:
    static constexpr auto grantedKey = "autostart_granted";

    /// @param preferences must outlive this
    PortalAutostart(const QDBusConnection& sessionBus, Preferences& preferences, QObject* parent = nullptr);

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool isEnabled() const override;
    void setEnabled(bool enabled) override;

private Q_SLOTS:
    void onResponse(uint response, const QVariantMap& results, const QDBusMessage& message);

private:
    void follow(const QString& request);
    void fail(const QString& detail);

    QDBusConnection m_bus;
    Preferences& m_preferences;
    QString m_request;
    int m_requests = 0;
    Availability m_availability;
};

} // namespace norvin
