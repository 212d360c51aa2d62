#include "sound/AmbientSound.h"

#include <algorithm>
#include <iterator>

namespace norvin {

namespace {

struct Entry {
    AmbientSound sound;
    AmbientSoundCategory category;
    const char* raw;
    const char* nameKey;
};

using enum AmbientSoundCategory;

constexpr std::array catalogue{
    Entry{AmbientSound::rain, nature, "rain", "ambience_rain"},
    Entry{AmbientSound::wind, nature, "wind", "ambience_wind"},
    Entry{AmbientSound::waves, nature, "waves", "ambience_waves"},
    Entry{AmbientSound::stream, nature, "stream", "ambience_stream"},
    Entry{AmbientSound::fire, nature, "fire", "ambience_fire"},
    Entry{AmbientSound::whiteNoise, noise, "white_noise", "ambience_white_noise"},
    Entry{AmbientSound::pinkNoise, noise, "pink_noise", "ambience_pink_noise"},
    Entry{AmbientSound::brownNoise, noise, "brown_noise", "ambience_brown_noise"},
    Entry{AmbientSound::greyNoise, noise, "grey_noise", "ambience_grey_noise"},
    Entry{AmbientSound::fan, noise, "fan", "ambience_fan"},
    Entry{AmbientSound::lowDrone, focus, "low_drone", "ambience_low_drone"},
    Entry{AmbientSound::softPads, focus, "soft_pads", "ambience_soft_pads"},
    Entry{AmbientSound::singingBowls, focus, "singing_bowls", "ambience_singing_bowls"},
    Entry{AmbientSound::airTones, focus, "air_tones", "ambience_air_tones"},
};

constexpr const Entry& entryOf(AmbientSound sound) {
    return catalogue[static_cast<size_t>(sound)];
}

static_assert(std::ranges::all_of(catalogue, [](const Entry& entry) {
    return entryOf(entry.sound).sound == entry.sound;
}));

} // namespace

const std::vector<AmbientSound>& allAmbientSounds() {
    static const std::vector<AmbientSound> sounds = [] {
        std::vector<AmbientSound> all;
        all.reserve(std::size(catalogue));
        for (const Entry& entry : catalogue)
            all.push_back(entry.sound);
        return all;
    }();
    return sounds;
}

AmbientSoundCategory categoryOf(AmbientSound sound) {
    return entryOf(sound).category;
}

QString rawValue(AmbientSound sound) {
    return QLatin1String(entryOf(sound).raw);
}

std::optional<AmbientSound> ambientSoundFromRawValue(const QString& raw) {
    const auto* const found = std::ranges::find_if(
        catalogue, [&raw](const Entry& entry) { return QLatin1String(entry.raw) == raw; });
    return found == catalogue.end() ? std::nullopt : std::optional(found->sound);
}

QString rawValue(AmbientSoundCategory category) {
    switch (category) {
    case nature:
        return QStringLiteral("nature");
    case noise:
        return QStringLiteral("noise");
    case focus:
        return QStringLiteral("focus");
    }
    return {};
}

QString displayName(AmbientSound sound) {
    return qtTrId(entryOf(sound).nameKey);
}

} // namespace norvin
