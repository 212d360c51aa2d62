#include "platform/Log.h"
#include "platform/fake/FakeAudioOutput.h"
#include "platform/fake/FakeClock.h"
#include "platform/linux/clock/SystemClock.h"
#include "platform/linux/pulse/PulseAudioOutput.h"
#include "support/PulseServer.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <csignal>

using namespace norvin;
using namespace std::chrono_literals;

namespace {

constexpr int rate = 44100;
// Peak of what must not be heard; all else is above zero.
constexpr float missed = -0.5F;

/// No sample of it is zero, and no two such sounds of different peaks are alike.
std::vector<float> sound(std::chrono::milliseconds length, float peak) {
    std::vector<float> samples(static_cast<size_t>(length.count()) * rate / 1000);
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = peak * static_cast<float>(i + 1) / static_cast<float>(samples.size());
    return samples;
}

std::vector<float> operator+(std::vector<float> first, const std::vector<float>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

using Heard = QList<std::vector<float>>;

/// Without the silences.
std::vector<float> joined(const Heard& bursts) {
    std::vector<float> samples;
    for (const std::vector<float>& burst : bursts)
        samples = std::move(samples) + burst;
    return samples;
}

/// An output, and somebody who listens to it.
class Listener {
public:
    Listener() = default;
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    virtual ~Listener() = default;

    virtual AudioOutput& output() = 0;
    virtual bool startServer() = 0;
    virtual void stopServer() = 0;
    /// What was heard between silences.
    virtual Heard heard() = 0;
};

class FakeListener final : public Listener {
public:
    AudioOutput& output() override { return m_output; }
    bool startServer() override {
        m_output.setAvailability(Availability::available());
        return true;
    }
    void stopServer() override {
        m_output.setAvailability(Availability::unavailable(QStringLiteral("health_no_sound_server")));
    }
    Heard heard() override {
        m_clock.advance(1s);
        Heard bursts;
        std::chrono::milliseconds end{0};
        for (const FakeAudioOutput::Sound& played : m_output.played()) {
            if (!bursts.isEmpty() && played.start == end)
                bursts.last() = bursts.last() + played.samples;
            else
                bursts.append(played.samples);
            end = played.start + std::chrono::milliseconds(played.samples.size() * 1000 / rate);
        }
        return bursts;
    }

private:
    FakeClock m_clock;
    FakeAudioOutput m_output{m_clock, rate};
};

class PulseListener final : public Listener {
public:
    AudioOutput& output() override { return m_output; }

    // What the output takes back to begin a sound sooner has been recorded already; this one takes nothing
    // back.
    bool startServer() override {
        m_isSilent = true;
        return m_server.start(QStringLiteral("norewinds=1"));
    }
    void stopServer() override { m_server.stop(); }
    PulseServer& server() { return m_server; }
    void signalServer(int signal) const { m_server.signal(signal); }

    Heard heard() override {
        for (const float sample : m_server.recorded()) {
            if (sample != 0.0F && m_isSilent)
                m_heard.append(std::vector<float>());
            m_isSilent = sample == 0.0F;
            if (!m_isSilent)
                m_heard.last().push_back(sample);
        }
        // The last one may go on.
        return m_isSilent ? m_heard : m_heard.first(m_heard.size() - 1);
    }

    /// Whether the server sees a stream of ours that rests.
    static bool isHeld() { return PulseServer::streams().contains("Corked: yes"); }

private:
    PulseServer m_server{1};
    SystemClock m_clock;
    PulseAudioOutput m_output{m_clock, rate};
    bool m_isSilent = true;
    Heard m_heard;
};

} // namespace

class AudioOutputTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        setLogSink([this](const QString& line) { m_lines.append(line); });
    }
    void cleanup() {
        setLogSink({});
        m_lines.clear();
    }

    void playsInOrderAndNeverMixes_data() { implementations(); }
    void playsInOrderAndNeverMixes();
    void whatWasMissedIsNotMadeUpFor_data() { implementations(); }
    void whatWasMissedIsNotMadeUpFor();
    void aServerThatHangsHoldsUpNobody();
    void aServerThatNeverAnsweredIsWaitedFor();
    void saysWhatIsMissing();

private:
    static void implementations() {
        QTest::addColumn<bool>("isReal");
        QTest::newRow("fake") << false;
        QTest::newRow("PulseAudio") << true;
    }
    static std::unique_ptr<Listener> makeListener() {
        QFETCH(bool, isReal);
        if (isReal)
            return std::make_unique<PulseListener>();
        return std::make_unique<FakeListener>();
    }

    /// As a session does: sound after sound until one of them is heard.
    static bool playUntilHeard(Listener& listener, float peak) {
        for (int sounds = 0; sounds < 20; ++sounds) {
            listener.output().queue(sound(40ms, peak));
            if (QTest::qWaitFor([&] { return listener.heard().contains(sound(40ms, peak)); }, 1000))
                return true;
        }
        return false;
    }
    static void waitFor(std::chrono::milliseconds time) {
        SystemClock clock;
        bool isOver = false;
        const auto timer = clock.after(time, [&isOver] { isOver = true; });
        QTRY_VERIFY(isOver);
    }
    static bool wasHeard(Listener& listener, float peak) {
        const Heard heard = listener.heard();
        return std::any_of(heard.cbegin(), heard.cend(), [peak](const std::vector<float>& burst) {
            return std::find(burst.cbegin(), burst.cend(), peak) != burst.cend();
        });
    }
    /// Sound after sound on a server that does not answer, until that is noticed and none of them is wanted
    /// any more.
    static void queueUntilSilent(PulseListener& listener);

    QStringList m_lines;
};

void AudioOutputTest::playsInOrderAndNeverMixes() {
    const std::unique_ptr<Listener> listener = makeListener();
    QVERIFY(listener->startServer());
    AudioOutput& output = listener->output();
    QCOMPARE(output.sampleRate(), rate);

    output.queue({});
    output.queue(sound(60ms, 0.5F));
    output.queue(sound(40ms, 0.25F));
    std::vector<float> expected = sound(60ms, 0.5F) + sound(40ms, 0.25F);
    QTRY_COMPARE(joined(listener->heard()), expected);

    // The third could not begin in time.
    output.queue(sound(300ms, 0.5F));
    output.queue(sound(300ms, 0.375F));
    output.queue(sound(40ms, 0.75F));
    expected = expected + sound(300ms, 0.5F) + sound(300ms, 0.375F);
    QTRY_COMPARE(joined(listener->heard()), expected);
    output.queue(sound(40ms, 1.0F));
    expected = expected + sound(40ms, 1.0F);
    QTRY_COMPARE(joined(listener->heard()), expected);
}

void AudioOutputTest::whatWasMissedIsNotMadeUpFor() {
    const std::unique_ptr<Listener> listener = makeListener();
    AudioOutput& output = listener->output();
    QSignalSpy changed(&output, &AudioOutput::availabilityChanged);
    listener->stopServer();
    output.queue(sound(40ms, missed));
    QTRY_VERIFY(!output.availability().isAvailable());
    QCOMPARE(output.availability().reason()->reasonKey, QStringLiteral("health_no_sound_server"));

    // Tried anew by what is queued, as often as it is.
    QVERIFY(listener->startServer());
    QVERIFY(playUntilHeard(*listener, 0.25F));
    QVERIFY(output.availability().isAvailable());
    QCOMPARE(changed.size(), 2);

    listener->stopServer();
    QTRY_VERIFY(!output.availability().isAvailable());
    output.queue(sound(40ms, missed));
    QVERIFY(listener->startServer());
    QVERIFY(playUntilHeard(*listener, 1.0F));
    QVERIFY(!wasHeard(*listener, missed));
}

void AudioOutputTest::queueUntilSilent(PulseListener& listener) {
    AudioOutput& output = listener.output();
    qint64 longest = 0;
    QTRY_VERIFY_WITH_TIMEOUT(
        [&] {
            QElapsedTimer timer;
            timer.start();
            output.queue(sound(40ms, missed));
            longest = std::max(longest, timer.nsecsElapsed());
            return !output.availability().isAvailable();
        }(),
        20'000);
    qInfo("the longest call on a server that hangs: %lld us", longest / 1000);
    QCOMPARE(output.availability().reason()->reasonKey, QStringLiteral("health_sound_server_silent"));
    waitFor(2 * AudioOutput::longestDelay);
}

void AudioOutputTest::aServerThatHangsHoldsUpNobody() {
    PulseListener listener;
    QVERIFY(listener.startServer());
    QVERIFY(playUntilHeard(listener, 0.25F));
    // Nothing is asked of the server between sounds, so that its output can rest as well.
    QTRY_VERIFY(PulseListener::isHeld());

    listener.signalServer(SIGSTOP);
    queueUntilSilent(listener);
    listener.signalServer(SIGCONT);
    QVERIFY(playUntilHeard(listener, 1.0F));
    QVERIFY(listener.output().availability().isAvailable());
    QVERIFY(!wasHeard(listener, missed));

    // And while a sound is under way.
    listener.output().queue(sound(400ms, 0.75F));
    QTRY_VERIFY(!PulseListener::isHeld());
    listener.signalServer(SIGSTOP);
    waitFor(400ms + 2 * AudioOutput::longestDelay);
    queueUntilSilent(listener);
    listener.signalServer(SIGCONT);
    QVERIFY(playUntilHeard(listener, 0.875F));
    QVERIFY(!wasHeard(listener, missed));
}

void AudioOutputTest::aServerThatNeverAnsweredIsWaitedFor() {
    PulseListener listener;
    QVERIFY(listener.startServer());
    listener.signalServer(SIGSTOP);
    queueUntilSilent(listener);
    listener.signalServer(SIGCONT);
    QVERIFY(playUntilHeard(listener, 1.0F));
    QVERIFY(listener.output().availability().isAvailable());
    QVERIFY(!wasHeard(listener, missed));
}

void AudioOutputTest::saysWhatIsMissing() {
    PulseListener listener;
    auto& output = static_cast<PulseAudioOutput&>(listener.output());
    output.probe();
    QTRY_VERIFY(!output.availability().isAvailable());
    QCOMPARE(output.availability().reason()->reasonKey, QStringLiteral("health_no_sound_server"));
    QVERIFY(!output.availability().reason()->detail.isEmpty());
    QCOMPARE(m_lines.size(), 1);
    QVERIFY(m_lines.first().startsWith(QLatin1String("PulseAudioOutput: ")));

    QVERIFY(listener.server().startWith({}));
    output.probe();
    QTRY_VERIFY(output.availability().isAvailable());
    output.queue(sound(40ms, 0.5F));
    QTRY_VERIFY(!output.availability().isAvailable());
    QCOMPARE(output.availability().reason()->reasonKey, QStringLiteral("health_no_sound_device"));
    PulseServer::pactl({QStringLiteral("load-module"), QStringLiteral("module-null-sink")});
    QTRY_VERIFY_WITH_TIMEOUT((output.queue(sound(40ms, 0.5F)), output.availability().isAvailable()), 10'000);
}

QTEST_GUILESS_MAIN(AudioOutputTest)
#include "tst_AudioOutput.moc"
