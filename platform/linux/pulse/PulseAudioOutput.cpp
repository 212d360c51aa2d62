#include "platform/linux/pulse/PulseAudioOutput.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/linux/pulse/PulseLibrary.h"

#include <algorithm>
#include <utility>

namespace norvin {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

// A little less than a second, so that what is queued every second is no second late for a new try.
constexpr milliseconds firstBackOff = 900ms;
constexpr milliseconds longestBackOff = 5s;
constexpr milliseconds silentAfter = 2s;

// Enough room for whole sounds, asked for in big pieces: the server has no reason to ask for more between
// them. What the room leaves beside two such pieces becomes the latency of the output.
constexpr milliseconds requestedPiece = 200ms;
constexpr milliseconds outputLatency = 40ms;
// About one block of the server: less than the shortest sound that is worth hearing.
constexpr milliseconds prebuffer = 20ms;
// More than the largest block.
constexpr milliseconds trailingSilence = 100ms;
// How much later than its turn a sound is still on its way to a distant output. The server could say when it
// has been heard, but PipeWire sometimes forgets to.
constexpr milliseconds longestLatency = 300ms;

PulseAudioOutput& outputOf(void* userdata) {
    return *static_cast<PulseAudioOutput*>(userdata);
}

} // namespace

PulseAudioOutput::PulseAudioOutput(Clock& clock, int sampleRate, QObject* parent)
    : AudioOutput(parent)
    , m_clock(clock)
    , m_sampleRate(sampleRate)
    , m_connection(clock, *this) {}

PulseAudioOutput::~PulseAudioOutput() = default;

void PulseAudioOutput::queue(std::vector<float> samples) {
    if (samples.empty())
        return;
    noticeSilence();
    m_waiting.push_back({std::move(samples), m_clock.monotonic() + longestDelay});
    if (m_state == State::disconnected && m_clock.monotonic() >= m_retryAt)
        connectToServer();
    advance();
}

void PulseAudioOutput::probe() {
    if (m_state != State::disconnected)
        return;
    m_isProbing = true;
    connectToServer();
}

void PulseAudioOutput::connectToServer() {
    m_state = State::connecting;
    m_answerDue = m_clock.monotonic();
    m_connection.open();
}

void PulseAudioOutput::serverReady() {
    if (!std::exchange(m_isProbing, false) || !m_waiting.empty()) {
        openStream();
        return;
    }
    disconnectLater();
    m_backOff = 0ms;
    m_retryAt = 0ms;
    setAvailability(Availability::available());
}

void PulseAudioOutput::openStream() {
    const pa_sample_spec format{
        .format = PA_SAMPLE_FLOAT32NE, .rate = static_cast<uint32_t>(m_sampleRate), .channels = 1};
    const auto bytes = [&format](milliseconds length) {
        return static_cast<uint32_t>(pulse().pa_usec_to_bytes(static_cast<pa_usec_t>(length / 1us), &format));
    };
    constexpr auto serversChoice = static_cast<uint32_t>(-1);
    const pa_buffer_attr buffer{.maxlength = serversChoice,
                                .tlength = bytes(2 * requestedPiece + outputLatency),
                                .prebuf = bytes(prebuffer),
                                .minreq = bytes(requestedPiece),
                                .fragsize = serversChoice};
    m_connection.openStream(format, buffer, PulseConnection::Begin::held);
}

void PulseAudioOutput::streamReady() {
    m_state = State::held;
    setAvailability(Availability::available());
    advance();
}

void PulseAudioOutput::advance() {
    const Time now = m_clock.monotonic();
    std::erase_if(m_waiting, [now](const Waiting& sound) { return sound.latestStart < now; });
    if (m_waiting.empty())
        return;
    // Nothing is sent before the server has answered that it lets the stream go: what a hung server had been
    // sent would be heard when it goes on, however late.
    if (m_state == State::held)
        setHeld(false);
    else if (m_state == State::playing)
        write();
}

void PulseAudioOutput::write() {
    const Time now = m_clock.monotonic();
    m_soundEnd = std::max(now, m_soundEnd);
    std::vector<float> samples;
    for (const Waiting& sound : m_waiting) {
        const Time start = m_soundEnd + lengthOf(samples);
        if (start <= sound.latestStart)
            samples.insert(samples.end(), sound.samples.begin(), sound.samples.end());
    }
    m_waiting.clear();
    if (samples.empty())
        return;
    // PipeWire plays whole blocks: without the silence, the last piece would stay behind.
    samples.resize(samples.size() + static_cast<size_t>(m_sampleRate * trailingSilence / 1s));
    // The first sound begins where the stream was held, whatever is left of the silence before.
    const pa_seek_mode_t place = m_holdTimer ? PA_SEEK_RELATIVE : PA_SEEK_RELATIVE_ON_READ;
    if (pulse().pa_stream_write(m_connection.stream(), samples.data(), samples.size() * sizeof(float),
                                nullptr, 0, place) < 0) {
        m_connection.fail();
        return;
    }
    m_soundEnd += lengthOf(samples);
    m_holdTimer = m_clock.after(m_soundEnd - now + longestLatency, [this] {
        m_holdTimer.reset();
        setHeld(true);
    });
}

PulseAudioOutput::Time PulseAudioOutput::lengthOf(const std::vector<float>& samples) const {
    return milliseconds(static_cast<qint64>(samples.size()) * 1000 / m_sampleRate);
}

void PulseAudioOutput::setHeld(bool held) {
    m_state = held ? State::holding : State::releasing;
    m_answerDue = m_clock.monotonic();
    m_connection.ask(
        pulse().pa_stream_cork(m_connection.stream(), held ? 1 : 0, &PulseAudioOutput::streamAnswered, this));
}

void PulseAudioOutput::streamAnswered(pa_stream* stream, int success, void* userdata) {
    PulseAudioOutput& output = outputOf(userdata);
    if (stream != output.m_connection.stream())
        return;
    if (success != 0)
        output.answered();
    else
        output.m_connection.fail();
}

// One question at a time is with the server; what happens next follows from its answer.
void PulseAudioOutput::answered() {
    setAvailability(Availability::available());
    if (m_state == State::holding) {
        m_state = State::held;
        m_backOff = 0ms;
        advance();
        return;
    }
    m_state = State::playing;
    advance();
    if (m_state == State::playing && !m_holdTimer)
        setHeld(true);
}

void PulseAudioOutput::noticeSilence() {
    const bool waitsForAnswer =
        m_state == State::connecting || m_state == State::releasing || m_state == State::holding;
    if (!waitsForAnswer || m_clock.monotonic() <= m_answerDue + silentAfter)
        return;
    // A new connection is ready as soon as the server is, and the old one takes along what is late.
    if (m_state == State::connecting)
        setAvailability(PulseConnection::availabilityOf(PA_ERR_TIMEOUT));
    else
        fail(PA_ERR_TIMEOUT);
}

void PulseAudioOutput::disconnectLater() {
    m_state = State::disconnected;
    m_connection.closeLater();
}

void PulseAudioOutput::fail(int error) {
    disconnectLater();
    m_isProbing = false;
    m_holdTimer.reset();
    m_soundEnd = 0ms;
    m_waiting.clear();
    m_retryAt = m_clock.monotonic() + m_backOff;
    m_backOff = std::clamp(2 * m_backOff, firstBackOff, longestBackOff);
    setAvailability(PulseConnection::availabilityOf(error));
}

void PulseAudioOutput::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    if (const auto& reason = availability.reason())
        logLine(QStringLiteral("PulseAudioOutput: No sound: ") + reason->detail);
    Q_EMIT availabilityChanged();
}

} // namespace norvin
