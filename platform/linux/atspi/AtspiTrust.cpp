#include "platform/linux/atspi/AtspiTrust.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace norvin {

AtspiTrust::AtspiTrust(QDBusConnection sessionBus)
    : m_sessionBus(std::move(sessionBus)) {}

void AtspiTrust::query(std::function<void(bool isTrusted)> answer) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << QStringLiteral("org.a11y.Status") << QStringLiteral("IsEnabled");
    auto* watcher = new QDBusPendingCallWatcher(m_sessionBus.asyncCall(message));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [watcher, answer = std::move(answer)] {
                         const QDBusPendingReply<QDBusVariant> reply = *watcher;
                         answer(!reply.isError() && reply.value().variant().toBool());
                         watcher->deleteLater();
                     });
}

} // namespace norvin
