#include "platform/linux/pulse/PulseAudioOutput.h"

#include "platform/ApplicationCatalog.h"
#include "platform/Clock.h"
#include "platform/Log.h"

#include <algorithm>
#include <pulse/context.h>
#include <pulse/error.h>
#include <pulse/operation.h>
#include <pulse/proplist.h>
#include <pulse/stream.h>
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

PulseAudioOutput& self(void* userdata) {
    return *static_cast<PulseAudioOutput*>(userdata);
}

Availability availabilityOf(int error) {
    const QString detail = QString::fromUtf8(pa_strerror(error));
    switch (error) {
    case PA_ERR_TIMEOUT:
        return Availability::unavailable(QStringLiteral("health_sound_server_silent"), detail);
    case PA_ERR_NOENTITY:
        return Availability::unavailable(QStringLiteral("health_no_sound_device"), detail);
    default:
        return Availability::unavailable(QStringLiteral("health_no_sound_server"), detail);
    }
}

} // namespace

void PulseAudioOutput::Disconnect::operator()(pa_context* context) const {
    pa_context_set_state_callback(context, nullptr, nullptr);
    pa_context_disconnect(context);
    pa_context_unref(context);
}

void PulseAudioOutput::Disconnect::operator()(pa_stream* stream) const {
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    pa_stream_disconnect(stream);
    pa_stream_unref(stream);
}

PulseAudioOutput::PulseAudioOutput(Clock& clock, int sampleRate, QObject* parent)
    : AudioOutput(parent)
    , m_clock(clock)
    , m_sampleRate(sampleRate)
    , m_loop(clock) {}

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
    pa_proplist* properties = pa_proplist_new();
    pa_proplist_sets(properties, PA_PROP_APPLICATION_ID, ownBundleIdentifier);
    pa_proplist_sets(properties, PA_PROP_APPLICATION_ICON_NAME, ownBundleIdentifier);
    m_connection.context.reset(pa_context_new_with_proplist(m_loop.api(), "Norvin Focus", properties));
    pa_proplist_free(properties);
    m_state = State::connecting;
    m_answerDue = m_clock.monotonic();
    if (!m_connection.context) {
        fail(PA_ERR_INTERNAL);
        return;
    }
    pa_context_set_state_callback(
        m_connection.context.get(), [](pa_context*, void* userdata) { self(userdata).contextChanged(); },
        this);
    if (pa_context_connect(m_connection.context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0 &&
        m_connection.context)
        fail(pa_context_errno(m_connection.context.get()));
}

void PulseAudioOutput::contextChanged() {
    switch (pa_context_get_state(m_connection.context.get())) {
    case PA_CONTEXT_READY:
        if (m_isProbing && m_waiting.empty()) {
            m_isProbing = false;
            disconnectLater();
            m_backOff = 0ms;
            m_retryAt = 0ms;
            setAvailability(Availability::available());
            return;
        }
        m_isProbing = false;
        openStream();
        return;
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        fail(pa_context_errno(m_connection.context.get()));
        return;
    default:
        return;
    }
}

void PulseAudioOutput::openStream() {
    const pa_sample_spec format{
        .format = PA_SAMPLE_FLOAT32NE, .rate = static_cast<uint32_t>(m_sampleRate), .channels = 1};
    m_connection.stream.reset(pa_stream_new(m_connection.context.get(), "Norvin Focus", &format, nullptr));
    if (!m_connection.stream) {
        fail(pa_context_errno(m_connection.context.get()));
        return;
    }
    pa_stream_set_state_callback(
        m_connection.stream.get(), [](pa_stream*, void* userdata) { self(userdata).streamChanged(); }, this);
    const auto bytes = [&format](milliseconds length) {
        return static_cast<uint32_t>(pa_usec_to_bytes(static_cast<pa_usec_t>(length / 1us), &format));
    };
    constexpr auto serversChoice = static_cast<uint32_t>(-1);
    const pa_buffer_attr buffer{.maxlength = serversChoice,
                                .tlength = bytes(2 * requestedPiece + outputLatency),
                                .prebuf = bytes(prebuffer),
                                .minreq = bytes(requestedPiece),
                                .fragsize = serversChoice};
    if (pa_stream_connect_playback(m_connection.stream.get(), nullptr, &buffer, PA_STREAM_START_CORKED,
                                   nullptr, nullptr) < 0 &&
        m_connection.stream)
        fail(pa_context_errno(m_connection.context.get()));
}

void PulseAudioOutput::streamChanged() {
    switch (pa_stream_get_state(m_connection.stream.get())) {
    case PA_STREAM_READY:
        m_state = State::held;
        setAvailability(Availability::available());
        advance();
        return;
    case PA_STREAM_FAILED:
    case PA_STREAM_TERMINATED:
        fail(pa_context_errno(m_connection.context.get()));
        return;
    default:
        return;
    }
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
    if (pa_stream_write(m_connection.stream.get(), samples.data(), samples.size() * sizeof(float), nullptr, 0,
                        place) < 0) {
        fail(pa_context_errno(m_connection.context.get()));
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
    ask(pa_stream_cork(m_connection.stream.get(), held ? 1 : 0, &PulseAudioOutput::streamAnswered, this));
}

void PulseAudioOutput::ask(pa_operation* operation) {
    if (operation)
        pa_operation_unref(operation);
    else
        fail(pa_context_errno(m_connection.context.get()));
}

void PulseAudioOutput::streamAnswered(pa_stream* stream, int success, void* userdata) {
    PulseAudioOutput& output = self(userdata);
    if (stream != output.m_connection.stream.get())
        return;
    if (success != 0)
        output.answered();
    else
        output.fail(pa_context_errno(output.m_connection.context.get()));
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
        setAvailability(availabilityOf(PA_ERR_TIMEOUT));
    else
        fail(PA_ERR_TIMEOUT);
}

// libpulse does not expect to be disconnected from within every one of its callbacks.
void PulseAudioOutput::disconnectLater() {
    m_state = State::disconnected;
    if (m_connection.stream)
        pa_stream_set_state_callback(m_connection.stream.get(), nullptr, nullptr);
    if (m_connection.context)
        pa_context_set_state_callback(m_connection.context.get(), nullptr, nullptr);
    m_discarded.push_back(std::exchange(m_connection, {}));
    QMetaObject::invokeMethod(
        this, [this] { m_discarded.clear(); }, Qt::QueuedConnection);
}

void PulseAudioOutput::fail(int error) {
    disconnectLater();
    m_isProbing = false;
    m_holdTimer.reset();
    m_soundEnd = 0ms;
    m_waiting.clear();
    m_retryAt = m_clock.monotonic() + m_backOff;
    m_backOff = std::clamp(2 * m_backOff, firstBackOff, longestBackOff);
    setAvailability(availabilityOf(error));
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
