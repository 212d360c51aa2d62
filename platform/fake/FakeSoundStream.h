#pragma once

#include "platform/SoundStream.h"

#include <chrono>
#include <vector>

namespace norvin {

/// Plays as far as a test listens, always with the same length of sound made ahead.
class FakeSoundStream final : public SoundStream {
    Q_OBJECT
public:
    /// What is made ahead; what comes after the margin of it can still be replaced.
    static constexpr std::chrono::milliseconds lead{2200};
    static constexpr std::chrono::milliseconds margin{60};

    explicit FakeSoundStream(int sampleRate = 44100, QObject* parent = nullptr);

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] int sampleRate() const override { return m_sampleRate; }
    void setSource(SoundSource* source) override;
    void refresh() override;

    /// Lets sound be heard for that long. @return all of it, with the silences
    [[nodiscard]] std::vector<SoundFrame> hear(std::chrono::milliseconds length);
    /// Whether there is sound under way.
    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }
    /// Emits availabilityChanged() on a change. A stream that becomes available again begins anew.
    void setAvailability(const Availability& availability);

private:
    void begin();
    void makeAhead();
    [[nodiscard]] std::int64_t framesIn(std::chrono::milliseconds length) const;

    int m_sampleRate;
    Availability m_availability = Availability::available();
    SoundSource* m_source = nullptr;
    bool m_isPlaying = false;
    bool m_goesOn = false;
    bool m_isWanted = false;
    std::vector<SoundFrame> m_made;
    std::int64_t m_heard = 0;
};

} // namespace norvin
