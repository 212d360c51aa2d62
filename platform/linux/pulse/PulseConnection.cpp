#include "platform/linux/pulse/PulseConnection.h"

#include "platform/ApplicationCatalog.h"
#include "platform/linux/pulse/PulseLibrary.h"

#include <utility>

namespace norvin {

namespace {

PulseConnection& connectionOf(void* userdata) {
    return *static_cast<PulseConnection*>(userdata);
}

} // namespace

void PulseConnection::Disconnect::operator()(pa_context* context) const {
    pulse().pa_context_set_state_callback(context, nullptr, nullptr);
    pulse().pa_context_disconnect(context);
    pulse().pa_context_unref(context);
}

void PulseConnection::Disconnect::operator()(pa_stream* stream) const {
    pulse().pa_stream_set_state_callback(stream, nullptr, nullptr);
    pulse().pa_stream_disconnect(stream);
    pulse().pa_stream_unref(stream);
}

PulseConnection::PulseConnection(Clock& clock, Listener& listener)
    : m_listener(listener)
    , m_loop(clock) {}

PulseConnection::~PulseConnection() = default;

void PulseConnection::open() {
    if (PulseLibrary::find() == nullptr) {
        m_listener.connectionFailed(PA_ERR_NOTIMPLEMENTED);
        return;
    }
    pa_proplist* properties = pulse().pa_proplist_new();
    pulse().pa_proplist_sets(properties, PA_PROP_APPLICATION_ID, ownBundleIdentifier);
    pulse().pa_proplist_sets(properties, PA_PROP_APPLICATION_ICON_NAME, ownBundleIdentifier);
    m_own.context.reset(pulse().pa_context_new_with_proplist(m_loop.api(), "Norvin Focus", properties));
    pulse().pa_proplist_free(properties);
    if (!m_own.context) {
        m_listener.connectionFailed(PA_ERR_INTERNAL);
        return;
    }
    pulse().pa_context_set_state_callback(
        m_own.context.get(), [](pa_context*, void* userdata) { connectionOf(userdata).contextChanged(); },
        this);
    // A callback may have told of the failure already, and have it closed.
    if (pulse().pa_context_connect(m_own.context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0 &&
        m_own.context)
        fail();
}

void PulseConnection::contextChanged() {
    switch (pulse().pa_context_get_state(m_own.context.get())) {
    case PA_CONTEXT_READY:
        m_listener.serverReady();
        return;
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        fail();
        return;
    default:
        return;
    }
}

void PulseConnection::openStream(const pa_sample_spec& format, const pa_buffer_attr& buffer, Begin begin) {
    m_own.stream.reset(pulse().pa_stream_new(m_own.context.get(), "Norvin Focus", &format, nullptr));
    if (!m_own.stream) {
        fail();
        return;
    }
    pulse().pa_stream_set_state_callback(
        m_own.stream.get(), [](pa_stream*, void* userdata) { connectionOf(userdata).streamChanged(); }, this);
    const pa_stream_flags_t flags = begin == Begin::held ? PA_STREAM_START_CORKED : PA_STREAM_NOFLAGS;
    if (pulse().pa_stream_connect_playback(m_own.stream.get(), nullptr, &buffer, flags, nullptr, nullptr) <
            0 &&
        m_own.stream)
        fail();
}

void PulseConnection::streamChanged() {
    switch (pulse().pa_stream_get_state(m_own.stream.get())) {
    case PA_STREAM_READY:
        m_listener.streamReady();
        return;
    case PA_STREAM_FAILED:
    case PA_STREAM_TERMINATED:
        fail();
        return;
    default:
        return;
    }
}

void PulseConnection::fail() {
    m_listener.connectionFailed(pulse().pa_context_errno(m_own.context.get()));
}

void PulseConnection::ask(pa_operation* operation) {
    if (operation)
        pulse().pa_operation_unref(operation);
    else
        fail();
}

// libpulse does not expect to be disconnected from within every one of its callbacks.
void PulseConnection::closeLater() {
    if (m_own.stream) {
        pulse().pa_stream_set_state_callback(m_own.stream.get(), nullptr, nullptr);
        pulse().pa_stream_set_write_callback(m_own.stream.get(), nullptr, nullptr);
    }
    if (m_own.context)
        pulse().pa_context_set_state_callback(m_own.context.get(), nullptr, nullptr);
    m_discarded.push_back(std::exchange(m_own, {}));
    QMetaObject::invokeMethod(
        &m_turn, [this] { m_discarded.clear(); }, Qt::QueuedConnection);
}

Availability PulseConnection::availabilityOf(int error) {
    const PulseLibrary* const library = PulseLibrary::find();
    const QString detail = library != nullptr ? QString::fromUtf8(library->pa_strerror(error))
                                              : QStringLiteral("libpulse.so.0 is missing");
    switch (error) {
    case PA_ERR_TIMEOUT:
        return Availability::unavailable(QStringLiteral("health_sound_server_silent"), detail);
    case PA_ERR_NOENTITY:
        return Availability::unavailable(QStringLiteral("health_no_sound_device"), detail);
    default:
        return Availability::unavailable(QStringLiteral("health_no_sound_server"), detail);
    }
}

} // namespace norvin
