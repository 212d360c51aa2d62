#include "sound/TickSoundSettings.h"

#include "platform/AudioOutput.h"
#include "sound/TickSoundService.h"

#include <cmath>

namespace norvin {

TickSoundSettings::TickSoundSettings(TickSoundService& service, const AudioOutput& output, QObject* parent)
    : QObject(parent)
    , m_service(service)
    , m_output(output) {
    connect(&service, &TickSoundService::isEnabledChanged, this, &TickSoundSettings::isEnabledChanged);
    connect(&service, &TickSoundService::selectedTypeChanged, this, &TickSoundSettings::selectedTypeChanged);
    connect(&service, &TickSoundService::volumeChanged, this, &TickSoundSettings::volumePercentChanged);
    connect(&output, &AudioOutput::availabilityChanged, this, &TickSoundSettings::problemKeyChanged);
}

TickSoundSettings::~TickSoundSettings() = default;

bool TickSoundSettings::isEnabled() const {
    return m_service.isEnabled();
}

void TickSoundSettings::setEnabled(bool enabled) {
    m_service.setEnabled(enabled);
}

QList<QString> TickSoundSettings::types() const {
    QList<QString> values;
    for (const TickSoundType type : allTickSoundTypes)
        values.append(rawValue(type));
    return values;
}

QString TickSoundSettings::selectedType() const {
    return rawValue(m_service.selectedType());
}

void TickSoundSettings::setSelectedType(const QString& type) {
    const auto wanted = tickSoundTypeFromRawValue(type);
    if (!wanted || *wanted == m_service.selectedType())
        return;
    m_service.setSelectedType(*wanted);
    playSample();
}

int TickSoundSettings::volumePercent() const {
    return static_cast<int>(std::lround(m_service.volume() * 100));
}

void TickSoundSettings::setVolumePercent(int percent) {
    // What was stored in between two steps stays until it is really moved.
    if (percent != volumePercent())
        m_service.setVolume(percent / 100.0);
}

QString TickSoundSettings::problemKey() const {
    const Availability availability = m_output.availability();
    return availability.isAvailable() ? QString() : availability.reason()->reasonKey;
}

void TickSoundSettings::playSample() {
    m_service.playSample();
}

} // namespace norvin
