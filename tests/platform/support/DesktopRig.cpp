#include "DesktopRig.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <sys/prctl.h>

#include <algorithm>
#include <csignal>

namespace {

constexpr int patienceMs = 10'000;

} // namespace

DesktopRig::DesktopRig() = default;

DesktopRig::~DesktopRig() {
    // Clients before their servers.
    while (!m_processes.empty()) {
        kill(m_processes.back().get());
        m_processes.pop_back();
    }
}

QByteArray DesktopRig::startDisplay(const QStringList& options) {
    QProcess* server =
        start(QStringLiteral("Xvfb"),
              QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                          QStringLiteral("0"), QStringLiteral("800x600x24"), QStringLiteral("-nolisten"),
                          QStringLiteral("tcp"), QStringLiteral("-noreset")} +
                  options);
    const QByteArray number = server ? firstLine(server) : QByteArray();
    return number.isEmpty() ? QByteArray() : ':' + number;
}

QByteArray DesktopRig::startBus(const QString& services) {
    const QString config = QStringLiteral("bus.conf");
    const QByteArray serviceDirectory =
        services.isEmpty() ? QByteArray() : "<servicedir>" + services.toLocal8Bit() + "</servicedir>";
    writeFile(config, "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>" + serviceDirectory +
                          "<policy context=\"default\"><allow send_destination=\"*\"/>"
                          "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
    QProcess* bus =
        start(QStringLiteral("dbus-daemon"), {QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                                              QStringLiteral("--config-file=") + filePath(config)});
    return bus ? firstLine(bus) : QByteArray();
}

QProcess* DesktopRig::start(const QString& program, const QStringList& arguments,
                            const QStringList& environment) {
    auto process = std::make_unique<QProcess>();
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->setEnvironment(QProcess::systemEnvironment() + environment);
    process->start(program, arguments);
    if (!process->waitForStarted(patienceMs))
        return nullptr;
    m_processes.push_back(std::move(process));
    return m_processes.back().get();
}

void DesktopRig::kill(QProcess* process) {
    process->kill();
    // A stopped process dies as well, but only after it was told to go on.
    if (process->processId() > 0)
        ::kill(static_cast<pid_t>(process->processId()), SIGCONT);
    process->waitForFinished(patienceMs);
}

QByteArray DesktopRig::run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(patienceMs);
    return process.readAllStandardOutput().trimmed();
}

QByteArray DesktopRig::readFile(const QString& name) const {
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void DesktopRig::writeFile(const QString& name, const QByteArray& content) const {
    const QString path = filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Cannot write %s", qPrintable(path));
}

QByteArray DesktopRig::firstLine(QProcess* process) const {
    while (!process->canReadLine()) {
        if (!process->waitForReadyRead(patienceMs))
            return {};
    }
    return process->readLine().trimmed();
}
