#include "sound/AmbientGenerators.h"
#include "sound/AmbientSignals.h"

namespace norvin::ambient {

namespace {

/// Noise of its own for each channel, through filters of its own.
struct PinkPair {
    std::array<PinkFilter, 2> filters;

    SoundFrame next(Random& random) {
        return {filters[0].next(random.signedUnit()), filters[1].next(random.signedUnit())};
    }
};

struct FilterPair {
    BandFilter left;
    BandFilter right;

    FilterPair(float pitch, float sharpness)
        : left(pitch, sharpness)
        , right(pitch, sharpness) {}
    void setPitch(float pitch) {
        left.setPitch(pitch);
        right.setPitch(pitch);
    }
    SoundFrame band(const SoundFrame& frame) { return {left.band(frame.left), right.band(frame.right)}; }
    SoundFrame low(const SoundFrame& frame) { return {left.low(frame.left), right.low(frame.right)}; }
};

struct HighPassPair {
    HighPass left;
    HighPass right;

    explicit HighPassPair(float pitch)
        : left(pitch)
        , right(pitch) {}
    SoundFrame next(const SoundFrame& frame) { return {left.next(frame.left), right.next(frame.right)}; }
};

SoundFrame operator*(const SoundFrame& frame, float factor) {
    return {frame.left * factor, frame.right * factor};
}

SoundFrame operator+(const SoundFrame& one, const SoundFrame& other) {
    return {one.left + other.left, one.right + other.right};
}

/// The hiss of countless drops that are far, and the patter of those that are near.
class Rain final : public AmbientGenerator {
public:
    explicit Rain(std::uint64_t seed)
        : m_random(seed) {}

    void render(Block block) override {
        const float strength = m_strength.next();
        m_hiss.towards(strength);
        for (SoundFrame& frame : block) {
            const SoundFrame noise = m_noise.next(m_random);
            frame = m_high.next(m_far.low(noise)) * m_hiss.next() + m_body.band(noise) * 0.25F;
        }
        m_falling.setTimesASecond(110 * strength * strength);
        m_falling.inBlock([&](int offset) {
            const float size = m_random.unit();
            m_drops.strike({.pitch = m_random.pitchBetween(1400, 7000),
                            .decay = m_random.between(0.0012F, 0.006F),
                            .level = m_random.signedUnit() * size * size * 0.45F,
                            .place = Place::at(m_random.signedUnit())},
                           offset);
        });
        m_drops.addTo(block);
    }

private:
    Random m_random;
    PinkPair m_noise;
    FilterPair m_far{7500, 0.6F};
    FilterPair m_body{420, 0.5F};
    HighPassPair m_high{900};
    Drift m_strength{m_random, 0.75F, 1.1F, 4, 14};
    Glide m_hiss{0.9F};
    Chance m_falling{m_random, 80};
    Strikes m_drops{16};
};

/// Gusts that come and go, and a whistle in the stronger ones.
class Wind final : public AmbientGenerator {
public:
    explicit Wind(std::uint64_t seed)
        : m_random(seed) {}

    void render(Block block) override {
        const float gust = m_gust.next() * m_weather.next();
        m_air.setPitch(190 + 420 * gust);
        m_whistle.setPitch(620 + 520 * gust + 90 * m_whim.next());
        m_level.towards(0.25F + gust);
        m_whistling.towards(0.8F * gust * gust * gust);
        const Place place = Place::at(m_side.next());
        for (SoundFrame& frame : block) {
            const SoundFrame noise = m_noise.next(m_random);
            const SoundFrame sum =
                m_steady.next(m_air.low(noise)) * m_level.next() + m_whistle.band(noise) * m_whistling.next();
            frame = {sum.left * place.left, sum.right * place.right};
        }
    }

private:
    Random m_random;
    PinkPair m_noise;
    FilterPair m_air{300, 0.9F};
    FilterPair m_whistle{800, 9};
    HighPassPair m_steady{45};
    Drift m_gust{m_random, 0.2F, 1, 1.2F, 4.5F};
    Drift m_weather{m_random, 0.6F, 1, 9, 25};
    Drift m_whim{m_random, -1, 1, 0.5F, 2};
    Drift m_side{m_random, -0.35F, 0.35F, 5, 12};
    Glide m_level{0.6F};
    Glide m_whistling{0.1F};
};

/// Water that runs up a beach and back, one wave into the other.
class Waves final : public AmbientGenerator {
public:
    explicit Waves(std::uint64_t seed)
        : m_random(seed) {}

    void render(Block block) override {
        const float far = m_far.next();
        for (SoundFrame& frame : block)
            frame = m_sea.low(m_noise.next(m_random)) * far;
        for (Swell& swell : m_swells)
            swell.addTo(block, m_random);
        for (SoundFrame& frame : block)
            frame = m_steady.next(frame);
    }

private:
    struct Swell {
        explicit Swell(float begin)
            : way(begin) {}

        void addTo(Block block, Random& random) {
            way += blockSeconds / length;
            if (way >= 1) {
                way = 0;
                length = random.between(7, 13);
                height = random.between(0.55F, 1);
                place = Place::at(random.between(-0.6F, 0.6F));
            }
            // Slowly up to where it breaks, and long back.
            const float breaking = 0.38F;
            const float up = way < breaking ? way / breaking : (1 - way) / (1 - breaking);
            const float wave = height * up * up * (3 - 2 * up);
            level.towards(wave);
            water.setPitch(way < breaking ? 250 + 3800 * wave * wave : 700 + 3300 * wave);
            foam.towards(way < breaking ? 0.15F * wave * wave : 0.35F * wave);
            for (SoundFrame& frame : block) {
                const float white = random.signedUnit();
                const float sound =
                    water.low(pink.next(white)) * level.next() + spray.next(white) * foam.next() * 0.3F;
                frame.left += sound * place.left;
                frame.right += sound * place.right;
            }
        }

        float way;
        float length = 10;
        float height = 0.8F;
        Place place;
        Glide level;
        Glide foam;
        PinkFilter pink;
        BandFilter water{400, 0.6F};
        HighPass spray{3500};
    };

    Random m_random;
    PinkPair m_noise;
    FilterPair m_sea{320, 0.6F};
    HighPassPair m_steady{35};
    Drift m_far{m_random, 0.2F, 0.35F, 4, 10};
    std::array<Swell, 3> m_swells{Swell(0.05F), Swell(0.4F), Swell(0.72F)};
};

/// Water over stones: bubbles of every size in a soft rush.
class Stream final : public AmbientGenerator {
public:
    explicit Stream(std::uint64_t seed)
        : m_random(seed) {}

    void render(Block block) override {
        m_level.towards(m_flow.next());
        for (SoundFrame& frame : block) {
            const SoundFrame noise = m_noise.next(m_random);
            frame = m_rush.band(noise) * m_level.next() + m_splash.band(noise) * 0.12F;
        }
        m_rising.inBlock([&](int offset) {
            const float pitch = m_random.pitchBetween(320, 2600);
            // Small bubbles sound higher, shorter and fainter.
            m_bubbles.strike(
                {.pitch = pitch,
                 .decay = 9 / pitch,
                 .level = m_random.sign() * m_random.between(0.02F, 0.13F) * std::sqrt(600 / pitch),
                 .place = Place::at(0.9F * m_random.signedUnit()),
                 .rise = m_random.between(1, 40)},
                offset);
        });
        m_bubbles.addTo(block);
    }

private:
    Random m_random;
    PinkPair m_noise;
    FilterPair m_rush{700, 0.5F};
    FilterPair m_splash{3200, 0.6F};
    Drift m_flow{m_random, 0.22F, 0.34F, 2, 7};
    Glide m_level{0.28F};
    Chance m_rising{m_random, 75};
    Strikes m_bubbles{24};
};

/// A low fire: it breathes, hisses and crackles.
class Fire final : public AmbientGenerator {
public:
    explicit Fire(std::uint64_t seed)
        : m_random(seed) {}

    void render(Block block) override {
        m_breath.towards(m_flames.next());
        m_hissing.towards(m_embers.next());
        for (SoundFrame& frame : block) {
            const SoundFrame noise = m_noise.next(m_random);
            frame =
                m_steady.next(m_roar.low(noise)) * m_breath.next() + m_hiss.next(noise) * m_hissing.next();
        }
        // Wood cracks in bursts.
        m_crackling.setTimesASecond(m_temper.next());
        m_crackling.inBlock([&](int offset) {
            const float force = m_random.unit();
            m_cracks.strike({.pitch = m_random.pitchBetween(700, 5200),
                             .decay = m_random.between(0.0008F, 0.0045F),
                             .level = m_random.sign() * (0.03F + 0.27F * force * force * force * force),
                             .place = Place::at(0.7F * m_random.signedUnit())},
                            offset);
        });
        m_cracks.addTo(block);
    }

private:
    Random m_random;
    PinkPair m_noise;
    FilterPair m_roar{170, 0.7F};
    HighPassPair m_hiss{2500};
    HighPassPair m_steady{35};
    Drift m_flames{m_random, 0.5F, 1, 0.4F, 2.2F};
    Drift m_embers{m_random, 0.05F, 0.14F, 1.5F, 6};
    Drift m_temper{m_random, 3, 34, 0.6F, 5};
    Glide m_breath{0.7F};
    Glide m_hissing{0.1F};
    Chance m_crackling{m_random, 10};
    Strikes m_cracks{12};
};

} // namespace

std::unique_ptr<AmbientGenerator> makeNatureSound(AmbientSound sound, std::uint64_t seed) {
    switch (sound) {
    case AmbientSound::rain:
        return std::make_unique<Rain>(seed);
    case AmbientSound::wind:
        return std::make_unique<Wind>(seed);
    case AmbientSound::waves:
        return std::make_unique<Waves>(seed);
    case AmbientSound::stream:
        return std::make_unique<Stream>(seed);
    case AmbientSound::fire:
        return std::make_unique<Fire>(seed);
    default:
        return nullptr;
    }
}

} // namespace norvin::ambient
