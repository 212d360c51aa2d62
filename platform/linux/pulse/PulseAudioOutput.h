#pragma once

#include "platform/AudioOutput.h"
#include "platform/linux/pulse/PulseConnection.h"

#include <deque>
#include <memory>
#include <optional>

struct pa_stream;

namespace norvin {

class Clock;
class ClockTimer;

/// A stream to PulseAudio, or to PipeWire in its place. Connects when there is something to play, and holds
/// its stream while it has nothing to play, so that the output can rest. A server that is gone is tried
/// again, at most every few seconds, by what is queued next; one that does not answer is waited for, and what
/// was to be played meanwhile is dropped.
///
/// Unavailable with "health_no_sound_server", with "health_sound_server_silent" where there is a server that
/// does not answer, or with "health_no_sound_device" where it has no output, until a connection succeeds.
class PulseAudioOutput final : public AudioOutput, private PulseConnection::Listener {
    Q_OBJECT
public:
    /// @param clock must outlive this
    /// @param sampleRate frames a second
    PulseAudioOutput(Clock& clock, int sampleRate, QObject* parent = nullptr);
    ~PulseAudioOutput() override;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] int sampleRate() const override { return m_sampleRate; }
    void queue(std::vector<float> samples) override;

    /// Whether a server answers, found out in the background without a stream.
    void probe();

private:
    using Time = std::chrono::milliseconds; // of the clock's monotonic()

    // "held" is the rest between sounds; a server is waited for while connecting, releasing and holding.
    enum class State { disconnected, connecting, held, releasing, playing, holding };

    struct Waiting {
        std::vector<float> samples;
        Time latestStart;
    };

    static void streamAnswered(pa_stream* stream, int success, void* userdata);

    void serverReady() override;
    void streamReady() override;
    void connectionFailed(int error) override { fail(error); }
    void connectToServer();
    void openStream();
    void advance();
    void write();
    [[nodiscard]] Time lengthOf(const std::vector<float>& samples) const;
    void setHeld(bool held);
    void answered();
    void noticeSilence();
    void disconnectLater();
    void fail(int error);
    void setAvailability(const Availability& availability);

    Clock& m_clock;
    int m_sampleRate;
    PulseConnection m_connection;
    State m_state = State::disconnected;
    bool m_isProbing = false;
    std::deque<Waiting> m_waiting;
    // When all that was written will have been heard, if the server does its work.
    Time m_soundEnd{0};
    // Runs while sound is under way.
    std::unique_ptr<ClockTimer> m_holdTimer;
    // When the server should have answered what it was asked last.
    Time m_answerDue{0};
    Time m_retryAt{0};
    Time m_backOff{0};
    Availability m_availability = Availability::available();
};

} // namespace norvin
