#include "sound/AmbientMixer.h"

#include "sound/AmbientGenerator.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace norvin {

namespace {

constexpr std::chrono::milliseconds volumeFade{60};
// Short against every fade: within it a gain runs straight.
constexpr std::int64_t gainPiece = 128;
constexpr std::int64_t placeMask = AmbientMixer::rememberedFrames - 1;

// Of two sounds that have nothing to do with each other, the one that goes and the one that comes are
// together as loud as either.
float equalPower(float level) {
    return std::sin(level * std::numbers::pi_v<float> / 2);
}

} // namespace

float AmbientMixer::Ramp::at(std::int64_t frame) const {
    if (frame >= last)
        return end;
    if (frame <= first)
        return begin;
    return begin + (end - begin) * static_cast<float>(frame - first) / static_cast<float>(last - first);
}

AmbientMixer::AmbientMixer(int sampleRate, std::optional<std::uint64_t> seed)
    : m_sampleRate(sampleRate)
    , m_seed(seed ? *seed : std::random_device()()) {}

AmbientMixer::~AmbientMixer() = default;

std::int64_t AmbientMixer::framesIn(std::chrono::milliseconds length) const {
    return length.count() * m_sampleRate / 1000;
}

bool AmbientMixer::setSound(std::optional<AmbientSound> sound, std::chrono::milliseconds fade) {
    if (sound == m_wanted)
        return false;
    m_wanted = sound;
    m_fade = fade;
    return true;
}

void AmbientMixer::reset() {
    m_voices.clear();
    m_volume = {.begin = m_wantedVolume, .end = m_wantedVolume};
}

void AmbientMixer::takeUpChanges(std::int64_t first) {
    if (m_wantedVolume != m_volume.end)
        m_volume = {first, first + framesIn(volumeFade), m_volume.at(first), m_wantedVolume};
    bool isThere = false;
    for (Voice& voice : m_voices) {
        const float level = voice.sound == m_wanted ? 1.0F : 0.0F;
        isThere = isThere || voice.sound == m_wanted;
        if (voice.level.end != level)
            voice.level = {first, first + framesIn(m_fade), voice.level.at(first), level};
    }
    if (isThere || !m_wanted)
        return;
    m_voices.push_back({.sound = *m_wanted,
                        .generator = makeAmbientGenerator(*m_wanted, ++m_seed),
                        .remembered = std::vector<SoundFrame>(rememberedFrames),
                        .start = first,
                        .level = {first, first + framesIn(m_fade), 0, 1}});
}

// Not as soon as it is silent: a little of it may be asked for again.
void AmbientMixer::forgetSilent(std::int64_t first) {
    std::erase_if(m_voices, [first](const Voice& voice) {
        return voice.level.end == 0 && voice.level.last + rememberedFrames <= first;
    });
}

bool AmbientMixer::fill(std::int64_t first, std::span<SoundFrame> frames) {
    takeUpChanges(first);
    forgetSilent(first);
    std::ranges::fill(frames, SoundFrame{});
    for (Voice& voice : m_voices)
        add(voice, first, frames);
    const auto end = first + static_cast<std::int64_t>(frames.size());
    return std::ranges::any_of(
        m_voices, [end](const Voice& voice) { return voice.level.end > 0 || voice.level.last > end; });
}

void AmbientMixer::add(Voice& voice, std::int64_t first, std::span<SoundFrame> frames) const {
    const auto end = first + static_cast<std::int64_t>(frames.size());
    for (std::int64_t frame = std::max(first, voice.start); frame < end;) {
        const std::int64_t pieceEnd = std::min(end, frame + gainPiece);
        if (voice.level.end == 0 && frame >= voice.level.last)
            return;
        while (voice.made < pieceEnd - voice.start) {
            SoundFrame* const place = &voice.remembered[static_cast<size_t>(voice.made & placeMask)];
            voice.generator->render(AmbientGenerator::Block(place, AmbientGenerator::blockFrames));
            voice.made += AmbientGenerator::blockFrames;
        }
        float gain = equalPower(voice.level.at(frame)) * m_volume.at(frame);
        const float step = (equalPower(voice.level.at(pieceEnd)) * m_volume.at(pieceEnd) - gain) /
                           static_cast<float>(pieceEnd - frame);
        for (; frame < pieceEnd; ++frame) {
            const SoundFrame& made = voice.remembered[static_cast<size_t>((frame - voice.start) & placeMask)];
            SoundFrame& out = frames[static_cast<size_t>(frame - first)];
            out.left += made.left * gain;
            out.right += made.right * gain;
            gain += step;
        }
    }
}

} // namespace norvin
