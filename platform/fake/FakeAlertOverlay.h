#pragma once

#include "platform/AlertOverlay.h"

namespace norvin {

/// Keeps whether the alert is up and how often it was put up.
class FakeAlertOverlay final : public AlertOverlay {
    Q_OBJECT
public:
    using AlertOverlay::AlertOverlay;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    void present() override {
        if (m_isShown || !m_availability.isAvailable())
            return;
        m_isShown = true;
        ++m_presentations;
    }
    void dismiss() override { m_isShown = false; }

    [[nodiscard]] bool isShown() const { return m_isShown; }
    /// Entrances since the start.
    [[nodiscard]] int presentations() const { return m_presentations; }
    void setAvailability(const Availability& availability) { m_availability = availability; }

private:
    Availability m_availability = Availability::available();
    bool m_isShown = false;
    int m_presentations = 0;
};

} // namespace norvin
