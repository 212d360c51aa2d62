#include "sound/AmbientGenerators.h"
#include "sound/AmbientSignals.h"

namespace norvin::ambient {

namespace {

// Both ears hear the same pitches throughout; only how loud they are differs.

/// A pitch and its twin beside it, which together swell and fade slowly.
struct TonePair {
    TonePair(float pitch, float apart, Random& random)
        : one(pitch, random)
        , other(pitch + apart, random) {}

    void setPitch(float pitch, float apart) {
        one.setPitch(pitch);
        other.setPitch(pitch + apart);
    }
    void settle() {
        one.settle();
        other.settle();
    }
    float next() { return one.next() + other.next(); }

    Tone one;
    Tone other;
};

/// A deep tone with its overtones, each of which comes and goes by itself.
class LowDrone final : public AmbientGenerator {
public:
    explicit LowDrone(std::uint64_t seed)
        : m_random(seed) {
        for (size_t i = 0; i < ratios.size(); ++i)
            m_partials.emplace_back(m_random, 55 * ratios[i], strengths[i]);
    }

    void render(Block block) override {
        std::ranges::fill(block, SoundFrame{});
        for (Partial& partial : m_partials)
            partial.addTo(block);
    }

private:
    static constexpr std::array ratios{1.0F, 1.5F, 2.0F, 3.0F, 4.0F, 6.0F, 8.0F};
    static constexpr std::array strengths{0.5F, 0.22F, 0.5F, 0.28F, 0.3F, 0.12F, 0.07F};

    struct Partial {
        Partial(Random& random, float pitch, float strength)
            : tones(pitch, random.between(0.13F, 0.37F), random)
            , swell(random, 0.35F * strength, strength, 5, 17)
            , side(random, -0.5F, 0.5F, 7, 19)
            , level(swell.next()) {}

        void addTo(Block block) {
            tones.settle();
            level.towards(swell.next());
            const Place target = Place::at(side.next());
            left.towards(target.left);
            right.towards(target.right);
            for (SoundFrame& frame : block) {
                const float sound = tones.next() * level.next();
                frame.left += sound * left.next();
                frame.right += sound * right.next();
            }
        }

        TonePair tones;
        Drift swell;
        Drift side;
        Glide level;
        Glide left{0.7F};
        Glide right{0.7F};
    };

    Random m_random;
    std::vector<Partial> m_partials;
};

// Notes that go together whichever of them are heard.
constexpr std::array pentatonic{110.0F, 130.81F, 146.83F, 164.81F, 196.0F, 220.0F, 261.63F, 293.66F, 329.63F};

/// Soft notes that come, stay for a while and go, a few at a time.
class SoftPads final : public AmbientGenerator {
public:
    explicit SoftPads(std::uint64_t seed)
        : m_random(seed) {
        // Some of them are there from the beginning.
        for (size_t i = 0; i < voiceCount; ++i)
            m_voices.emplace_back(m_random, static_cast<float>(i) / voiceCount);
    }

    void render(Block block) override {
        std::ranges::fill(block, SoundFrame{});
        for (Voice& voice : m_voices)
            voice.addTo(block, m_random);
    }

private:
    static constexpr size_t voiceCount = 5;

    struct Voice {
        Voice(Random& random, float begin)
            : way(begin)
            , length(random.between(14, 26))
            , note(pentatonic[random.below(pentatonic.size())])
            , tones(note, 0.4F, random)
            , octave(2 * note, random)
            , fifth(3 * note, random)
            , level(swellAt(begin)) {}

        static float swellAt(float way) {
            const float s = std::sin(std::numbers::pi_v<float> * way);
            return s * s;
        }

        void addTo(Block block, Random& random) {
            way += blockSeconds / length;
            if (way >= 1) {
                way = 0;
                length = random.between(14, 26);
                note = pentatonic[random.below(pentatonic.size())];
                tones.setPitch(note, random.between(0.25F, 0.6F));
                octave.setPitch(2 * note + 0.15F);
                fifth.setPitch(3 * note);
                place = Place::at(random.between(-0.6F, 0.6F));
            }
            tones.settle();
            octave.settle();
            fifth.settle();
            level.towards(swellAt(way));
            for (SoundFrame& frame : block) {
                const float sound =
                    (tones.next() + 0.5F * octave.next() + 0.18F * fifth.next()) * level.next();
                frame.left += sound * place.left;
                frame.right += sound * place.right;
            }
        }

        float way;
        float length;
        float note;
        TonePair tones;
        Tone octave;
        Tone fifth;
        Place place;
        Glide level;
    };

    Random m_random;
    std::vector<Voice> m_voices;
};

/// Bowls that are struck now and then and ring for long, over a tone that stays.
class SingingBowls final : public AmbientGenerator {
public:
    explicit SingingBowls(std::uint64_t seed)
        : m_random(seed)
        , m_ground(seed) {
        strike();
    }

    void render(Block block) override {
        m_ground.render(block);
        for (SoundFrame& frame : block)
            frame = {0.3F * frame.left, 0.3F * frame.right};
        m_pause -= blockSeconds;
        if (m_pause <= 0)
            strike();
        m_bowls.addTo(block);
    }

private:
    struct Mode {
        float ratio;
        float decay;
        float level;
    };
    // How a bowl rings: none of it a multiple of another.
    static constexpr std::array modes{Mode{1, 7, 0.5F}, Mode{2.74F, 4.5F, 0.2F}, Mode{5.13F, 2.2F, 0.07F}};
    static constexpr std::array bowls{131.0F, 174.6F, 196.0F, 233.1F, 261.6F};

    void strike() {
        const auto offset = static_cast<int>(m_random.below(blockFrames));
        m_pause = m_random.between(4, 9);
        const float bowl = bowls[m_random.below(bowls.size())];
        const float force = m_random.between(0.6F, 1);
        const Place place = Place::at(m_random.between(-0.5F, 0.5F));
        for (const Mode& mode : modes) {
            const float level = force * mode.level / 2;
            // Not quite round: every mode has a second one beside it, and both beat.
            m_bowls.strike({.pitch = bowl * mode.ratio, .decay = mode.decay, .level = level, .place = place},
                           offset);
            m_bowls.strike({.pitch = bowl * mode.ratio + m_random.between(0.3F, 0.9F),
                            .decay = mode.decay,
                            .level = level,
                            .place = place},
                           offset);
        }
    }

    Random m_random;
    LowDrone m_ground;
    Strikes m_bowls{30};
    float m_pause = 0;
};

/// Noise that has taken on the pitches of a chord, as air does over pipes.
class AirTones final : public AmbientGenerator {
public:
    explicit AirTones(std::uint64_t seed)
        : m_random(seed) {
        for (const float pitch : {110.0F, 164.81F, 220.0F, 277.18F, 329.63F, 440.0F})
            m_pipes.emplace_back(m_random, pitch);
    }

    void render(Block block) override {
        for (Pipe& pipe : m_pipes)
            pipe.level.towards(pipe.breath.next());
        for (SoundFrame& frame : block) {
            const float left = m_random.signedUnit();
            const float right = m_random.signedUnit();
            frame = {0.012F * m_left.next(left), 0.012F * m_right.next(right)};
            for (Pipe& pipe : m_pipes) {
                const float level = pipe.level.next();
                frame.left += pipe.left.band(left) * level;
                frame.right += pipe.right.band(right) * level;
            }
        }
    }

private:
    struct Pipe {
        Pipe(Random& random, float pitch)
            : left(pitch, 45)
            , right(pitch, 45)
            , breath(random, 0.15F, 1, 4, 13)
            , level(breath.next()) {}

        BandFilter left;
        BandFilter right;
        Drift breath;
        Glide level;
    };

    Random m_random;
    PinkFilter m_left;
    PinkFilter m_right;
    std::vector<Pipe> m_pipes;
};

} // namespace

std::unique_ptr<AmbientGenerator> makeFocusSound(AmbientSound sound, std::uint64_t seed) {
    switch (sound) {
    case AmbientSound::lowDrone:
        return std::make_unique<LowDrone>(seed);
    case AmbientSound::softPads:
        return std::make_unique<SoftPads>(seed);
    case AmbientSound::singingBowls:
        return std::make_unique<SingingBowls>(seed);
    case AmbientSound::airTones:
        return std::make_unique<AirTones>(seed);
    default:
        return nullptr;
    }
}

} // namespace norvin::ambient
