#pragma once

#include "platform/SoundStream.h"
#include "sound/AmbientSound.h"

#include <chrono>
#include <list>
#include <memory>
#include <optional>
#include <vector>

namespace norvin {

class AmbientGenerator;

/// Fades from one ambient sound to the next and to silence. Remembers the last seconds of what it made, so
/// that a fade can still begin in what is made but not heard yet, without a step in the sound. Main thread
/// only.
class AmbientMixer final : public SoundSource {
public:
    /// What may be asked for again is never longer ago than this.
    static constexpr std::int64_t rememberedFrames = 1 << 17;

    /// @param seed what the course of the sounds depends on; by itself another one for every object
    explicit AmbientMixer(int sampleRate, std::optional<std::uint64_t> seed = std::nullopt);
    ~AmbientMixer() override;

    /// @param sound none for silence
    /// @return whether that is something else than before
    [[nodiscard]] bool setSound(std::optional<AmbientSound> sound, std::chrono::milliseconds fade);
    /// @param amplitude 0.0 to 1.0, what everything is multiplied by
    void setVolume(double amplitude) { m_wantedVolume = static_cast<float>(amplitude); }

    [[nodiscard]] bool hasSound() const override { return m_wanted.has_value(); }
    void reset() override;
    bool fill(std::int64_t first, std::span<SoundFrame> frames) override;

private:
    /// From one value to another between two frames, and steady before and after.
    struct Ramp {
        std::int64_t first = 0;
        std::int64_t last = 0;
        float begin = 0;
        float end = 0;

        [[nodiscard]] float at(std::int64_t frame) const;
    };
    struct Voice {
        AmbientSound sound;
        std::unique_ptr<AmbientGenerator> generator;
        std::vector<SoundFrame> remembered;
        std::int64_t start = 0;
        std::int64_t made = 0; // frames since the start
        Ramp level;
    };

    void takeUpChanges(std::int64_t first);
    void forgetSilent(std::int64_t first);
    void add(Voice& voice, std::int64_t first, std::span<SoundFrame> frames) const;
    [[nodiscard]] std::int64_t framesIn(std::chrono::milliseconds length) const;

    int m_sampleRate;
    std::uint64_t m_seed;
    std::optional<AmbientSound> m_wanted;
    std::chrono::milliseconds m_fade{0};
    float m_wantedVolume = 1;
    Ramp m_volume;
    std::list<Voice> m_voices; // the last one is the one that is wanted, if any is
};

} // namespace norvin
