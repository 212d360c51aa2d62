#pragma once

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace norvin {

enum class AmbientSoundCategory { nature, noise, focus };

/// The sounds that can lie under a session.
enum class AmbientSound {
    rain,
    wind,
    waves,
    stream,
    fire,
    whiteNoise,
    pinkNoise,
    brownNoise,
    greyNoise,
    fan,
    lowDrone,
    softPads,
    singingBowls,
    airTones
};

/// In the order in which they are offered.
inline constexpr std::array allAmbientSoundCategories{
    AmbientSoundCategory::nature, AmbientSoundCategory::noise, AmbientSoundCategory::focus};

/// All sounds, by category, in the order in which they are offered.
[[nodiscard]] const std::vector<AmbientSound>& allAmbientSounds();
[[nodiscard]] AmbientSoundCategory categoryOf(AmbientSound sound);

/// What the sound is stored as: "rain", "white_noise", ….
[[nodiscard]] QString rawValue(AmbientSound sound);
/// The sound of a raw value; none for any other text.
[[nodiscard]] std::optional<AmbientSound> ambientSoundFromRawValue(const QString& raw);
/// "nature", "noise", "focus".
[[nodiscard]] QString rawValue(AmbientSoundCategory category);

/// What it is called in the language of the window.
[[nodiscard]] QString displayName(AmbientSound sound);

} // namespace norvin
