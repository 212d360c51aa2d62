#pragma once

#include "platform/OverlaySupport.h"

namespace norvin {

/// Says what a test wants.
class FakeOverlaySupport final : public OverlaySupport {
public:
    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool isBlending() const override { return m_isBlending; }

    void setAvailability(const Availability& availability) { m_availability = availability; }
    void setBlending(bool isBlending) { m_isBlending = isBlending; }

private:
    Availability m_availability = Availability::available();
    bool m_isBlending = true;
};

} // namespace norvin
