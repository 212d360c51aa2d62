#include "platform/Log.h"
#include "platform/linux/clock/SystemClock.h"
#include "platform/linux/pulse/PulseSoundStream.h"
#include "support/PulseServer.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using namespace norvin;
using namespace std::chrono_literals;

namespace {

constexpr int rate = 44100;

/// A slow wave whose strength glides to what is wanted, so that every gap and every spring in it shows.
class Wave final : public SoundSource {
public:
    static constexpr std::int64_t glide = rate / 10;

    void want(float strength) { m_wanted = strength; }
    [[nodiscard]] int resets() const { return m_resets; }

    [[nodiscard]] bool hasSound() const override { return m_wanted > 0; }
    void reset() override {
        ++m_resets;
        m_from = 0;
        m_to = 0;
        m_begin = 0;
    }
    bool fill(std::int64_t first, std::span<SoundFrame> frames) override {
        if (m_wanted != m_to) {
            m_from = strengthAt(first);
            m_to = m_wanted;
            m_begin = first;
        }
        for (size_t i = 0; i < frames.size(); ++i) {
            const std::int64_t frame = first + static_cast<std::int64_t>(i);
            const float wave = std::sin(static_cast<float>(frame % rate) * 6.2831853F * 50 / rate);
            frames[i] = {strengthAt(frame) * wave, -strengthAt(frame) * wave};
        }
        return m_to > 0 || strengthAt(first + static_cast<std::int64_t>(frames.size())) > 0;
    }

private:
    [[nodiscard]] float strengthAt(std::int64_t frame) const {
        const float way = std::clamp(static_cast<float>(frame - m_begin) / glide, 0.0F, 1.0F);
        return m_from + (m_to - m_from) * way;
    }

    float m_wanted = 0;
    float m_from = 0;
    float m_to = 0;
    std::int64_t m_begin = 0;
    int m_resets = 0;
};

/// A stream to a server, with somebody who listens.
struct Listener {
    static constexpr std::int64_t window = rate / 10; // some periods of the wave

    PulseServer server{2};
    SystemClock clock;
    Wave wave;
    PulseSoundStream stream{clock, rate};
    std::int64_t frames = 0;
    float strength = 0; ///< in the last whole window
    float weakest = 1;  ///< of the windows since it was set
    float spring = 0;   ///< the largest from one frame to the next

    Listener() { stream.setSource(&wave); }
    void listen() {
        const std::vector<float> samples = server.recorded();
        for (size_t i = 0; i < samples.size(); i += 2) {
            spring = std::max(spring, std::abs(samples[i] - m_last));
            m_last = samples[i];
            m_peak = std::max(m_peak, std::abs(samples[i]));
            if (++frames % window != 0)
                continue;
            strength = m_peak;
            weakest = std::min(weakest, strength);
            m_peak = 0;
        }
    }
    void want(float wanted) {
        wave.want(wanted);
        stream.refresh();
    }
    /// Whether it comes to be that strong.
    bool hears(float expected, int patience = 5000) {
        return QTest::qWaitFor(
            [this, expected] {
                listen();
                return std::abs(strength - expected) < 0.01F;
            },
            patience);
    }
    bool hearsFor(std::chrono::milliseconds length) {
        const std::int64_t end = frames + length.count() * rate / 1000;
        return QTest::qWaitFor(
            [this, end] {
                listen();
                return frames >= end;
            },
            20'000);
    }

private:
    float m_last = 0;
    float m_peak = 0;
};

} // namespace

class SoundStreamTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        setLogSink([](const QString&) {});
    }
    void cleanup() { setLogSink({}); }

    void changesAreHeardSoonWithoutASpring();
    void aServerThatIsGoneIsTriedAgain();
    void aServerThatHangsHoldsUpNobody();
};

void SoundStreamTest::changesAreHeardSoonWithoutASpring() {
    Listener listener;
    QVERIFY(listener.server.start(QStringLiteral("norewinds=1")));
    listener.want(0.5F);
    QVERIFY(listener.hears(0.5F));
    // Two seconds of it are on their way by now; these changes do not wait for them.
    QElapsedTimer timer;
    timer.start();
    listener.want(0.25F);
    QVERIFY(listener.hears(0.25F));
    qInfo("a change was heard after %lld ms", timer.elapsed());
    QVERIFY(listener.stream.availability().isAvailable());
    for (int i = 0; i < 10; ++i) {
        listener.want(i % 2 == 0 ? 0.4F : 0.25F);
        QVERIFY(listener.hearsFor(30ms));
    }
    QVERIFY(listener.hears(0.25F));
    // Much longer than all that is made ahead.
    listener.weakest = 1;
    QVERIFY(listener.hearsFor(6s));
    QVERIFY(std::abs(listener.weakest - 0.25F) < 0.01F);
    listener.want(0);
    QVERIFY(listener.hears(0));
    QVERIFY2(listener.spring < 0.5F * 6.29F * 50 / rate * 1.5F, qPrintable(QString::number(listener.spring)));
    // Nothing is left of it at the server.
    QTRY_VERIFY(PulseServer::streams().isEmpty());

    listener.want(0.5F);
    QVERIFY(listener.hears(0.5F));
    listener.stream.setSource(nullptr);
    QVERIFY(listener.hears(0));
}

void SoundStreamTest::aServerThatIsGoneIsTriedAgain() {
    Listener listener;
    QSignalSpy changed(&listener.stream, &SoundStream::availabilityChanged);
    listener.want(0.5F);
    QTRY_VERIFY(!listener.stream.availability().isAvailable());
    QCOMPARE(listener.stream.availability().reason()->reasonKey, QStringLiteral("health_no_sound_server"));
    QVERIFY(listener.server.start());
    QVERIFY(listener.hears(0.5F, 20'000));
    QVERIFY(listener.stream.availability().isAvailable());

    listener.server.stop();
    QTRY_VERIFY(!listener.stream.availability().isAvailable());
    // Nobody is told of a server that is not needed.
    listener.want(0);
    QVERIFY(listener.stream.availability().isAvailable());
    listener.want(0.25F);
    QVERIFY(listener.server.start());
    QVERIFY(listener.hears(0.25F, 20'000));
}

void SoundStreamTest::aServerThatHangsHoldsUpNobody() {
    Listener listener;
    QVERIFY(listener.server.start());
    listener.want(0.5F);
    QVERIFY(listener.hears(0.5F));
    listener.server.signal(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    listener.want(0.25F);
    listener.want(0.4F);
    QVERIFY(timer.elapsed() < 1000);
    QTRY_VERIFY_WITH_TIMEOUT(!listener.stream.availability().isAvailable(), 10'000);
    QCOMPARE(listener.stream.availability().reason()->reasonKey,
             QStringLiteral("health_sound_server_silent"));
    listener.server.signal(SIGCONT);
    QVERIFY(listener.hears(0.4F, 10'000));
    QVERIFY(listener.stream.availability().isAvailable());
}

QTEST_GUILESS_MAIN(SoundStreamTest)
#include "tst_SoundStream.moc"
