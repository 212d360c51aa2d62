#include "platform/linux/login1/Login1SleepMonitor.h"

#include "platform/Log.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <utility>

namespace norvin {

namespace {

const QString service = QStringLiteral("org.freedesktop.login1");
const QString path = QStringLiteral("/org/freedesktop/login1");
const QString interface = QStringLiteral("org.freedesktop.login1.Manager");

Availability unavailable(const QString& detail) {
    return Availability::unavailable(QStringLiteral("health_no_login1"), detail);
}

// Errors that mean nobody is there, as against someone who refuses the inhibitor.
bool meansAbsent(const QDBusError& error) {
    switch (error.type()) {
    case QDBusError::AccessDenied:
    case QDBusError::LimitsExceeded:
    case QDBusError::UnknownMethod:
    case QDBusError::InvalidArgs:
        return false;
    default:
        return true;
    }
}

} // namespace

Login1SleepMonitor::Login1SleepMonitor(const QDBusConnection& bus, QObject* parent)
    : SleepMonitor(parent)
    , m_bus(bus)
    , m_availability(unavailable(QStringLiteral("not answered yet"))) {
    if (!m_bus.isConnected()) {
        m_availability = unavailable(m_bus.lastError().message());
        return;
    }
    auto* watcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &Login1SleepMonitor::inhibit);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, &Login1SleepMonitor::onServiceLost);
    // Without the service's name in the rule: looking up its owner would be a call that waits.
    m_bus.connect(QString(), path, interface, QStringLiteral("PrepareForSleep"), this,
                  SLOT(onPrepareForSleep(bool, QDBusMessage)));
    inhibit();
}

void Login1SleepMonitor::inhibit() {
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Inhibit"));
    call << QStringLiteral("sleep") << QStringLiteral("Norvin Focus")
         << QStringLiteral("Closes the running interval") << QStringLiteral("delay");
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, &Login1SleepMonitor::onInhibitReply);
}

void Login1SleepMonitor::onInhibitReply(QDBusPendingCallWatcher* watcher) {
    watcher->deleteLater();
    const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
    m_owner = watcher->reply().service();
    if (!reply.isError()) {
        // An inhibitor that arrives while the machine goes to sleep would only delay it.
        if (!m_isAsleep)
            m_inhibitor = reply.value();
        setAvailability(Availability::available());
    } else if (meansAbsent(reply.error())) {
        setAvailability(unavailable(reply.error().message()));
    } else {
        logLine(QStringLiteral("Login1SleepMonitor: No inhibitor: ") + reply.error().message());
        setAvailability(Availability::available());
    }
}

void Login1SleepMonitor::onPrepareForSleep(bool starting, const QDBusMessage& message) {
    if (message.service() != m_owner || starting == m_isAsleep)
        return;
    m_isAsleep = starting;
    if (starting) {
        Q_EMIT willSleep();
        m_inhibitor = QDBusUnixFileDescriptor();
    } else {
        inhibit();
        Q_EMIT didWake();
    }
}

void Login1SleepMonitor::onServiceLost() {
    m_inhibitor = QDBusUnixFileDescriptor();
    setAvailability(unavailable(service + QStringLiteral(" has left the bus")));
    // The signal of the waking will not come any more.
    if (std::exchange(m_isAsleep, false))
        Q_EMIT didWake();
}

void Login1SleepMonitor::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    Q_EMIT availabilityChanged();
}

} // namespace norvin
