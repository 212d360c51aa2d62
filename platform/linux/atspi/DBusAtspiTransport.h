#pragma once

#include "platform/linux/atspi/AtspiTransport.h"

#include <QDBusConnection>
#include <QObject>

namespace norvin {

/// A connection to the accessibility bus.
class DBusAtspiTransport final : public AtspiTransport {
public:
    explicit DBusAtspiTransport(QDBusConnection accessibilityBus);

    [[nodiscard]] std::vector<AtspiReply> call(const std::vector<AtspiCall>& calls,
                                               std::chrono::milliseconds timeout) override;
    void awaitAnswer(const QString& service, std::function<void()> answers) override;

private:
    QDBusConnection m_bus;
    // Owns what is still waited for.
    QObject m_waiting;
};

} // namespace norvin
