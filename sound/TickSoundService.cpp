#include "sound/TickSoundService.h"

#include "platform/AudioOutput.h"
#include "platform/Preferences.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace norvin {

namespace {

constexpr auto typeKey = QLatin1String("tick_sound_type");
constexpr auto enabledKey = QLatin1String("tick_sound_enabled");
constexpr auto volumeKey = QLatin1String("tick_sound_volume");

// Just under 3 ms.
constexpr int attackFrames = 132;

struct Character {
    double tickFrequency; // Hz
    double tockFrequency; // Hz
    int frames;
    double decay;
};

constexpr Character characterOf(TickSoundType type) {
    switch (type) {
    case TickSoundType::clock:
        return {.tickFrequency = 1100, .tockFrequency = 860, .frames = 3087, .decay = 12};
    case TickSoundType::digital:
        return {.tickFrequency = 900, .tockFrequency = 900, .frames = 1984, .decay = 18};
    case TickSoundType::soft:
        return {.tickFrequency = 520, .tockFrequency = 520, .frames = 3969, .decay = 5};
    case TickSoundType::metronome:
        return {.tickFrequency = 1450, .tockFrequency = 1100, .frames = 1543, .decay = 30};
    }
    return {};
}

// By frame. The same for every tick of a character, and as dear as its wave: made once.
const std::vector<double>& envelopeOf(TickSoundType type) {
    static std::array<std::vector<double>, allTickSoundTypes.size()> envelopes;
    std::vector<double>& envelope = envelopes[static_cast<size_t>(type)];
    if (envelope.empty()) {
        const Character character = characterOf(type);
        for (int i = 0; i < attackFrames; ++i)
            envelope.push_back(static_cast<double>(static_cast<float>(i) / static_cast<float>(attackFrames)));
        for (int i = attackFrames; i < character.frames; ++i)
            envelope.push_back(
                std::exp(-character.decay * (i - attackFrames) / (character.frames - attackFrames)));
    }
    return envelope;
}

double clampedVolume(double volume) {
    return std::isnan(volume) ? TickSoundService::defaultVolume : std::clamp(volume, 0.0, 1.0);
}

// Text files hold text: "false" is a value, while "often" is none.
std::optional<bool> toBool(const QVariant& value) {
    const QString text = value.toString();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return std::nullopt;
}

bool isOddNumber(int number) {
    return number % 2 == 1;
}

} // namespace

TickSoundService::TickSoundService(AudioOutput& output, Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_output(output)
    , m_preferences(preferences) {
    Q_ASSERT(output.sampleRate() == static_cast<int>(sampleRate));
    if (const auto type = preferences.value(typeKey))
        m_selectedType = tickSoundTypeFromRawValue(type->toString()).value_or(defaultType);
    if (const auto enabled = preferences.value(enabledKey))
        m_isEnabled = toBool(*enabled).value_or(isEnabledByDefault);
    if (const auto volume = preferences.value(volumeKey)) {
        bool isNumber = false;
        const double number = volume->toDouble(&isNumber);
        m_volume = isNumber ? clampedVolume(number) : defaultVolume;
    }
}

TickSoundService::~TickSoundService() = default;

void TickSoundService::setSelectedType(TickSoundType type) {
    if (type == m_selectedType)
        return;
    m_selectedType = type;
    m_preferences.setValue(typeKey, rawValue(type));
    Q_EMIT selectedTypeChanged();
}

void TickSoundService::setEnabled(bool enabled) {
    if (enabled == m_isEnabled)
        return;
    m_isEnabled = enabled;
    m_preferences.setValue(enabledKey, enabled);
    Q_EMIT isEnabledChanged();
}

void TickSoundService::setVolume(double volume) {
    const double clamped = clampedVolume(volume);
    if (clamped == m_volume)
        return;
    m_volume = clamped;
    m_preferences.setValue(volumeKey, clamped);
    Q_EMIT volumeChanged();
}

void TickSoundService::play() {
    if (!m_isEnabled)
        return;
    ++m_tickCount;
    m_output.queue(generateBuffer(m_selectedType, isOddNumber(m_tickCount)));
}

void TickSoundService::playSample() {
    ++m_sampleCount;
    m_output.queue(generateBuffer(m_selectedType, isOddNumber(m_sampleCount)));
}

std::vector<float> TickSoundService::generateBuffer(TickSoundType type, bool isOdd) const {
    const Character character = characterOf(type);
    const double angularFrequency =
        2.0 * std::numbers::pi * (isOdd ? character.tickFrequency : character.tockFrequency);
    const auto volume = static_cast<float>(m_volume);
    const std::vector<double>& envelope = envelopeOf(type);
    std::vector<float> samples(envelope.size());
    for (size_t i = 0; i < samples.size(); ++i) {
        const double wave = std::sin(angularFrequency * (static_cast<double>(i) / sampleRate));
        samples[i] = static_cast<float>(wave * envelope[i] * volume);
    }
    return samples;
}

} // namespace norvin
