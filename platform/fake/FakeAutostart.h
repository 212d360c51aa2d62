#pragma once

#include "platform/Autostart.h"

#include <utility>

namespace norvin {

/// Does what it is told, unless it is made unavailable.
class FakeAutostart final : public Autostart {
    Q_OBJECT
public:
    using Autostart::Autostart;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool isEnabled() const override { return m_isEnabled; }
    void setEnabled(bool enabled) override {
        if (m_availability.isAvailable())
            m_isEnabled = enabled;
        Q_EMIT changed();
    }

    void setAvailability(Availability availability) {
        m_availability = std::move(availability);
        Q_EMIT changed();
    }

private:
    Availability m_availability = Availability::available();
    bool m_isEnabled = false;
};

} // namespace norvin
