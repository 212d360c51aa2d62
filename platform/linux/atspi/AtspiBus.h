#pragma once

#include "platform/Clock.h"
#include "platform/linux/atspi/AtspiTransport.h"

#include <QDBusConnection>
#include <QObject>

#include <chrono>
#include <memory>
#include <optional>

namespace norvin {

class BusGreeting;

/// The accessibility services of a session: their switch, and the connection to their bus. Nothing here
/// waits; the connection is made ahead of its use, while the switch is on, and again after it was lost. Main
/// thread only.
class AtspiBus final : public QObject {
    Q_OBJECT
public:
    /// Asks for the switch, which starts the services where the session can start them.
    /// @param clock outlives this
    AtspiBus(QDBusConnection sessionBus, Clock& clock, QObject* parent = nullptr);
    ~AtspiBus() override;

    /// None until the services have answered, and while there are none.
    [[nodiscard]] std::optional<bool> isEnabled() const { return m_isEnabled; }
    /// Whether this session is known to have no accessibility services.
    [[nodiscard]] bool isMissing() const { return m_isMissing; }
    /// Turns the switch, which the desktop keeps beyond this session. enabledChanged() or switchFailed()
    /// follows unless it stood so already.
    void setEnabled(bool isEnabled);

    /// The connection; null while there is none. Tries again then what failed 10 s ago or more.
    [[nodiscard]] std::shared_ptr<AtspiTransport> transport();

Q_SIGNALS:
    /// isEnabled() or isMissing() changed.
    void enabledChanged();
    /// There is a connection to the bus, or it was lost.
    void connectionChanged();
    void switchFailed(const QString& message);

private Q_SLOTS:
    void onPropertiesChanged(const QString& interface);
    void onDisconnected();

private:
    void fetchEnabled();
    void setState(std::optional<bool> isEnabled, bool isMissing);
    void fetchAddress();
    void greet(const QString& address);
    void connectTo(const QString& address);
    void drop();
    void failConnecting(const QString& reason);

    QDBusConnection m_sessionBus;
    Clock& m_clock;
    std::optional<bool> m_isEnabled;
    bool m_isMissing = false;
    bool m_isFetching = false;
    bool m_isStale = false;
    bool m_isConnecting = false;
    // When what failed may be tried again.
    std::chrono::milliseconds m_nextTry{};
    QString m_address;
    QString m_connectionName;
    std::unique_ptr<BusGreeting> m_greeting;
    std::unique_ptr<ClockTimer> m_greetingTimeout;
    std::shared_ptr<AtspiTransport> m_transport;
};

} // namespace norvin
