#include "platform/linux/freedesktop/FreedesktopNotifications.h"

#include "platform/ApplicationCatalog.h"
#include "platform/Log.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QVariantMap>

namespace norvin {

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString interface = QStringLiteral("org.freedesktop.Notifications");
const QString defaultAction = QStringLiteral("default");

// Notifications tell of phases of many minutes: more than a few waiting ones are no news any more.
constexpr int mostPending = 4;

QDBusMessage busCall(const char* method) {
    return QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QString::fromLatin1(method));
}

QDBusMessage daemonCall(const char* method) {
    return QDBusMessage::createMethodCall(service, path, interface, QString::fromLatin1(method));
}

Availability noDaemon(const QString& detail) {
    return Availability::unavailable(QStringLiteral("health_no_notifications"), detail);
}

} // namespace

FreedesktopNotifications::FreedesktopNotifications(const QDBusConnection& sessionBus, QObject* parent)
    : UserNotifications(parent)
    , m_bus(sessionBus)
    , m_availability(noDaemon(QStringLiteral("not answered yet"))) {
    if (!m_bus.isConnected()) {
        m_availability =
            Availability::unavailable(QStringLiteral("health_no_session_bus"), m_bus.lastError().message());
        return;
    }
    auto* watcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                // A daemon may also take the name from another one that still runs.
                m_capabilities.reset();
                m_shown.clear();
                if (newOwner.isEmpty())
                    probe();
                else
                    onOwnerKnown(true);
            });
    // Without the service's name in the rules: looking up its owner would be a call that waits. Identifiers
    // of our own notifications tell which signals concern us.
    m_bus.connect(QString(), path, interface, QStringLiteral("ActionInvoked"), this,
                  SLOT(onActionInvoked(uint, QString)));
    m_bus.connect(QString(), path, interface, QStringLiteral("NotificationClosed"), this,
                  SLOT(onNotificationClosed(uint, uint)));
    probe();
}

void FreedesktopNotifications::probe() {
    m_probe = Probe::Running;
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(busCall("NameHasOwner") << service), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        const QDBusPendingReply<bool> answer = *reply;
        onOwnerKnown(!answer.isError() && answer.value());
    });
}

void FreedesktopNotifications::onOwnerKnown(bool hasOwner) {
    if (hasOwner) {
        m_probe = Probe::Done;
        setAvailability(Availability::available());
        fetchCapabilities();
        return;
    }
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(busCall("ListActivatableNames")), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        if (m_capabilities || m_fetchingCapabilities)
            return; // a daemon came up meanwhile
        m_probe = Probe::Done;
        const QDBusPendingReply<QStringList> answer = *reply;
        if (!answer.isError() && answer.value().contains(service)) {
            setAvailability(Availability::available());
            if (!m_pending.isEmpty())
                fetchCapabilities();
        } else {
            m_pending.clear();
            setAvailability(noDaemon(QStringLiteral("nobody owns %1").arg(service)));
        }
    });
}

void FreedesktopNotifications::fetchCapabilities() {
    if (m_fetchingCapabilities)
        return;
    m_fetchingCapabilities = true;
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(daemonCall("GetCapabilities")), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        m_fetchingCapabilities = false;
        const QDBusPendingReply<QStringList> answer = *reply;
        if (answer.isError()) {
            m_pending.clear();
            logLine(QStringLiteral("FreedesktopNotifications: No daemon: ") + answer.error().message());
            setAvailability(noDaemon(answer.error().message()));
            return;
        }
        m_capabilities = answer.value();
        setAvailability(Availability::available());
        sendPending();
    });
}

void FreedesktopNotifications::post(const QString& title, const QString& body) {
    if (!m_availability.isAvailable() && m_probe == Probe::Done)
        return;
    if (m_pending.size() == mostPending)
        m_pending.dequeue();
    m_pending.enqueue({title, body});
    if (m_capabilities)
        sendPending();
    else if (m_probe == Probe::Done)
        fetchCapabilities(); // starts the daemon where it is not running yet
}

void FreedesktopNotifications::sendPending() {
    while (!m_pending.isEmpty())
        send(m_pending.dequeue());
}

void FreedesktopNotifications::send(const Notification& notification) {
    const QString ownId = QString::fromLatin1(ownBundleIdentifier);
    QString body = notification.body;
    if (m_capabilities->contains(QStringLiteral("body-markup")))
        body = body.toHtmlEscaped();
    QStringList actions;
    if (m_capabilities->contains(QStringLiteral("actions")))
        actions = {defaultAction, notification.title};
    const QVariantMap hints = {{QStringLiteral("desktop-entry"), ownId}};
    QDBusMessage call = daemonCall("Notify");
    call << QStringLiteral("Norvin Focus") << 0U << ownId << notification.title << body << actions << hints
         << -1;
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        const QDBusPendingReply<uint> answer = *reply;
        if (answer.isError()) {
            logLine(QStringLiteral("FreedesktopNotifications: Not shown: ") + answer.error().message());
            probe();
        } else {
            m_shown.insert(answer.value());
        }
    });
}

void FreedesktopNotifications::onActionInvoked(uint id, const QString& action) {
    if (action == defaultAction && m_shown.contains(id))
        Q_EMIT activated();
}

void FreedesktopNotifications::onNotificationClosed(uint id, uint reason) {
    Q_UNUSED(reason)
    m_shown.remove(id);
}

void FreedesktopNotifications::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    Q_EMIT availabilityChanged();
}

} // namespace norvin
