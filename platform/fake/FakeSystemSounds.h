#pragma once

#include "platform/SystemSounds.h"

#include <vector>

namespace norvin {

/// Keeps what would have been heard.
class FakeSystemSounds final : public SystemSounds {
    Q_OBJECT
public:
    struct Sound {
        QString name;
        double volume = 0.0;

        bool operator==(const Sound&) const = default;
    };

    using SystemSounds::SystemSounds;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    void play(const QString& name, double volume) override {
        if (m_availability.isAvailable())
            m_played.push_back({name, volume});
    }
    void beep() override {
        if (m_availability.isAvailable())
            ++m_beeps;
    }

    /// Sounds by play(), in order; beeps are only counted.
    [[nodiscard]] const std::vector<Sound>& played() const { return m_played; }
    [[nodiscard]] int beeps() const { return m_beeps; }
    void clear() {
        m_played.clear();
        m_beeps = 0;
    }
    /// Emits availabilityChanged() on a change.
    void setAvailability(const Availability& availability) {
        if (m_availability == availability)
            return;
        m_availability = availability;
        Q_EMIT availabilityChanged();
    }

private:
    Availability m_availability = Availability::available();
    std::vector<Sound> m_played;
    int m_beeps = 0;
};

} // namespace norvin
