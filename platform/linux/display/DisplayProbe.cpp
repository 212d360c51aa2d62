#include "platform/linux/display/DisplayProbe.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <xcb/xcb.h>

namespace norvin {

namespace {

bool isX11Reachable() {
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool reachable = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return reachable;
}

bool isWaylandReachable() {
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return false;
    const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    return QFileInfo::exists(QFile::decodeName(path));
}

} // namespace

bool isDisplayReachable() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && !platform.startsWith("xcb") && !platform.startsWith("wayland"))
        return true; // a platform of Qt's own that needs no display
    return isX11Reachable() || isWaylandReachable();
}

} // namespace norvin
