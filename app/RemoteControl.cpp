#include "app/RemoteControl.h"

#include "app/FocusBusService.h"
#include "app/PlanningBusService.h"
#include "app/PlanningReport.h"
#include "app/StatsBusService.h"
#include "app/StatsReport.h"
#include "app/StatusReport.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QDir>
#include <QEventLoop>
#include <QJsonDocument>
#include <QProcess>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <signal.h>

namespace norvin {

using namespace std::chrono_literals;

namespace {

constexpr auto answerTimeout = 10s;
constexpr auto launchTimeout = 20s;

void print(FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

void printError(const QString& line) {
    print(stderr, QStringLiteral("norvin-focus: %1\n").arg(line));
}

ExitCode notRunning() {
    printError(QStringLiteral("Norvin Focus is not running"));
    return ExitCode::notRunning;
}

QJsonDocument parsed(const QString& json) {
    return QJsonDocument::fromJson(json.toUtf8());
}

/// Prints the status of every StatusChanged signal.
class Follower final : public QObject {
    Q_OBJECT
public Q_SLOTS:
    void printStatus(const QString& json) { print(stdout, json + u'\n'); }
};

} // namespace

RemoteControl::RemoteControl(QDBusConnection bus)
    : m_bus(std::move(bus)) {}

bool RemoteControl::isInstanceRunning() const {
    return m_bus.isConnected() && m_bus.interface()->isServiceRegistered(QLatin1String(focusBusName)).value();
}

ExitCode RemoteControl::run(const Command& command) {
    if (!m_bus.isConnected()) {
        printError(QStringLiteral("the session bus cannot be reached: %1").arg(m_bus.lastError().message()));
        return ExitCode::unreachable;
    }
    if (const auto* wanted = std::get_if<command::Start>(&command))
        return start(*wanted);
    if (!isInstanceRunning())
        return notRunning();

    QString reply;
    if (std::holds_alternative<command::Pause>(command))
        return call(QStringLiteral("Pause"));
    if (std::holds_alternative<command::Resume>(command))
        return call(QStringLiteral("Resume"));
    if (std::holds_alternative<command::Stop>(command))
        return call(QStringLiteral("Stop"));
    if (const std::optional<ExitCode> code = runPlanning(command))
        return *code;
    if (const auto* wanted = std::get_if<command::Stats>(&command))
        return stats(*wanted);
    if (const auto* wanted = std::get_if<command::Status>(&command))
        return status(*wanted);
    if (const auto* wanted = std::get_if<command::ChangeList>(&command))
        return changeList(*wanted);
    if (const auto* wanted = std::get_if<command::Tasks>(&command)) {
        const ExitCode code = call(QStringLiteral("Tasks"), {}, &reply);
        if (code == ExitCode::done)
            print(stdout, wanted->json ? reply + u'\n' : tasksText(parsed(reply).array()));
        return code;
    }
    if (const auto* wanted = std::get_if<command::Lists>(&command)) {
        const ExitCode code = call(QStringLiteral("Lists"), {}, &reply);
        if (code == ExitCode::done)
            print(stdout, wanted->json ? reply + u'\n' : listsText(parsed(reply).object()));
        return code;
    }
    return doctor();
}

ExitCode RemoteControl::showWindow() {
    if (!isInstanceRunning() && !waitForInstance(0)) {
        printError(QStringLiteral("Norvin Focus runs already, but cannot be told to show its window"));
        return ExitCode::done;
    }
    const ExitCode code = call(QStringLiteral("ShowWindow"));
    return code == ExitCode::refused ? ExitCode::done : code;
}

ExitCode RemoteControl::start(const command::Start& wanted) {
    if (!isInstanceRunning()) {
        if (const ExitCode code = launch(); code != ExitCode::done)
            return code;
    }
    return call(QStringLiteral("StartSession"),
                {wanted.minutes.value_or(0), wanted.task, rawValue(wanted.phase)});
}

ExitCode RemoteControl::launch() {
    qint64 processId = 0;
    QProcess process;
    process.setProgram(QCoreApplication::applicationFilePath());
    process.setStandardOutputFile(QProcess::nullDevice());
    // A caller that reads this command's output to its end must not wait for the program to end.
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    if (!process.startDetached(&processId) || !waitForInstance(processId)) {
        printError(QStringLiteral("Norvin Focus could not be started"));
        return ExitCode::unreachable;
    }
    return ExitCode::done;
}

bool RemoteControl::waitForInstance(qint64 launchedProcess) const {
    QEventLoop loop;
    QDBusServiceWatcher watcher(QLatin1String(focusBusName), m_bus,
                                QDBusServiceWatcher::WatchForRegistration);
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceRegistered, &loop, &QEventLoop::quit);
    if (isInstanceRunning())
        return true;
    QTimer::singleShot(launchedProcess != 0 ? launchTimeout : std::chrono::seconds(3), &loop,
                       &QEventLoop::quit);
    // A program that ended will not come to the bus any more.
    QTimer aliveCheck;
    QObject::connect(&aliveCheck, &QTimer::timeout, &loop, [&loop, launchedProcess] {
        if (launchedProcess != 0 && ::kill(static_cast<pid_t>(launchedProcess), 0) != 0)
            loop.quit();
    });
    aliveCheck.start(100ms);
    loop.exec();
    return isInstanceRunning();
}

ExitCode RemoteControl::status(const command::Status& wanted) {
    if (wanted.follow)
        return follow();
    QString reply;
    const ExitCode code = call(QStringLiteral("Status"), {}, &reply);
    if (code == ExitCode::done)
        print(stdout, wanted.json ? reply + u'\n' : statusText(parsed(reply).object()));
    return code;
}

ExitCode RemoteControl::follow() {
    Follower follower;
    m_bus.connect(QLatin1String(focusBusName), QLatin1String(focusBusPath), QLatin1String(focusBusName),
                  QStringLiteral("StatusChanged"), &follower, SLOT(printStatus(QString)));
    QEventLoop loop;
    QDBusServiceWatcher watcher(QLatin1String(focusBusName), m_bus,
                                QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceUnregistered, &loop, &QEventLoop::quit);
    QString reply;
    if (const ExitCode code = call(QStringLiteral("Follow"), {}, &reply); code != ExitCode::done)
        return code;
    follower.printStatus(reply);
    loop.exec();
    return notRunning();
}

ExitCode RemoteControl::doctor() {
    QString reply;
    if (const ExitCode code = call(QStringLiteral("Doctor"), {}, &reply); code != ExitCode::done)
        return code;
    const QJsonArray health = parsed(reply).array();
    print(stdout, healthText(health, &textForKey));
    for (const QJsonValue& check : health) {
        if (!check[QStringLiteral("available")].toBool() && !check[QStringLiteral("optional")].toBool())
            return ExitCode::refused;
    }
    return ExitCode::done;
}

ExitCode RemoteControl::stats(const command::Stats& wanted) {
    QString reply;
    const QString period = wanted.period ? rawValue(*wanted.period) : QString();
    const ExitCode code = callOn(statsBusInterface, QStringLiteral("Report"), {period}, &reply);
    if (code != ExitCode::done)
        return code;
    if (wanted.json)
        print(stdout, reply + u'\n');
    else if (wanted.csv)
        print(stdout, QString::fromUtf8(statsCsv(parsed(reply).object())));
    else
        print(stdout, statsText(parsed(reply).object()));
    return code;
}

ExitCode RemoteControl::changeList(const command::ChangeList& change) {
    if (change.site.isEmpty())
        return call(QStringLiteral("ChangeApplication"), {change.blocked, change.app, change.remove});
    return call(QStringLiteral("ChangeSite"), {change.blocked, change.browser, change.site, change.remove});
}

std::optional<ExitCode> RemoteControl::runPlanning(const Command& command) {
    QString reply;
    if (const auto* wanted = std::get_if<command::Add>(&command)) {
        return callPlanning(QStringLiteral("AddTask"),
                            {wanted->title, wanted->project, wanted->date, wanted->priority});
    }
    if (const auto* wanted = std::get_if<command::Agenda>(&command)) {
        const ExitCode code = callPlanning(QStringLiteral("Agenda"), {wanted->date}, &reply);
        if (code == ExitCode::done)
            print(stdout, wanted->json ? reply + u'\n' : agendaText(parsed(reply).object()));
        return code;
    }
    if (const auto* wanted = std::get_if<command::Projects>(&command)) {
        const ExitCode code = callPlanning(QStringLiteral("Projects"), {}, &reply);
        if (code == ExitCode::done)
            print(stdout, wanted->json ? reply + u'\n' : projectsText(parsed(reply).array()));
        return code;
    }
    if (const auto* wanted = std::get_if<command::Done>(&command)) {
        const ExitCode code = callPlanning(QStringLiteral("FinishTask"), {wanted->id}, &reply);
        if (code == ExitCode::done)
            print(stdout, QStringLiteral("Done: %1\n").arg(reply.simplified()));
        return code;
    }
    if (const auto* wanted = std::get_if<command::Export>(&command)) {
        const QString path = QDir::current().absoluteFilePath(wanted->path);
        const ExitCode code = callPlanning(QStringLiteral("Export"), {path, wanted->force}, &reply);
        if (code == ExitCode::done) {
            print(stdout, qtTrId("planning_exported_format")
                                  .arg(planningCountsText(countsOfReport(parsed(reply).object())), path) +
                              u'\n');
        }
        return code;
    }
    if (const auto* wanted = std::get_if<command::Import>(&command)) {
        const QString path = QDir::current().absoluteFilePath(wanted->path);
        const ExitCode code = callPlanning(QStringLiteral("Import"), {path}, &reply);
        if (code == ExitCode::done)
            print(stdout, importText(importOfReport(parsed(reply).object())) + u'\n');
        return code;
    }
    return std::nullopt;
}

ExitCode RemoteControl::callPlanning(const QString& method, const QVariantList& arguments, QString* reply) {
    return callOn(planningBusInterface, method, arguments, reply);
}

ExitCode RemoteControl::call(const QString& method, const QVariantList& arguments, QString* reply) {
    return callOn(focusBusName, method, arguments, reply);
}

ExitCode RemoteControl::callOn(const char* interface, const QString& method, const QVariantList& arguments,
                               QString* reply) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QLatin1String(focusBusName), QLatin1String(focusBusPath), QLatin1String(interface), method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    const QDBusMessage answer =
        m_bus.call(message, QDBus::Block, static_cast<int>(std::chrono::milliseconds(answerTimeout).count()));
    if (answer.type() == QDBusMessage::ReplyMessage) {
        if (reply && !answer.arguments().isEmpty())
            *reply = answer.arguments().constFirst().toString();
        return ExitCode::done;
    }
    if (answer.errorName() == QLatin1String(focusBusRefused)) {
        printError(planningErrorText({.key = answer.errorMessage(),
                                      .arguments = answer.arguments().value(1).toStringList(),
                                      .line = answer.arguments().value(2).toInt()}));
        return ExitCode::refused;
    }
    if (answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown"))
        return notRunning();
    printError(QStringLiteral("Norvin Focus does not answer: %1").arg(answer.errorMessage()));
    return ExitCode::unreachable;
}

QString textForKey(const QString& key) {
    return qtTrId(key.toUtf8().constData());
}

} // namespace norvin

#include "RemoteControl.moc"
