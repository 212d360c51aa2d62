#pragma once

#include "sound/AmbientGenerator.h"

// The families of ambient sounds, without their common loudness. Each gives null for a sound of another
// family.
namespace norvin::ambient {

[[nodiscard]] std::unique_ptr<AmbientGenerator> makeNatureSound(AmbientSound sound, std::uint64_t seed);
[[nodiscard]] std::unique_ptr<AmbientGenerator> makeNoise(AmbientSound sound, std::uint64_t seed);
[[nodiscard]] std::unique_ptr<AmbientGenerator> makeFocusSound(AmbientSound sound, std::uint64_t seed);

} // namespace norvin::ambient
