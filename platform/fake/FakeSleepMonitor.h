#pragma once

#include "platform/SleepMonitor.h"

namespace norvin {

/// A machine that sleeps when a test says so.
class FakeSleepMonitor final : public SleepMonitor {
    Q_OBJECT
public:
    using SleepMonitor::SleepMonitor;

    [[nodiscard]] Availability availability() const override { return m_availability; }

    void emitWillSleep() { Q_EMIT willSleep(); }
    void emitDidWake() { Q_EMIT didWake(); }
    /// Emits availabilityChanged() on a change.
    void setAvailability(const Availability& availability) {
        if (m_availability == availability)
            return;
        m_availability = availability;
        Q_EMIT availabilityChanged();
    }

private:
    Availability m_availability = Availability::available();
};

} // namespace norvin
