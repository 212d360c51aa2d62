#pragma once

#include "platform/IdleTimeSource.h"

namespace norvin {

/// A desktop that does not tell how long its user has been idle.
class NullIdleTimeSource final : public IdleTimeSource {
public:
    explicit NullIdleTimeSource(Availability reason)
        : m_availability(std::move(reason)) {}

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] std::optional<std::chrono::milliseconds> timeSinceLastInput() override { return {}; }

private:
    Availability m_availability;
};

} // namespace norvin
