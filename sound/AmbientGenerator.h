#pragma once

#include "platform/SoundStream.h"
#include "sound/AmbientSound.h"

#include <cstdint>
#include <memory>

namespace norvin {

/// Makes an endless sound that never comes round again, block by block, the same for the same seed. All of
/// them are about equally loud and stay well within the range of a frame.
class AmbientGenerator {
public:
    static constexpr int sampleRate = 44100; ///< frames a second
    static constexpr int blockFrames = 64;
    using Block = std::span<SoundFrame, blockFrames>;

    AmbientGenerator() = default;
    AmbientGenerator(const AmbientGenerator&) = delete;
    AmbientGenerator& operator=(const AmbientGenerator&) = delete;
    virtual ~AmbientGenerator() = default;

    /// Writes the next block.
    virtual void render(Block block) = 0;
};

/// Any thread; a generator belongs to one at a time.
[[nodiscard]] std::unique_ptr<AmbientGenerator> makeAmbientGenerator(AmbientSound sound, std::uint64_t seed);

} // namespace norvin
