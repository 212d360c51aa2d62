#include "platform/fake/FakeSoundStream.h"

#include <algorithm>

namespace norvin {

FakeSoundStream::FakeSoundStream(int sampleRate, QObject* parent)
    : SoundStream(parent)
    , m_sampleRate(sampleRate) {}

std::int64_t FakeSoundStream::framesIn(std::chrono::milliseconds length) const {
    return length.count() * m_sampleRate / 1000;
}

void FakeSoundStream::setSource(SoundSource* source) {
    m_source = source;
    m_isPlaying = false;
    m_isWanted = false;
}

void FakeSoundStream::refresh() {
    if (m_source == nullptr)
        return;
    m_isWanted = m_source->hasSound();
    if (!m_availability.isAvailable())
        return;
    if (!m_isPlaying) {
        m_isWanted = m_source->hasSound();
        if (m_isWanted)
            begin();
        return;
    }
    const std::int64_t first = m_heard + framesIn(margin);
    const auto end = std::max(static_cast<std::int64_t>(m_made.size()), first + 1);
    m_made.resize(static_cast<size_t>(end));
    m_goesOn = m_source->fill(first, std::span(m_made).subspan(static_cast<size_t>(first)));
    makeAhead();
}

void FakeSoundStream::begin() {
    m_source->reset();
    m_made.clear();
    m_heard = 0;
    m_isPlaying = true;
    m_goesOn = true;
    makeAhead();
}

void FakeSoundStream::makeAhead() {
    const auto made = m_made.size();
    const auto wanted = static_cast<size_t>(m_heard + framesIn(lead));
    if (!m_goesOn || made >= wanted)
        return;
    m_made.resize(wanted);
    m_goesOn = m_source->fill(static_cast<std::int64_t>(made), std::span(m_made).subspan(made));
}

std::vector<SoundFrame> FakeSoundStream::hear(std::chrono::milliseconds length) {
    std::vector<SoundFrame> heard;
    const std::int64_t piece = framesIn(std::chrono::milliseconds(100));
    for (std::int64_t rest = framesIn(length); rest > 0; rest -= piece) {
        const auto count = static_cast<size_t>(std::min(rest, piece));
        const size_t place = heard.size();
        heard.resize(place + count);
        if (!m_isPlaying)
            continue;
        const auto from = std::min(static_cast<size_t>(m_heard), m_made.size());
        const auto to = std::min(from + count, m_made.size());
        std::copy(m_made.begin() + static_cast<std::ptrdiff_t>(from),
                  m_made.begin() + static_cast<std::ptrdiff_t>(to),
                  heard.begin() + static_cast<std::ptrdiff_t>(place));
        m_heard += static_cast<std::int64_t>(count);
        makeAhead();
        if (!m_goesOn && m_heard >= static_cast<std::int64_t>(m_made.size())) {
            m_isPlaying = false;
            m_isWanted = false;
            m_source->reset();
        }
    }
    return heard;
}

void FakeSoundStream::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    m_isPlaying = false;
    if (availability.isAvailable() && m_isWanted)
        begin();
    Q_EMIT availabilityChanged();
}

} // namespace norvin
