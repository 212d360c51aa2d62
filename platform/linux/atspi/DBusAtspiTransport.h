#pragma once

#include "platform/linux/atspi/AtspiTransport.h"

#include <QDBusConnection>

namespace norvin {

/// A connection to the accessibility bus.
class DBusAtspiTransport final : public AtspiTransport {
public:
    explicit DBusAtspiTransport(QDBusConnection accessibilityBus);

    [[nodiscard]] AtspiReply call(const AtspiCall& call, std::chrono::milliseconds timeout) override;

private:
    QDBusConnection m_bus;
};

} // namespace norvin
