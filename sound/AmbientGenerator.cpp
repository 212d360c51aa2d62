#include "sound/AmbientGenerator.h"

#include "sound/AmbientGenerators.h"

namespace norvin {

namespace {

// Brings all sounds to the same loudness.
float levelOf(AmbientSound sound) {
    switch (sound) {
    case AmbientSound::rain:
        return 0.7F;
    case AmbientSound::wind:
        return 2.15F;
    case AmbientSound::waves:
        return 1.02F;
    case AmbientSound::stream:
        return 1.23F;
    case AmbientSound::fire:
        return 1.6F;
    case AmbientSound::whiteNoise:
        return 0.0427F;
    case AmbientSound::pinkNoise:
        return 0.525F;
    case AmbientSound::brownNoise:
        return 3.98F;
    case AmbientSound::greyNoise:
        return 0.0285F;
    case AmbientSound::fan:
        return 0.83F;
    case AmbientSound::lowDrone:
        return 0.111F;
    case AmbientSound::softPads:
        return 0.0394F;
    case AmbientSound::singingBowls:
        return 0.254F;
    case AmbientSound::airTones:
        return 2.09F;
    }
    return 0;
}

class Levelled final : public AmbientGenerator {
public:
    Levelled(std::unique_ptr<AmbientGenerator> generator, float level)
        : m_generator(std::move(generator))
        , m_level(level) {}

    void render(Block block) override {
        m_generator->render(block);
        for (SoundFrame& frame : block)
            frame = {frame.left * m_level, frame.right * m_level};
    }

private:
    std::unique_ptr<AmbientGenerator> m_generator;
    float m_level;
};

std::unique_ptr<AmbientGenerator> makeUnlevelled(AmbientSound sound, std::uint64_t seed) {
    switch (categoryOf(sound)) {
    case AmbientSoundCategory::nature:
        return ambient::makeNatureSound(sound, seed);
    case AmbientSoundCategory::noise:
        return ambient::makeNoise(sound, seed);
    case AmbientSoundCategory::focus:
        return ambient::makeFocusSound(sound, seed);
    }
    return nullptr;
}

} // namespace

std::unique_ptr<AmbientGenerator> makeAmbientGenerator(AmbientSound sound, std::uint64_t seed) {
    return std::make_unique<Levelled>(makeUnlevelled(sound, seed), levelOf(sound));
}

} // namespace norvin
