#pragma once

#include <QDBusConnection>

namespace norvin {

/// The user's session bus, if one was announced to this process or stands at its usual place; else a
/// connection that is not connected. Never starts a bus of its own, as libdbus would.
[[nodiscard]] QDBusConnection sessionBus();

} // namespace norvin
