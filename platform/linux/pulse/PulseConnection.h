#pragma once

#include "platform/Availability.h"
#include "platform/linux/pulse/PulseEventLoop.h"

#include <QObject>

#include <memory>
#include <vector>

struct pa_buffer_attr;
struct pa_context;
struct pa_operation;
struct pa_sample_spec;
struct pa_stream;

namespace norvin {

class Clock;

/// The way to PulseAudio, or to PipeWire in its place, over libpulse's asynchronous interface: a connection,
/// and on it one stream to play. Never starts a server, and never waits for one.
class PulseConnection final {
public:
    class Listener {
    public:
        Listener() = default;
        Listener(const Listener&) = delete;
        Listener& operator=(const Listener&) = delete;

        virtual void serverReady() = 0;
        virtual void streamReady() = 0;
        /// Nothing more comes of this connection, which is to be closed. @param error one of libpulse's
        virtual void connectionFailed(int error) = 0;

    protected:
        ~Listener() = default;
    };
    enum class Begin { playing, held };

    /// @param listener both must outlive this
    PulseConnection(Clock& clock, Listener& listener);
    ~PulseConnection();
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;

    /// Asks for the server. There must be no connection.
    void open();
    /// Asks for the stream, once the server is ready.
    void openStream(const pa_sample_spec& format, const pa_buffer_attr& buffer, Begin begin);
    /// Forgets both, also from within one of their callbacks. Does nothing where there are none.
    void closeLater();
    /// Fails where there is no operation; else forgets it: its answer comes by its callback.
    void ask(pa_operation* operation);
    /// Fails with the error of the call before.
    void fail();

    /// Null while there is none.
    [[nodiscard]] pa_stream* stream() const { return m_own.stream.get(); }

    /// What a user is told of an error of libpulse: "health_no_sound_server", "health_sound_server_silent"
    /// where there is a server that does not answer, or "health_no_sound_device" where it has no output.
    [[nodiscard]] static Availability availabilityOf(int error);

private:
    struct Disconnect {
        void operator()(pa_context* context) const;
        void operator()(pa_stream* stream) const;
    };
    struct Handles {
        std::unique_ptr<pa_context, Disconnect> context;
        std::unique_ptr<pa_stream, Disconnect> stream;
    };

    void contextChanged();
    void streamChanged();

    Listener& m_listener;
    PulseEventLoop m_loop;
    Handles m_own;
    std::vector<Handles> m_discarded;
    // What is put off goes with it.
    QObject m_turn;
};

} // namespace norvin
