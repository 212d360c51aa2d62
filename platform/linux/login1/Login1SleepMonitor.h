#pragma once

#include "platform/SleepMonitor.h"

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>

class QDBusMessage;
class QDBusPendingCallWatcher;

namespace norvin {

/// Sleep as logind announces it on the system bus. A delay inhibitor holds the machine awake until the slots
/// connected to willSleep() have run. Unavailable with "health_no_login1" while nobody answers by that name.
/// Every call to the bus is asynchronous; the answer to the first comes a moment after the start.
class Login1SleepMonitor final : public SleepMonitor {
    Q_OBJECT
public:
    /// @param bus the system bus, or another that stands for it
    explicit Login1SleepMonitor(const QDBusConnection& bus, QObject* parent = nullptr);

    [[nodiscard]] Availability availability() const override { return m_availability; }

private Q_SLOTS:
    void onPrepareForSleep(bool starting, const QDBusMessage& message);

private:
    void inhibit();
    void onInhibitReply(QDBusPendingCallWatcher* watcher);
    void onServiceLost();
    void setAvailability(const Availability& availability);

    QDBusConnection m_bus;
    Availability m_availability;
    // Closing it lets the machine sleep.
    QDBusUnixFileDescriptor m_inhibitor;
    // Unique name of the service that answered; anybody may send signals that look like its own.
    QString m_owner;
    bool m_isAsleep = false;
};

} // namespace norvin
