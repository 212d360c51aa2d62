#pragma once

#include "DesktopRig.h"

#include <QFile>
#include <QProcess>
#include <QtTest>

#include <csignal>
#include <cstring>
#include <vector>

/// A sound server of the test's own, with an output called "norvin" that nobody hears but is recorded.
class PulseServer final {
public:
    /// @param channels of the output and of what is recorded
    explicit PulseServer(int channels)
        : m_channels(channels) {
        qputenv("PULSE_SERVER", "unix:" + m_rig.filePath(QStringLiteral("pulse")).toLocal8Bit());
        qputenv("PULSE_RUNTIME_PATH", m_rig.filePath(QStringLiteral("runtime")).toLocal8Bit());
    }

    /// @param options of its output, besides
    bool start(const QString& options = {}) {
        return startWith({QStringLiteral("-L"),
                          QStringLiteral(
                              "module-null-sink sink_name=norvin rate=44100 channels=%1 format=float32le ")
                                  .arg(m_channels) +
                              options}) &&
               startRecording();
    }
    /// Without any output but those of the options.
    bool startWith(const QStringList& options) {
        m_server =
            m_rig.start(QStringLiteral("pulseaudio"),
                        QStringList{QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                                    QStringLiteral("--exit-idle-time=-1"), QStringLiteral("-L"),
                                    QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=") +
                                        m_rig.filePath(QStringLiteral("pulse"))} +
                            options);
        return QTest::qWaitFor([] { return !pactl({QStringLiteral("info")}).isEmpty(); });
    }
    void stop() {
        if (m_server)
            m_rig.kill(m_server);
    }
    void signal(int number) const { ::kill(static_cast<pid_t>(m_server->processId()), number); }

    /// Everything that was played since it was asked last, channel after channel.
    std::vector<float> recorded() {
        QFile file(m_rig.filePath(m_recording));
        if (!file.open(QIODevice::ReadOnly) || !file.seek(m_read))
            return {};
        const QByteArray bytes = file.readAll();
        const auto frameBytes = static_cast<qsizetype>(sizeof(float)) * m_channels;
        const qsizetype whole = bytes.size() / frameBytes * frameBytes;
        std::vector<float> samples(static_cast<size_t>(whole) / sizeof(float));
        std::memcpy(samples.data(), bytes.constData(), static_cast<size_t>(whole));
        m_read += whole;
        return samples;
    }

    static QByteArray pactl(const QStringList& arguments) {
        return DesktopRig::run(QStringLiteral("pactl"), arguments);
    }
    /// What the server says of the streams to it.
    static QByteArray streams() { return pactl({QStringLiteral("list"), QStringLiteral("sink-inputs")}); }

private:
    bool startRecording() {
        m_recording = QStringLiteral("recording-%1").arg(++m_recordings);
        m_read = 0;
        m_rig.start(QStringLiteral("parec"),
                    {QStringLiteral("--device=norvin.monitor"), QStringLiteral("--raw"),
                     QStringLiteral("--format=float32le"), QStringLiteral("--rate=44100"),
                     QStringLiteral("--channels=%1").arg(m_channels), QStringLiteral("--latency-msec=20"),
                     m_rig.filePath(m_recording)});
        return QTest::qWaitFor([this] { return !m_rig.readFile(m_recording).isEmpty(); });
    }

    DesktopRig m_rig;
    int m_channels;
    QProcess* m_server = nullptr;
    QString m_recording;
    int m_recordings = 0;
    qint64 m_read = 0; // bytes
};
