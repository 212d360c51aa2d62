#include "platform/fake/FakeAudioOutput.h"

#include <algorithm>

namespace norvin {

FakeAudioOutput::FakeAudioOutput(const Clock& clock, int sampleRate, QObject* parent)
    : AudioOutput(parent)
    , m_clock(clock)
    , m_sampleRate(sampleRate) {}

void FakeAudioOutput::queue(std::vector<float> samples) {
    const std::chrono::milliseconds now = m_clock.monotonic();
    const std::chrono::milliseconds start = std::max(now, m_end);
    if (!m_availability.isAvailable() || samples.empty() || start - now > longestDelay)
        return;
    m_end = start + std::chrono::milliseconds(static_cast<int>(samples.size()) * 1000 / m_sampleRate);
    m_played.push_back({start, std::move(samples)});
}

void FakeAudioOutput::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    Q_EMIT availabilityChanged();
}

} // namespace norvin
