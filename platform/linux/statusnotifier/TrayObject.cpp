#include "platform/linux/statusnotifier/TrayObject.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

namespace norvin {

bool TrayObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    QDBusMessage answer;
    if (message.interface() == QLatin1String("org.freedesktop.DBus.Properties"))
        answer = propertiesFor(message);
    else if (message.interface().isEmpty() || message.interface() == QLatin1String(m_interfaceName))
        answer = answerTo(message);
    if (answer.type() == QDBusMessage::InvalidMessage)
        return false;
    if (message.isReplyRequired())
        connection.send(answer);
    return true;
}

QDBusMessage TrayObject::propertiesFor(const QDBusMessage& call) {
    const QVariantMap own = properties();
    if (call.member() == QLatin1String("GetAll"))
        return call.createReply(QVariant(own));
    const QString name = call.arguments().value(1).toString();
    if (call.member() != QLatin1String("Get") || !own.contains(name))
        return call.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such property"));
    handlePropertyRead(name);
    return call.createReply(QVariant::fromValue(QDBusVariant(own.value(name))));
}

} // namespace norvin
