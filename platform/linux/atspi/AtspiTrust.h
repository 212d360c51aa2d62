#pragma once

#include "platform/AccessibilityTrust.h"

#include <QDBusConnection>

namespace norvin {

/// Asks the session's accessibility bus for its IsEnabled switch. No session bus and no answer count as off.
class AtspiTrust final : public AccessibilityTrust {
public:
    explicit AtspiTrust(QDBusConnection sessionBus);

    void query(std::function<void(bool isTrusted)> answer) override;

private:
    QDBusConnection m_sessionBus;
};

} // namespace norvin
