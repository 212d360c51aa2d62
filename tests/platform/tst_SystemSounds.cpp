#include "platform/Log.h"
#include "platform/linux/canberra/CanberraSounds.h"
#include "support/DesktopRig.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <sys/ioctl.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstring>
#include <linux/sockios.h>
#include <vector>

using namespace norvin;

/// Runs against a sound server of the test's own, with a sink that nobody hears.
class SystemSoundsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_ownThreads = threadCount(); }

    void init() {
        setLogSink([](const QString&) {});
        m_rig = std::make_unique<DesktopRig>();
        m_socket = m_rig->filePath(QStringLiteral("pulse"));
        qputenv("PULSE_SERVER", "unix:" + m_socket.toLocal8Bit());
        qputenv("PULSE_RUNTIME_PATH", m_rig->filePath(QStringLiteral("runtime")).toLocal8Bit());
        qputenv("CANBERRA_DRIVER", "pulse");
        m_streams.clear();
    }

    void cleanup() {
        m_rig.reset();
        // Workers that were left behind notice the end of their server.
        QTRY_COMPARE_WITH_TIMEOUT(threadCount(), m_ownThreads, 20'000);
        setLogSink({});
    }

    void saysWhenThereIsNoServerAndRecovers() {
        CanberraSounds sounds;
        QSignalSpy changed(&sounds, &SystemSounds::availabilityChanged);
        sounds.probe();
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(sounds.availability().reason()->reasonKey, QStringLiteral("health_no_sound_server"));
        QVERIFY(!sounds.availability().reason()->detail.isEmpty());

        QProcess* server = startServer();
        QVERIFY(server);
        sounds.play(QStringLiteral("Ping"), 0.5);
        QTRY_VERIFY(sounds.availability().isAvailable());

        // A server that was replaced is found again by the next sound.
        m_rig->kill(server);
        QVERIFY(startServer());
        sounds.play(QStringLiteral("Submarine"), 1.0);
        QTRY_COMPARE(streamsPlayed(), 1);
        QVERIFY(sounds.availability().isAvailable());
    }

    void playsEveryNameItKnows() {
        QVERIFY(startServer());
        CanberraSounds sounds;
        QSignalSpy changed(&sounds, &SystemSounds::availabilityChanged);
        sounds.play(QStringLiteral("No such sound"), 1.0);
        sounds.play(QStringLiteral("Ping"), 0.0);
        int expected = 0;
        for (const char* name : {"Ping", "Blow", "Bottle", "Pop", "Glass", "Submarine"}) {
            QVERIFY(startRecording());
            sounds.play(QString::fromLatin1(name), 1.0);
            ++expected;
            QTRY_COMPARE(streamsPlayed(), expected);
            QTRY_VERIFY2(loudestHeard() > 0.05F, name);
            QTRY_VERIFY_WITH_TIMEOUT(sinkInputs().isEmpty(), 15'000);
        }
        sounds.beep();
        sounds.play(QStringLiteral("Submarine"), 1.0); // after the beep has been reported on
        QTRY_VERIFY(streamsPlayed() > expected);
        // None of them was missing from the theme.
        QCOMPARE(changed.size(), 0);
    }

    void aHungServerHoldsUpNobody() {
        QProcess* server = startServer();
        QVERIFY(server);
        auto sounds = std::make_unique<CanberraSounds>();
        sounds->play(QStringLiteral("Ping"), 1.0);
        QTRY_COMPARE(streamsPlayed(), 1);
        QTRY_VERIFY(sinkInputs().isEmpty());
        ::kill(static_cast<pid_t>(server->processId()), SIGSTOP);
        QSignalSpy changed(sounds.get(), &SystemSounds::availabilityChanged);
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 50; ++i)
            sounds->play(QStringLiteral("Pop"), 1.0);
        sounds->beep();
        qInfo("51 calls on a hung server: %lld us", timer.nsecsElapsed() / 1000);
        // The worker has asked and waits; the library reports a failure only when it has waited for long.
        QTRY_VERIFY(hasUnreadRequests());
        QCOMPARE(changed.size(), 0);

        timer.restart();
        sounds.reset();
        qInfo("end with a hung server: %lld ms", timer.elapsed());
        // The worker still waits for the server, left behind, and ends by itself when the server goes on.
        QVERIFY(threadCount() > m_ownThreads);
        ::kill(static_cast<pid_t>(server->processId()), SIGCONT);
        QTRY_COMPARE_WITH_TIMEOUT(threadCount(), m_ownThreads, 20'000);
    }

private:
    QProcess* startServer() {
        // Without its shared ring buffer, what it has not read yet is seen on the socket.
        QProcess* server = m_rig->start(
            QStringLiteral("pulseaudio"),
            {QStringLiteral("-n"), QStringLiteral("--daemonize=no"), QStringLiteral("--exit-idle-time=-1"),
             QStringLiteral("-L"),
             QStringLiteral("module-native-protocol-unix auth-anonymous=1 srbchannel=0 socket=") + m_socket,
             QStringLiteral("-L"), QStringLiteral("module-null-sink sink_name=norvin norewinds=1")});
        const bool started = QTest::qWaitFor(
            [] { return !DesktopRig::run(QStringLiteral("pactl"), {QStringLiteral("info")}).isEmpty(); });
        return started ? server : nullptr;
    }

    /// Records what is played from now on.
    bool startRecording() {
        m_recording = QStringLiteral("recording-%1").arg(m_streams.size());
        m_rig->start(QStringLiteral("parec"),
                     {QStringLiteral("--device=norvin.monitor"), QStringLiteral("--raw"),
                      QStringLiteral("--format=float32le"), QStringLiteral("--latency-msec=20"),
                      m_rig->filePath(m_recording)});
        return QTest::qWaitFor([this] { return !m_rig->readFile(m_recording).isEmpty(); });
    }
    [[nodiscard]] float loudestHeard() const {
        const QByteArray bytes = m_rig->readFile(m_recording);
        std::vector<float> samples(static_cast<size_t>(bytes.size()) / sizeof(float));
        std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(float));
        const auto loudest = std::max_element(samples.cbegin(), samples.cend(),
                                              [](float a, float b) { return std::abs(a) < std::abs(b); });
        return loudest == samples.cend() ? 0 : std::abs(*loudest);
    }

    static qsizetype threadCount() {
        return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    }

    /// Whether a socket of this process holds something that its other end has not read yet.
    static bool hasUnreadRequests() {
        const QStringList descriptors =
            QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System);
        return std::any_of(descriptors.begin(), descriptors.end(), [](const QString& descriptor) {
            int unread = 0;
            return ioctl(descriptor.toInt(), SIOCOUTQ, &unread) == 0 && unread > 0;
        });
    }

    static QByteArray sinkInputs() {
        return DesktopRig::run(QStringLiteral("pactl"), {QStringLiteral("list"), QStringLiteral("short"),
                                                         QStringLiteral("sink-inputs")});
    }

    // Streams seen so far, this one among them; very short sounds may pass between two looks.
    [[nodiscard]] int streamsPlayed() {
        for (const QByteArray& line : sinkInputs().split('\n')) {
            if (!line.isEmpty())
                m_streams.insert(line.split('\t').first());
        }
        return static_cast<int>(m_streams.size());
    }

    std::unique_ptr<DesktopRig> m_rig;
    QString m_socket;
    qsizetype m_ownThreads = 0;
    QSet<QByteArray> m_streams;
    QString m_recording;
};

QTEST_GUILESS_MAIN(SystemSoundsTest)
#include "tst_SystemSounds.moc"
