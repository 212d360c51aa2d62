#pragma once

#include "platform/UserNotifications.h"

#include <QDBusConnection>
#include <QQueue>
#include <QSet>
#include <QStringList>

#include <optional>

class QDBusPendingCallWatcher;

namespace norvin {

/// Notifications through org.freedesktop.Notifications on the session bus. A daemon that the bus can start
/// counts as present and is started by the first notification. Unavailable with "health_no_session_bus" or
/// "health_no_notifications". Every call to the bus is asynchronous; the first answer comes a moment after
/// the start, and what is posted before it is kept until then.
class FreedesktopNotifications final : public UserNotifications {
    Q_OBJECT
public:
    explicit FreedesktopNotifications(const QDBusConnection& sessionBus, QObject* parent = nullptr);

    [[nodiscard]] Availability availability() const override { return m_availability; }
    void post(const QString& title, const QString& body) override;

private Q_SLOTS:
    void onActionInvoked(uint id, const QString& action);
    void onNotificationClosed(uint id, uint reason);

private:
    struct Notification {
        QString title;
        QString body;
    };
    enum class Probe { Running, Done };

    void probe();
    void onOwnerKnown(bool hasOwner);
    void fetchCapabilities();
    void sendPending();
    void send(const Notification& notification);
    void setAvailability(const Availability& availability);

    QDBusConnection m_bus;
    Availability m_availability;
    Probe m_probe = Probe::Done;
    // None until the daemon that is to show the notifications has told.
    std::optional<QStringList> m_capabilities;
    bool m_fetchingCapabilities = false;
    QQueue<Notification> m_pending;
    QSet<uint> m_shown;
};

} // namespace norvin
