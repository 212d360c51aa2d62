#include "sound/SoundService.h"

#include "platform/SystemSounds.h"

namespace norvin {

SoundService::SoundService(SystemSounds& sounds)
    : m_sounds(sounds) {}

void SoundService::play(SoundEffect effect, double volume) {
    m_sounds.play(soundName(effect), volume);
}

QString SoundService::soundName(SoundEffect effect) {
    switch (effect) {
    case SoundEffect::ping:
        return QStringLiteral("Ping");
    case SoundEffect::blow:
        return QStringLiteral("Blow");
    case SoundEffect::bottle:
        return QStringLiteral("Bottle");
    case SoundEffect::pop:
        return QStringLiteral("Pop");
    case SoundEffect::glass:
        return QStringLiteral("Glass");
    case SoundEffect::submarine:
        return QStringLiteral("Submarine");
    }
    return {};
}

} // namespace norvin
