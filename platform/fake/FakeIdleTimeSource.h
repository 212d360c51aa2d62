#pragma once

#include "platform/IdleTimeSource.h"

namespace norvin {

/// An idle time that a test sets.
class FakeIdleTimeSource final : public IdleTimeSource {
public:
    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] std::optional<std::chrono::milliseconds> timeSinceLastInput() override {
        ++m_reads;
        return m_availability.isAvailable() ? m_idle : std::nullopt;
    }

    /// None: an available source that cannot tell at this moment.
    void setTimeSinceLastInput(std::optional<std::chrono::milliseconds> idle) { m_idle = idle; }
    void setAvailability(const Availability& availability) { m_availability = availability; }
    /// How often timeSinceLastInput() was called.
    [[nodiscard]] int reads() const { return m_reads; }

private:
    Availability m_availability = Availability::available();
    std::optional<std::chrono::milliseconds> m_idle = std::chrono::milliseconds::zero();
    int m_reads = 0;
};

} // namespace norvin
