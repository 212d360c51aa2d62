#include "sound/AmbientSoundService.h"

#include "platform/Clock.h"
#include "platform/Preferences.h"
#include "platform/SoundStream.h"

#include <algorithm>
#include <cmath>

namespace norvin {

namespace {

constexpr auto soundKey = QLatin1String("selected_ambient_sound");
constexpr auto ambientVolumeKey = QLatin1String("ambient_sound_volume");

// Loudness is felt by the ratio of amplitudes: the lower half of a linear slider would do next to nothing.
double amplitudeOf(double volume) {
    return volume * volume;
}

double inRange(double volume) {
    return std::isnan(volume) ? AmbientSoundService::defaultVolume : std::clamp(volume, 0.0, 1.0);
}

} // namespace

AmbientSoundService::AmbientSoundService(SoundStream& stream, Preferences& preferences, Clock& clock,
                                         QObject* parent)
    : QObject(parent)
    , m_stream(stream)
    , m_preferences(preferences)
    , m_clock(clock)
    , m_mixer(stream.sampleRate()) {
    if (const auto sound = preferences.value(soundKey))
        m_selected = ambientSoundFromRawValue(sound->toString());
    if (const auto volume = preferences.value(ambientVolumeKey)) {
        bool isNumber = false;
        const double number = volume->toDouble(&isNumber);
        m_volume = isNumber ? inRange(number) : defaultVolume;
    }
    m_mixer.setVolume(amplitudeOf(m_volume));
    m_stream.setSource(&m_mixer);
    connect(&stream, &SoundStream::availabilityChanged, this, &AmbientSoundService::problemKeyChanged);
}

AmbientSoundService::~AmbientSoundService() {
    m_stream.setSource(nullptr);
}

QList<QString> AmbientSoundService::categories() const {
    QList<QString> values;
    for (const AmbientSoundCategory category : allAmbientSoundCategories)
        values.append(rawValue(category));
    return values;
}

QList<QString> AmbientSoundService::soundsOf(const QString& category) const {
    QList<QString> values;
    for (const AmbientSound sound : allAmbientSounds()) {
        if (rawValue(categoryOf(sound)) == category)
            values.append(rawValue(sound));
    }
    return values;
}

QString AmbientSoundService::soundName(const QString& sound) const {
    const auto known = ambientSoundFromRawValue(sound);
    return known ? displayName(*known) : qtTrId("ambience_none");
}

QVariantList AmbientSoundService::choices() const {
    const auto choice = [this](const QString& sound) {
        return QVariantMap{{QStringLiteral("id"), sound},
                           {QStringLiteral("name"), soundName(sound)},
                           {QStringLiteral("color"), QString()}};
    };
    QVariantList all{choice({})};
    for (const AmbientSound sound : allAmbientSounds())
        all.append(choice(rawValue(sound)));
    return all;
}

QVariantList AmbientSoundService::choicesOf(const QString& category) const {
    QVariantList choices{QString()};
    for (const QString& sound : soundsOf(category))
        choices.append(sound);
    return choices;
}

void AmbientSoundService::chooseNext(const QString& category, int places) {
    const QVariantList choices = choicesOf(category);
    const qsizetype chosen = choices.indexOf(selectedSound());
    const qsizetype wanted = chosen < 0 ? 1 : std::clamp<qsizetype>(chosen + places, 0, choices.size() - 1);
    setSelectedSound(choices.value(wanted).toString());
}

QString AmbientSoundService::selectedSound() const {
    return m_selected ? rawValue(*m_selected) : QString();
}

QString AmbientSoundService::selectedCategory() const {
    return m_selected ? rawValue(categoryOf(*m_selected)) : QString();
}

void AmbientSoundService::setSelectedSound(const QString& sound) {
    const std::optional<AmbientSound> wanted = ambientSoundFromRawValue(sound);
    if (wanted == m_selected || (!wanted && !sound.isEmpty()))
        return;
    m_selected = wanted;
    m_preferences.setValue(soundKey, sound);
    Q_EMIT selectedSoundChanged();
    if (!wanted) {
        m_preview.reset();
        m_byHand.reset();
    } else if (!m_isPlaying || m_preview) {
        m_preview = m_clock.after(previewLength, [this] { endPreview(); });
    }
    update(shortFade, shortFade);
}

void AmbientSoundService::setVolume(double volume) {
    const double wanted = inRange(volume);
    if (wanted == m_volume)
        return;
    m_volume = wanted;
    m_preferences.setValue(ambientVolumeKey, wanted);
    m_mixer.setVolume(amplitudeOf(wanted));
    if (m_isPlaying)
        m_stream.refresh();
    Q_EMIT volumeChanged();
}

int AmbientSoundService::volumePercent() const {
    return static_cast<int>(std::lround(m_volume * 100));
}

void AmbientSoundService::setVolumePercent(int percent) {
    // What was stored in between two steps stays until it is really moved.
    if (percent != volumePercent())
        setVolume(percent / 100.0);
}

QString AmbientSoundService::problemKey() const {
    const Availability availability = m_stream.availability();
    return availability.isAvailable() ? QString() : availability.reason()->reasonKey;
}

void AmbientSoundService::play() {
    if (!m_selected) {
        m_selected = allAmbientSounds().front();
        m_preferences.setValue(soundKey, rawValue(*m_selected));
        Q_EMIT selectedSoundChanged();
    }
    overrule(true);
}

void AmbientSoundService::stop() {
    overrule(false);
}

void AmbientSoundService::toggle() {
    if (m_isPlaying)
        stop();
    else
        play();
}

void AmbientSoundService::overrule(bool isPlaying) {
    m_preview.reset();
    // What the session wants anyway needs no overruling, and does not outlast it.
    m_byHand = isPlaying == m_isWorkRunning ? std::nullopt : std::optional(isPlaying);
    update(shortFade, shortFade);
}

void AmbientSoundService::endPreview() {
    if (!m_preview)
        return;
    m_preview.reset();
    update(shortFade, shortFade);
}

void AmbientSoundService::followSession(bool isWorkRunning) {
    m_isWorkRunning = isWorkRunning;
    m_byHand.reset();
    m_preview.reset();
    update(sessionFadeIn, sessionFadeOut);
}

void AmbientSoundService::update(std::chrono::milliseconds fadeIn, std::chrono::milliseconds fadeOut) {
    const bool isPlaying = m_selected && (m_preview || m_byHand.value_or(m_isWorkRunning));
    const bool isChange =
        m_mixer.setSound(isPlaying ? m_selected : std::nullopt, isPlaying ? fadeIn : fadeOut);
    if (isChange)
        m_stream.refresh();
    if (isPlaying == m_isPlaying)
        return;
    m_isPlaying = isPlaying;
    Q_EMIT isPlayingChanged();
}

} // namespace norvin
