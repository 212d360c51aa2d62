#pragma once

#include "platform/SoundStream.h"
#include "platform/linux/pulse/PulseConnection.h"

#include <chrono>
#include <memory>
#include <vector>

namespace norvin {

class Clock;
class ClockTimer;

/// A stream in two channels to PulseAudio, or to PipeWire in its place, two seconds ahead of what is heard.
/// It is there while its source has sound, and gone when all of it was heard. A server that is gone is tried
/// again, less and less often, for as long as there is sound for it; one that does not answer is waited for.
///
/// Unavailable as PulseConnection::availabilityOf() says, until a connection succeeds or nothing is to be
/// played.
class PulseSoundStream final : public SoundStream, private PulseConnection::Listener {
    Q_OBJECT
public:
    /// @param clock must outlive this
    /// @param sampleRate frames a second
    PulseSoundStream(Clock& clock, int sampleRate, QObject* parent = nullptr);
    ~PulseSoundStream() override;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] int sampleRate() const override { return m_sampleRate; }
    void setSource(SoundSource* source) override;
    void refresh() override;

private:
    enum class State { resting, connecting, playing };

    static void timingTold(pa_stream* stream, int success, void* userdata);
    static void framesWanted(pa_stream* stream, size_t bytes, void* userdata);

    void serverReady() override;
    void streamReady() override;
    void connectionFailed(int error) override;
    void connectToServer();
    void askTiming();
    void replaceUnheard();
    void writeWanted();
    void write(std::int64_t first, std::int64_t count);
    void expectAnswer(std::chrono::milliseconds within);
    void end();
    [[nodiscard]] std::int64_t framesIn(std::chrono::milliseconds length) const;
    [[nodiscard]] std::chrono::milliseconds lengthOf(std::int64_t frames) const;
    void setAvailability(const Availability& availability);

    Clock& m_clock;
    int m_sampleRate;
    PulseConnection m_connection;
    SoundSource* m_source = nullptr;
    State m_state = State::resting;
    // Frames of the stream that were made; replaced ones count once.
    std::int64_t m_made = 0;
    bool m_goesOn = false;
    // While the server is asked how much it has played, nothing is written: the source could not take up what
    // changes where it is heard first.
    bool m_asks = false;
    bool m_asksAgain = false;
    std::vector<SoundFrame> m_buffer;
    // Runs while everything that is to be heard is made.
    std::unique_ptr<ClockTimer> m_end;
    // Runs while the server has something to answer.
    std::unique_ptr<ClockTimer> m_answer;
    std::unique_ptr<ClockTimer> m_retry;
    std::chrono::milliseconds m_backOff{0};
    Availability m_availability = Availability::available();
};

} // namespace norvin
