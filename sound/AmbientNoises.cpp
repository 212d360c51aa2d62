#include "sound/AmbientGenerators.h"
#include "sound/AmbientSignals.h"

namespace norvin::ambient {

namespace {

// The channels have noise of their own: it seems to come from all around.
struct WhiteColour {
    float next(float white) { return white; }
};

struct PinkColour {
    PinkFilter pink;
    HighPass steady{8};

    float next(float white) { return steady.next(pink.next(white)); }
};

struct BrownColour {
    LowPass brown{18};
    HighPass steady{12};

    float next(float white) { return steady.next(brown.next(white)); }
};

// The ear is deaf for the lowest and dull for the highest pitches, and sharp at 3,500 Hz: as much more and
// less of each makes a noise of which no part stands out.
struct GreyColour {
    LowPass deep{60};
    LowPass low{350};
    BandFilter sharp{3500, 0.9F};
    HighPass high{9000};
    HighPass steady{15};

    float next(float white) {
        const float sum = white + 9 * deep.next(white) + 1.6F * low.next(white) - 0.55F * sharp.band(white) +
                          1.4F * high.next(white);
        return steady.next(sum);
    }
};

template <typename Colour>
class Noise final : public AmbientGenerator {
public:
    explicit Noise(std::uint64_t seed)
        : m_random(seed) {}

    void render(Block block) override {
        for (SoundFrame& frame : block)
            frame = {m_left.next(m_random.signedUnit()), m_right.next(m_random.signedUnit())};
    }

private:
    Random m_random;
    Colour m_left;
    Colour m_right;
};

/// Air that is pushed, and the hum of what pushes it.
class Fan final : public AmbientGenerator {
public:
    explicit Fan(std::uint64_t seed)
        : m_random(seed) {}

    void render(Block block) override {
        const float speed = m_speed.next();
        for (size_t i = 0; i < m_hum.size(); ++i) {
            m_hum[i].setPitch(48 * speed * static_cast<float>(i + 1));
            m_hum[i].settle();
        }
        for (SoundFrame& frame : block) {
            const float hum = 0.05F * m_hum[0].next() + 0.035F * m_hum[1].next() + 0.012F * m_hum[2].next();
            frame = {hum + air(0), hum + air(1)};
        }
    }

private:
    float air(size_t channel) {
        return m_steady[channel].next(m_air[channel].low(m_pink[channel].next(m_random.signedUnit())));
    }

    Random m_random;
    std::array<PinkFilter, 2> m_pink;
    std::array<BandFilter, 2> m_air{BandFilter(850, 0.6F), BandFilter(850, 0.6F)};
    std::array<HighPass, 2> m_steady{HighPass(40), HighPass(40)};
    Drift m_speed{m_random, 0.99F, 1.01F, 3, 9};
    std::array<Tone, 3> m_hum{Tone(48, m_random), Tone(96, m_random), Tone(144, m_random)};
};

} // namespace

std::unique_ptr<AmbientGenerator> makeNoise(AmbientSound sound, std::uint64_t seed) {
    switch (sound) {
    case AmbientSound::whiteNoise:
        return std::make_unique<Noise<WhiteColour>>(seed);
    case AmbientSound::pinkNoise:
        return std::make_unique<Noise<PinkColour>>(seed);
    case AmbientSound::brownNoise:
        return std::make_unique<Noise<BrownColour>>(seed);
    case AmbientSound::greyNoise:
        return std::make_unique<Noise<GreyColour>>(seed);
    case AmbientSound::fan:
        return std::make_unique<Fan>(seed);
    default:
        return nullptr;
    }
}

} // namespace norvin::ambient
