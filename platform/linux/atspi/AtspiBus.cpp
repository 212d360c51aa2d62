#include "platform/linux/atspi/AtspiBus.h"

#include "platform/Log.h"
#include "platform/linux/atspi/BusGreeting.h"
#include "platform/linux/atspi/DBusAtspiTransport.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QSignalBlocker>

namespace norvin {

using namespace std::chrono_literals;

namespace {

const QString service = QStringLiteral("org.a11y.Bus");
const QString path = QStringLiteral("/org/a11y/bus");
const QString statusInterface = QStringLiteral("org.a11y.Status");
const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString isEnabledProperty = QStringLiteral("IsEnabled");
const QString localPath = QStringLiteral("/org/freedesktop/DBus/Local");
const QString localInterface = QStringLiteral("org.freedesktop.DBus.Local");

constexpr auto beforeNextTry = 10s;
constexpr auto longestGreeting = 5s;

QDBusMessage call(const QString& interface, const char* member) {
    return QDBusMessage::createMethodCall(service, path, interface, QString::fromLatin1(member));
}

bool meansMissing(const QDBusError& error) {
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
    case QDBusError::UnknownInterface:
    case QDBusError::UnknownObject:
    case QDBusError::Disconnected:
        return true;
    default:
        return error.name().startsWith(QLatin1String("org.freedesktop.DBus.Error.Spawn")) ||
               error.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
    }
}

} // namespace

AtspiBus::AtspiBus(QDBusConnection sessionBus, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_sessionBus(std::move(sessionBus))
    , m_clock(clock) {
    if (!m_sessionBus.isConnected()) {
        m_isMissing = true;
        return;
    }
    auto* watcher =
        new QDBusServiceWatcher(service, m_sessionBus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] { fetchEnabled(); });
    // Without the service's name in the rule: looking up its owner would be a call that waits. What is said
    // is not taken from the signal but asked for.
    m_sessionBus.connect(QString(), path, properties, QStringLiteral("PropertiesChanged"), this,
                         SLOT(onPropertiesChanged(QString)));
    fetchEnabled();
}

AtspiBus::~AtspiBus() {
    const QSignalBlocker quiet(this);
    drop();
}

void AtspiBus::onPropertiesChanged(const QString& interface) {
    if (interface == statusInterface)
        fetchEnabled();
}

void AtspiBus::fetchEnabled() {
    if (m_isFetching) {
        m_isStale = true;
        return;
    }
    m_isFetching = true;
    const QDBusMessage message = call(properties, "Get") << statusInterface << isEnabledProperty;
    auto* watcher = new QDBusPendingCallWatcher(m_sessionBus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        m_isFetching = false;
        if (std::exchange(m_isStale, false)) {
            fetchEnabled();
            return;
        }
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isError()) {
            m_nextTry = m_clock.monotonic() + beforeNextTry;
            if (!m_isMissing || !meansMissing(reply.error()))
                logLine(QStringLiteral("AtspiBus: No accessibility services: ") + reply.error().message());
            setState({}, meansMissing(reply.error()));
            return;
        }
        setState(reply.value().variant().toBool(), false);
    });
}

void AtspiBus::setState(std::optional<bool> isEnabled, bool isMissing) {
    const bool isChanged = isEnabled != m_isEnabled || isMissing != m_isMissing;
    m_isEnabled = isEnabled;
    m_isMissing = isMissing;
    // Services that were started anew have another bus; browsers on the former one stay there as long as it
    // lives, so it is left only for a new address.
    if (isEnabled == true)
        fetchAddress();
    else if (isEnabled == false)
        drop();
    if (isChanged)
        Q_EMIT enabledChanged();
}

void AtspiBus::setEnabled(bool isEnabled) {
    if (!m_sessionBus.isConnected()) {
        Q_EMIT switchFailed(m_sessionBus.lastError().message());
        return;
    }
    const QDBusMessage message = call(properties, "Set") << statusInterface << isEnabledProperty
                                                         << QVariant::fromValue(QDBusVariant(isEnabled));
    auto* watcher = new QDBusPendingCallWatcher(m_sessionBus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (watcher->isError()) {
            logLine(QStringLiteral("AtspiBus: The switch was not turned: ") + watcher->error().message());
            Q_EMIT switchFailed(watcher->error().message());
            return;
        }
        fetchEnabled();
    });
}

std::shared_ptr<AtspiTransport> AtspiBus::transport() {
    if (!m_transport && m_sessionBus.isConnected() && m_clock.monotonic() >= m_nextTry) {
        if (m_isEnabled == true)
            fetchAddress();
        else if (!m_isEnabled && !m_isFetching)
            fetchEnabled();
    }
    return m_transport;
}

void AtspiBus::fetchAddress() {
    if (m_isConnecting)
        return;
    m_isConnecting = true;
    auto* watcher = new QDBusPendingCallWatcher(m_sessionBus.asyncCall(call(service, "GetAddress")), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QString> reply = *watcher;
        if (reply.isError())
            failConnecting(reply.error().message());
        else if (m_isEnabled == false || (m_transport && reply.value() == m_address))
            m_isConnecting = false;
        else
            greet(reply.value());
    });
}

void AtspiBus::greet(const QString& address) {
    // A connection of QtDBus waits for the bus to answer, and holds up all other connections meanwhile.
    m_greeting = std::make_unique<BusGreeting>(address);
    connect(m_greeting.get(), &BusGreeting::finished, this, [this, address](bool answers) {
        m_greeting.release()->deleteLater(); // it is still in its signal
        m_greetingTimeout.reset();
        if (answers)
            connectTo(address);
        else
            failConnecting(QStringLiteral("nobody listens at ") + address);
    });
    m_greetingTimeout = m_clock.after(longestGreeting, [this, address] {
        m_greeting.reset();
        failConnecting(QStringLiteral("no answer at ") + address);
    });
}

void AtspiBus::connectTo(const QString& address) {
    m_isConnecting = false;
    if (m_isEnabled == false)
        return;
    drop();
    static int count = 0;
    m_connectionName = QStringLiteral("norvin-accessibility-%1").arg(++count);
    QDBusConnection bus = QDBusConnection::connectToBus(address, m_connectionName);
    if (!bus.isConnected()) {
        QDBusConnection::disconnectFromBus(m_connectionName);
        m_connectionName.clear();
        failConnecting(bus.lastError().message());
        return;
    }
    bus.connect(QString(), localPath, localInterface, QStringLiteral("Disconnected"), this,
                SLOT(onDisconnected()));
    m_address = address;
    m_transport = std::make_shared<DBusAtspiTransport>(bus);
    Q_EMIT connectionChanged();
}

void AtspiBus::onDisconnected() {
    if (m_connectionName.isEmpty())
        return; // left by ourselves
    logLine(QStringLiteral("AtspiBus: The accessibility bus has left"));
    drop();
    m_nextTry = {};
    if (m_isEnabled == true)
        fetchEnabled();
}

void AtspiBus::drop() {
    if (m_connectionName.isEmpty())
        return;
    m_transport.reset();
    const QString name = std::exchange(m_connectionName, QString());
    QDBusConnection::disconnectFromBus(name);
    m_address.clear();
    Q_EMIT connectionChanged();
}

void AtspiBus::failConnecting(const QString& reason) {
    m_isConnecting = false;
    m_nextTry = m_clock.monotonic() + beforeNextTry;
    logLine(QStringLiteral("AtspiBus: No accessibility bus: ") + reason);
}

} // namespace norvin
