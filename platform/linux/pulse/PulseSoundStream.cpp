#include "platform/linux/pulse/PulseSoundStream.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/linux/pulse/PulseLibrary.h"

#include <algorithm>

namespace norvin {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

// Asked for in pieces of a second, so that this program and the server are woken once a second. What the room
// leaves beside two pieces becomes the latency of the output.
constexpr milliseconds streamPiece = 1000ms;
constexpr milliseconds streamLatency = 100ms;
constexpr milliseconds room = 2 * streamPiece + streamLatency;
constexpr milliseconds streamPrebuffer = 100ms;
// What the server may have handed on until a replacement has reached it: up to the latency of the output at
// once. What is too late leaves a step in the sound.
constexpr milliseconds replacingTakes = streamLatency + 50ms;
// How much later than its turn the last of it is still on its way to a distant output.
constexpr milliseconds longestStreamLatency = 300ms;

constexpr milliseconds streamSilentAfter = 2s;
constexpr milliseconds firstStreamBackOff = 1s;
constexpr milliseconds longestStreamBackOff = 10s;

constexpr auto frameBytes = static_cast<std::int64_t>(sizeof(SoundFrame));

PulseSoundStream& streamOf(void* userdata) {
    return *static_cast<PulseSoundStream*>(userdata);
}

} // namespace

PulseSoundStream::PulseSoundStream(Clock& clock, int sampleRate, QObject* parent)
    : SoundStream(parent)
    , m_clock(clock)
    , m_sampleRate(sampleRate)
    , m_connection(clock, *this) {}

PulseSoundStream::~PulseSoundStream() = default;

std::int64_t PulseSoundStream::framesIn(milliseconds length) const {
    return length.count() * m_sampleRate / 1000;
}

milliseconds PulseSoundStream::lengthOf(std::int64_t frames) const {
    return milliseconds(frames * 1000 / m_sampleRate);
}

void PulseSoundStream::setSource(SoundSource* source) {
    if (m_source != nullptr)
        end();
    m_source = source;
}

void PulseSoundStream::refresh() {
    if (m_source == nullptr)
        return;
    switch (m_state) {
    case State::resting:
        if (!m_source->hasSound())
            end();
        else if (!m_retry)
            connectToServer();
        return;
    case State::connecting:
        // What comes of it asks the source.
        if (!m_source->hasSound())
            end();
        return;
    case State::playing:
        if (m_asks)
            m_asksAgain = true;
        else
            askTiming();
        return;
    }
}

void PulseSoundStream::connectToServer() {
    m_state = State::connecting;
    expectAnswer(streamSilentAfter);
    m_connection.open();
}

void PulseSoundStream::serverReady() {
    const pa_sample_spec format{
        .format = PA_SAMPLE_FLOAT32NE, .rate = static_cast<uint32_t>(m_sampleRate), .channels = 2};
    const auto bytes = [this](milliseconds length) {
        return static_cast<uint32_t>(framesIn(length) * frameBytes);
    };
    constexpr auto serversChoice = static_cast<uint32_t>(-1);
    m_connection.openStream(format,
                            {.maxlength = serversChoice,
                             .tlength = bytes(room),
                             .prebuf = bytes(streamPrebuffer),
                             .minreq = bytes(streamPiece),
                             .fragsize = serversChoice},
                            PulseConnection::Begin::playing);
}

void PulseSoundStream::streamReady() {
    m_state = State::playing;
    m_backOff = 0ms;
    m_made = 0;
    m_goesOn = true;
    m_asks = false;
    m_asksAgain = false;
    setAvailability(Availability::available());
    m_source->reset();
    pulse().pa_stream_set_write_callback(m_connection.stream(), &PulseSoundStream::framesWanted, this);
    writeWanted();
}

void PulseSoundStream::framesWanted(pa_stream* stream, size_t, void* userdata) {
    PulseSoundStream& own = streamOf(userdata);
    if (stream == own.m_connection.stream())
        own.writeWanted();
}

void PulseSoundStream::writeWanted() {
    if (m_asks || !m_goesOn)
        return;
    const size_t wanted = pulse().pa_stream_writable_size(m_connection.stream());
    if (wanted == static_cast<size_t>(-1))
        m_connection.fail();
    else
        write(m_made, static_cast<std::int64_t>(wanted) / frameBytes);
}

void PulseSoundStream::askTiming() {
    m_asks = true;
    m_asksAgain = false;
    expectAnswer(streamSilentAfter);
    m_connection.ask(
        pulse().pa_stream_update_timing_info(m_connection.stream(), &PulseSoundStream::timingTold, this));
}

void PulseSoundStream::timingTold(pa_stream* stream, int success, void* userdata) {
    PulseSoundStream& own = streamOf(userdata);
    if (stream != own.m_connection.stream())
        return;
    own.m_asks = false;
    if (success == 0) {
        own.m_connection.fail();
        return;
    }
    own.replaceUnheard();
    if (own.m_state == State::playing)
        own.writeWanted();
    if (own.m_state == State::playing && own.m_asksAgain)
        own.askTiming();
}

void PulseSoundStream::replaceUnheard() {
    const pa_timing_info* timing = pulse().pa_stream_get_timing_info(m_connection.stream());
    if (timing == nullptr || timing->read_index_corrupt != 0)
        return;
    const std::int64_t first = timing->read_index / frameBytes + framesIn(replacingTakes);
    // Once all was heard, there is nothing to replace, and the next of it comes as soon as possible.
    write(first, first < m_made ? m_made - first : framesIn(room));
}

void PulseSoundStream::write(std::int64_t first, std::int64_t count) {
    if (count <= 0)
        return;
    m_buffer.resize(static_cast<size_t>(count));
    m_goesOn = m_source->fill(first, m_buffer);
    m_made = first + count;
    if (pulse().pa_stream_write(m_connection.stream(), m_buffer.data(),
                                static_cast<size_t>(count * frameBytes), nullptr, first * frameBytes,
                                PA_SEEK_ABSOLUTE) < 0) {
        m_connection.fail();
        return;
    }
    setAvailability(Availability::available());
    if (m_goesOn) {
        m_end.reset();
        expectAnswer(room + streamSilentAfter);
        return;
    }
    m_answer.reset();
    m_end = m_clock.after(room + longestStreamLatency, [this] { end(); });
}

void PulseSoundStream::expectAnswer(milliseconds within) {
    m_answer = m_clock.after(within, [this] {
        m_answer.reset();
        setAvailability(PulseConnection::availabilityOf(PA_ERR_TIMEOUT));
    });
}

void PulseSoundStream::end() {
    if (m_state != State::resting)
        m_connection.closeLater();
    m_state = State::resting;
    m_end.reset();
    m_answer.reset();
    m_retry.reset();
    m_backOff = 0ms;
    m_buffer = {};
    m_source->reset();
    setAvailability(Availability::available());
}

void PulseSoundStream::connectionFailed(int error) {
    m_connection.closeLater();
    m_state = State::resting;
    m_end.reset();
    m_answer.reset();
    m_source->reset();
    if (!m_source->hasSound()) {
        end();
        return;
    }
    m_backOff = std::clamp(2 * m_backOff, firstStreamBackOff, longestStreamBackOff);
    m_retry = m_clock.after(m_backOff, [this] {
        m_retry.reset();
        connectToServer();
    });
    setAvailability(PulseConnection::availabilityOf(error));
}

void PulseSoundStream::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    if (const auto& reason = availability.reason())
        logLine(QStringLiteral("PulseSoundStream: No sound: ") + reason->detail);
    Q_EMIT availabilityChanged();
}

} // namespace norvin
