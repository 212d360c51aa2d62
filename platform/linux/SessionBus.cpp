#include "platform/linux/SessionBus.h"

#include <QFile>

namespace norvin {

QDBusConnection sessionBus() {
    const QString usualPlace = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") && !QFile::exists(usualPlace))
        return QDBusConnection(QStringLiteral("no session bus"));
    return QDBusConnection::sessionBus();
}

} // namespace norvin
