#include "app/FocusBusService.h"

#include "app/StatusReport.h"
#include "distraction/AppBlockerService.h"
#include "distraction/TrackingHealthModel.h"
#include "focus/DeepWorkScreen.h"
#include "model/TaskItem.h"

#include <QDBusError>
#include <QDBusMessage>

#include <algorithm>

namespace norvin {

FocusBusService::FocusBusService(QDBusConnection bus, DeepWorkScreen& screen, AppBlockerService& blocker,
                                 TrackingHealthModel& health, QObject* parent)
    : QObject(parent)
    , m_bus(std::move(bus))
    , m_screen(screen)
    , m_blocker(blocker)
    , m_health(health) {
    const auto announceOn = [this](auto signal) {
        connect(&m_screen, signal, this, &FocusBusService::scheduleAnnouncement);
    };
    announceOn(&DeepWorkScreen::stateChanged);
    announceOn(&DeepWorkScreen::phaseChanged);
    announceOn(&DeepWorkScreen::timeChanged);
    announceOn(&DeepWorkScreen::selectedDurationChanged);
    announceOn(&DeepWorkScreen::activityChanged);
    announceOn(&DeepWorkScreen::metricsChanged);
    announceOn(&DeepWorkScreen::activeTaskChanged);
    connect(&m_screen.timer(), &PomodoroTimerService::sessionInterrupted, this,
            &FocusBusService::SessionInterrupted);

    m_followerWatch.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_followerWatch, &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString& follower) {
                m_followers.remove(follower);
                m_followerWatch.removeWatchedService(follower);
            });
}

FocusBusService::~FocusBusService() = default;

Availability FocusBusService::publish() {
    if (!m_bus.isConnected())
        return Availability::unavailable(QStringLiteral("health_no_session_bus"),
                                         m_bus.lastError().message());
    m_followerWatch.setConnection(m_bus);
    m_announced = steadyProperties();
    constexpr auto exported = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                              QDBusConnection::ExportAllProperties | QDBusConnection::ExportAdaptors;
    if (!m_bus.registerObject(QLatin1String(focusBusPath), this, exported) ||
        !m_bus.registerService(QLatin1String(focusBusName))) {
        return Availability::unavailable(QStringLiteral("health_bus_name_taken"),
                                         m_bus.lastError().message());
    }
    return Availability::available();
}

QString FocusBusService::state() const {
    return m_screen.state();
}
QString FocusBusService::phase() const {
    return m_screen.phase();
}
int FocusBusService::timeRemaining() const {
    return m_screen.timeRemaining();
}
int FocusBusService::initialDuration() const {
    return m_screen.initialDuration();
}
int FocusBusService::selectedDuration() const {
    return m_screen.selectedDuration();
}
int FocusBusService::interruptionCount() const {
    return m_screen.interruptionCount();
}
int FocusBusService::blockedAttemptsCount() const {
    return m_screen.blockedAttemptsCount();
}
int FocusBusService::blockedSiteAttemptsCount() const {
    return m_screen.blockedSiteAttemptsCount();
}
int FocusBusService::completedTasksCount() const {
    return m_screen.completedTasksCount();
}
int FocusBusService::completedSubtasksCount() const {
    return m_screen.completedSubtasksCount();
}
int FocusBusService::legitimateSeconds() const {
    return m_screen.legitimateSeconds();
}
int FocusBusService::distractedSeconds() const {
    return m_screen.distractedSeconds();
}
double FocusBusService::score() const {
    return m_screen.score();
}
QString FocusBusService::activityKind() const {
    return m_screen.activityKind();
}
QString FocusBusService::activityAppName() const {
    return m_screen.activityAppName();
}
QString FocusBusService::activityDomain() const {
    return m_screen.activityDomain();
}

QString FocusBusService::activeTask() const {
    const TaskItem* task = m_screen.timer().activeTask();
    return task ? task->title() : QString();
}

QStringList FocusBusService::queue() const {
    QStringList titles;
    for (const TaskItem* task : m_screen.timer().taskQueue())
        titles.append(task->title());
    return titles;
}

void FocusBusService::StartSession(int minutes, const QString& task, const QString& phase) {
    const std::optional<PomodoroPhase> wanted = pomodoroPhaseFromRawValue(phase);
    if (!wanted || minutes < 0 || minutes > 24 * 60) {
        sendErrorReply(QDBusError::InvalidArgs,
                       QStringLiteral("minutes is 0 to 1440; phase is work, break_time or rearming"));
        return;
    }
    const auto refusal =
        m_screen.startPhaseWith(task, *wanted, minutes > 0 ? std::optional(minutes) : std::nullopt);
    if (refusal)
        refuse(*refusal);
}

void FocusBusService::Pause() {
    if (const auto refusal = m_screen.pauseSession())
        refuse(*refusal);
}

void FocusBusService::Resume() {
    if (const auto refusal = m_screen.resumeSession())
        refuse(*refusal);
}

void FocusBusService::Stop() {
    if (const auto refusal = m_screen.stopSession())
        refuse(*refusal);
}

void FocusBusService::AddTask(const QString& title) {
    if (const auto refusal = m_screen.addTaskTitled(title))
        refuse(*refusal);
}

void FocusBusService::ShowWindow() {
    if (m_showWindow)
        m_showWindow();
}

QString FocusBusService::Status() {
    return statusJson();
}

QString FocusBusService::Tasks() {
    return compactText(tasksReport(m_screen));
}

QString FocusBusService::Lists() {
    return compactText(listsReport(m_blocker));
}

QString FocusBusService::Doctor() {
    m_health.refresh();
    return compactText(healthReport(m_health));
}

QString FocusBusService::Follow() {
    const QString follower = message().service();
    m_followers.insert(follower);
    m_followerWatch.addWatchedService(follower);
    m_followedStatus = statusJson();
    return m_followedStatus;
}

void FocusBusService::ChangeApplication(bool blocked, const QString& bundleIdentifier, bool remove) {
    const QString identifier = bundleIdentifier.trimmed();
    if (identifier.isEmpty()) {
        refuse(QStringLiteral("refused_app_empty"));
        return;
    }
    // An application is on one of the two lists at most, like in the window.
    const bool isBlocked = blocked && !remove;
    const bool isWhitelisted = !blocked && !remove;
    if (blocked || isWhitelisted)
        isBlocked ? m_blocker.addAppToBlocklist(identifier) : m_blocker.removeAppFromBlocklist(identifier);
    if (!blocked || isBlocked)
        isWhitelisted ? m_blocker.addAppToWhitelist(identifier)
                      : m_blocker.removeAppFromWhitelist(identifier);
}

void FocusBusService::ChangeSite(bool blocked, const QString& browser, const QString& site, bool remove) {
    using Operation = AppBlockerService::SiteChange (AppBlockerService::*)(const QString&, const QString&);
    const Operation operation =
        blocked
            ? (remove ? &AppBlockerService::removeSiteFromBlocklist : &AppBlockerService::addSiteToBlocklist)
            : (remove ? &AppBlockerService::removeSiteFromWhitelist : &AppBlockerService::addSiteToWhitelist);
    if ((m_blocker.*operation)(browser, site) == AppBlockerService::SiteChange::notASite)
        refuse(QStringLiteral("refused_site_invalid"));
}

void FocusBusService::refuse(const QString& reasonKey) {
    sendErrorReply(QLatin1String(focusBusRefused), reasonKey);
}

QString FocusBusService::statusJson() {
    return compactText(statusReport(m_screen));
}

// Several things change in one turn; the bus hears of them once.
void FocusBusService::scheduleAnnouncement() {
    if (m_announcementScheduled || !m_bus.isConnected())
        return;
    m_announcementScheduled = true;
    QMetaObject::invokeMethod(this, &FocusBusService::announce, Qt::QueuedConnection);
}

void FocusBusService::announce() {
    m_announcementScheduled = false;
    const QVariantMap properties = steadyProperties();
    QVariantMap changed;
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        if (m_announced.value(it.key()) != it.value())
            changed.insert(it.key(), it.value());
    }
    m_announced = properties;
    if (!changed.isEmpty()) {
        QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(focusBusPath),
                                                         QStringLiteral("org.freedesktop.DBus.Properties"),
                                                         QStringLiteral("PropertiesChanged"));
        signal << QString::fromLatin1(focusBusName) << changed << QStringList();
        m_bus.send(signal);
    }
    if (m_followers.isEmpty())
        return;
    const QString status = statusJson();
    if (status != m_followedStatus) {
        m_followedStatus = status;
        Q_EMIT StatusChanged(status);
    }
}

QVariantMap FocusBusService::steadyProperties() const {
    return {{QStringLiteral("State"), state()},
            {QStringLiteral("Phase"), phase()},
            {QStringLiteral("InitialDuration"), initialDuration()},
            {QStringLiteral("SelectedDuration"), selectedDuration()},
            {QStringLiteral("InterruptionCount"), interruptionCount()},
            {QStringLiteral("BlockedAttemptsCount"), blockedAttemptsCount()},
            {QStringLiteral("BlockedSiteAttemptsCount"), blockedSiteAttemptsCount()},
            {QStringLiteral("CompletedTasksCount"), completedTasksCount()},
            {QStringLiteral("CompletedSubtasksCount"), completedSubtasksCount()},
            {QStringLiteral("ActivityKind"), activityKind()},
            {QStringLiteral("ActivityAppName"), activityAppName()},
            {QStringLiteral("ActivityDomain"), activityDomain()},
            {QStringLiteral("ActiveTask"), activeTask()},
            {QStringLiteral("Queue"), queue()}};
}

} // namespace norvin
