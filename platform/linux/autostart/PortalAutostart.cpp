#include "platform/linux/autostart/PortalAutostart.h"

#include "platform/Log.h"
#include "platform/Preferences.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace norvin {

namespace {

const QString desktopPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString desktopPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

} // namespace

PortalAutostart::PortalAutostart(const QDBusConnection& sessionBus, Preferences& preferences, QObject* parent)
    : Autostart(parent)
    , m_bus(sessionBus)
    , m_preferences(preferences)
    , m_availability(sessionBus.isConnected()
                         ? Availability::available()
                         : Availability::unavailable(QStringLiteral("health_no_session_bus"))) {}

bool PortalAutostart::isEnabled() const {
    return m_preferences.value(QLatin1String(grantedKey)).value_or(QVariant(false)).toBool();
}

void PortalAutostart::setEnabled(bool enabled) {
    if (!m_bus.isConnected()) {
        Q_EMIT changed();
        return;
    }
    // The answer may come before that of the call itself: it is awaited where it will be sent from.
    const QString token = QStringLiteral("norvin_autostart_%1").arg(++m_requests);
    QString sender = m_bus.baseService().mid(1);
    const QString expected =
        desktopPortalPath + QStringLiteral("/request/") + sender.replace(u'.', u'_') + u'/' + token;
    follow(expected);
    QDBusMessage call = QDBusMessage::createMethodCall(desktopPortal, desktopPortalPath,
                                                       QStringLiteral("org.freedesktop.portal.Background"),
                                                       QStringLiteral("RequestBackground"));
    call << QString()
         << QVariantMap{{QStringLiteral("handle_token"), token},
                        {QStringLiteral("reason"), qtTrId("autostart_reason")},
                        {QStringLiteral("autostart"), enabled},
                        {QStringLiteral("dbus-activatable"), false},
                        {QStringLiteral("commandline"),
                         QStringList{QStringLiteral("norvin-focus"), QStringLiteral("--hidden")}}};
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, expected] {
        reply->deleteLater();
        // The user may have changed their mind meanwhile.
        if (m_request != expected)
            return;
        const QDBusPendingReply<QDBusObjectPath> answer = *reply;
        if (answer.isError())
            fail(answer.error().message());
        else
            follow(answer.value().path());
    });
}

void PortalAutostart::follow(const QString& request) {
    if (request == m_request)
        return;
    const auto connection = [this](bool isWanted) {
        const QString signal = QStringLiteral("Response");
        const char* const slot = SLOT(onResponse(uint, QVariantMap, QDBusMessage));
        if (isWanted)
            m_bus.connect(desktopPortal, m_request, requestInterface, signal, this, slot);
        else
            m_bus.disconnect(desktopPortal, m_request, requestInterface, signal, this, slot);
    };
    if (!m_request.isEmpty())
        connection(false);
    m_request = request;
    connection(true);
}

void PortalAutostart::fail(const QString& detail) {
    logLine(QStringLiteral("PortalAutostart: ") + detail);
    m_availability = Availability::unavailable(QStringLiteral("autostart_no_portal"), detail);
    Q_EMIT changed();
}

void PortalAutostart::onResponse(uint response, const QVariantMap& results, const QDBusMessage&) {
    m_availability = Availability::available();
    // 0 is consent; with anything else everything stays as it was.
    if (response == 0)
        m_preferences.setValue(QLatin1String(grantedKey),
                               results.value(QStringLiteral("autostart")).toBool());
    Q_EMIT changed();
}

} // namespace norvin
