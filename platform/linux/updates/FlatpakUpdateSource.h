#pragma once

#include "platform/UpdateSource.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace norvin {

class Clock;
class ClockTimer;

/// Updates of a Flatpak, told by the portal org.freedesktop.portal.Flatpak on the session bus. The portal
/// announces an update to whoever asked for a monitor, and says nothing where there is none: a look without
/// an announcement ends after half a minute. From the first look on the portal keeps looking by itself, and
/// what it announces later is told by checked(). Unavailable with "health_no_session_bus".
class FlatpakUpdateSource final : public UpdateSource {
    Q_OBJECT
public:
    /// @param clock must outlive this
    FlatpakUpdateSource(const QDBusConnection& sessionBus, Clock& clock, QObject* parent = nullptr);
    ~FlatpakUpdateSource() override;

    [[nodiscard]] Availability availability() const override;
    [[nodiscard]] bool canCheckForUpdates() const override;
    void checkForUpdates() override;
    [[nodiscard]] bool canOpenSoftwareCentre() const override { return true; }
    void openSoftwareCentre() override;

private Q_SLOTS:
    void onUpdateAvailable(const QVariantMap& commits, const QDBusMessage& message);

private:
    void follow(const QString& monitor);
    void finish(const UpdateResult& result);

    QDBusConnection m_bus;
    Clock& m_clock;
    /// Runs during a look.
    std::unique_ptr<ClockTimer> m_patience;
    /// Object path of the portal's monitor; empty before the first look.
    QString m_monitor;
    QString m_portal;
    std::optional<UpdateResult> m_announced;
};

} // namespace norvin
