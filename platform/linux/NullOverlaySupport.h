#pragma once

#include "platform/OverlaySupport.h"

#include <utility>

namespace norvin {

/// For desktops without overlays.
class NullOverlaySupport final : public OverlaySupport {
public:
    explicit NullOverlaySupport(Availability availability)
        : m_availability(std::move(availability)) {}

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool isBlending() const override { return false; }

private:
    Availability m_availability;
};

} // namespace norvin
