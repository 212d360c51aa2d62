#pragma once

#include "platform/AudioOutput.h"
#include "platform/Clock.h"

namespace norvin {

/// Keeps what would have been heard, and when; plays as fast as its clock goes.
class FakeAudioOutput final : public AudioOutput {
    Q_OBJECT
public:
    struct Sound {
        std::chrono::milliseconds start; ///< by the clock's monotonic()
        std::vector<float> samples;
    };

    explicit FakeAudioOutput(const Clock& clock, int sampleRate = 44100, QObject* parent = nullptr);

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] int sampleRate() const override { return m_sampleRate; }
    void queue(std::vector<float> samples) override;

    /// In the order of their beginnings.
    [[nodiscard]] const std::vector<Sound>& played() const { return m_played; }
    /// Emits availabilityChanged() on a change.
    void setAvailability(const Availability& availability);

private:
    const Clock& m_clock;
    int m_sampleRate;
    Availability m_availability = Availability::available();
    std::vector<Sound> m_played;
    std::chrono::milliseconds m_end{0};
};

} // namespace norvin
