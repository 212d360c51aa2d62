#include "focus/PomodoroTimerService.h"

#include "distraction/AppBlockerService.h"
#include "focus/MotionService.h"
#include "model/ModelContext.h"
#include "platform/ApplicationCatalog.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/UserNotifications.h"
#include "sound/SoundService.h"
#include "sound/TickPlayer.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>

namespace norvin {

namespace {

constexpr int longestMinutes = 24 * 60;

bool isWithin(qsizetype index, qsizetype size) {
    return index >= 0 && index < size;
}

} // namespace

QString rawValue(PomodoroPhase phase) {
    switch (phase) {
    case PomodoroPhase::work:
        return QStringLiteral("work");
    case PomodoroPhase::breakTime:
        return QStringLiteral("break_time");
    case PomodoroPhase::rearming:
        return QStringLiteral("rearming");
    }
    return {};
}

std::optional<PomodoroPhase> pomodoroPhaseFromRawValue(const QString& raw) {
    for (const PomodoroPhase phase :
         {PomodoroPhase::work, PomodoroPhase::breakTime, PomodoroPhase::rearming}) {
        if (rawValue(phase) == raw)
            return phase;
    }
    return std::nullopt;
}

QString rawValue(TimerState state) {
    switch (state) {
    case TimerState::idle:
        return QStringLiteral("idle");
    case TimerState::running:
        return QStringLiteral("running");
    case TimerState::paused:
        return QStringLiteral("paused");
    case TimerState::completed:
        return QStringLiteral("completed");
    }
    return {};
}

PomodoroTimerService::PomodoroTimerService(const PomodoroCollaborators& collaborators, QObject* parent)
    : QObject(parent)
    , m_with(collaborators) {}

PomodoroTimerService::~PomodoroTimerService() = default;

void PomodoroTimerService::setModelContext(ModelContext* context) {
    disconnect(m_contextSubscription);
    m_modelContext = context;
    if (context) {
        m_contextSubscription =
            connect(context, &ModelContext::taskAboutToBeRemoved, this, &PomodoroTimerService::forgetTask);
    }
}

QString PomodoroTimerService::timeRemainingString() const {
    return QString::asprintf("%02d:%02d", m_timeRemaining / 60, m_timeRemaining % 60);
}

void PomodoroTimerService::setAccumulatedInactivitySeconds(int seconds) {
    if (seconds == m_accumulatedInactivitySeconds)
        return;
    m_accumulatedInactivitySeconds = seconds;
    Q_EMIT accumulatedInactivitySecondsChanged();
}

void PomodoroTimerService::setActiveTask(TaskItem* task) {
    if (task == m_activeTask)
        return;
    m_activeTask = task;
    Q_EMIT activeTaskChanged();
}

void PomodoroTimerService::setSelectedDuration(int minutes) {
    const int bounded = std::clamp(minutes, 1, longestMinutes);
    if (bounded == m_selectedDuration)
        return;
    m_selectedDuration = bounded;
    Q_EMIT selectedDurationChanged();
}

void PomodoroTimerService::setFloatingOffset(const QSizeF& offset) {
    if (offset == m_floatingOffset)
        return;
    m_floatingOffset = offset;
    Q_EMIT floatingOffsetChanged();
}

void PomodoroTimerService::startSession(TaskItem* task, PomodoroPhase phase,
                                        std::optional<int> customMinutes) {
    // A phase that is still running ends here, and a break has no business with the watchers of a work phase.
    m_timer.reset();
    if (m_state == TimerState::running && phase != PomodoroPhase::work)
        switchControlOff();

    setActiveTask(task);
    if (phase != m_phase) {
        m_phase = phase;
        Q_EMIT phaseChanged();
    }

    if (customMinutes)
        customMinutes = std::clamp(*customMinutes, 1, longestMinutes);
    int length = 0;
    switch (phase) {
    case PomodoroPhase::work:
        if (customMinutes)
            setSelectedDuration(*customMinutes);
        length = m_selectedDuration * 60;
        break;
    case PomodoroPhase::breakTime:
        length = customMinutes ? *customMinutes * 60 : breakDuration;
        break;
    case PomodoroPhase::rearming:
        length = customMinutes ? *customMinutes * 60 : rearmingDuration;
        break;
    }

    m_sessionStartTime = m_with.clock.now();
    m_interruptionCount = 0;
    m_blockedAttemptsCount = 0;
    m_blockedSiteAttemptsCount = 0;
    m_completedTasksCount = 0;
    m_completedSubtasksCount = 0;
    m_initialDuration = length;
    Q_EMIT initialDurationChanged();
    setTimeRemaining(length);
    Q_EMIT countersChanged();
    setAccumulatedInactivitySeconds(0);
    setState(TimerState::running);
    subscribeToAttempts();
    startTimer();

    if (phase == PomodoroPhase::work) {
        m_with.blocker.startBlocking();
        m_with.usage.startTracking();
        m_with.motion.startMonitoring();
    }
    QMetaObject::invokeMethod(
        this, [this] { m_with.sounds.play(SoundEffect::ping); }, Qt::QueuedConnection);
}

void PomodoroTimerService::subscribeToAttempts() {
    for (const QMetaObject::Connection& connection : m_cancellables)
        disconnect(connection);
    m_cancellables = {
        connect(&m_with.blocker, &AppBlockerService::blockedAppAttempt, this,
                [this] {
                    ++m_blockedAttemptsCount;
                    Q_EMIT countersChanged();
                }),
        connect(&m_with.usage, &AppUsageService::blockedSiteAttempt, this,
                [this] {
                    ++m_blockedSiteAttemptsCount;
                    Q_EMIT countersChanged();
                }),
    };
}

void PomodoroTimerService::startTimer() {
    m_timer = m_with.clock.every(std::chrono::seconds(1), [this] { tick(); });
}

void PomodoroTimerService::tick() {
    if (m_timeRemaining <= 0) {
        completeSession();
        return;
    }
    setTimeRemaining(m_timeRemaining - 1);
    if (m_tickSoundService)
        m_tickSoundService->play();
}

void PomodoroTimerService::completeSession() {
    m_timer.reset();
    setState(TimerState::completed);
    switchControlOff();
    if (m_phase == PomodoroPhase::work)
        recordCompletedSession();
    playEndSound();
    notifyCompletion();
}

void PomodoroTimerService::pauseSession() {
    if (m_state != TimerState::running)
        return;
    setState(TimerState::paused);
    if (elapsedSeconds() >= gracePeriodThreshold)
        addInterruption();
    m_timer.reset();
    switchControlOff();
    Q_EMIT sessionInterrupted(QStringLiteral("pause"));
    m_with.sounds.play(SoundEffect::blow);
}

void PomodoroTimerService::resumeSession() {
    if (m_state != TimerState::paused)
        return;
    setState(TimerState::running);
    startTimer();
    // Activity tracking stays off for the rest of the session: its totals end with the pause.
    if (m_phase == PomodoroPhase::work) {
        m_with.blocker.startBlocking();
        m_with.motion.startMonitoring();
    }
    m_with.sounds.play(SoundEffect::ping);
}

void PomodoroTimerService::stopSession() {
    m_timer.reset();
    const bool underWay = m_state == TimerState::running || m_state == TimerState::paused;
    if (underWay && elapsedSeconds() >= gracePeriodThreshold)
        addInterruption();
    setState(TimerState::idle);
    setTimeRemaining(0);
    setActiveTask(nullptr);
    switchControlOff();
    Q_EMIT sessionInterrupted(QStringLiteral("stop"));
    m_with.sounds.play(SoundEffect::bottle);
}

void PomodoroTimerService::switchControlOff() {
    m_with.blocker.stopBlocking();
    m_with.usage.stopTracking();
    m_with.motion.stopMonitoring();
}

void PomodoroTimerService::playEndSound() {
    switch (m_phase) {
    case PomodoroPhase::work:
        m_with.sounds.play(SoundEffect::glass, 1.0);
        break;
    case PomodoroPhase::breakTime:
        m_with.sounds.play(SoundEffect::submarine, 1.0);
        break;
    case PomodoroPhase::rearming:
        m_with.sounds.play(SoundEffect::ping, 1.0);
        break;
    }
}

void PomodoroTimerService::notifyCompletion() {
    if (!m_with.catalog.isOwnApplicationInstalled()) {
        logLine(
            QStringLiteral("PomodoroTimerService: Notification locale ignorée car l'application n'est pas "
                           "exécutée depuis un bundle .app valide (ex: exécution directe depuis Xcode dans "
                           "DerivedData)"));
        return;
    }
    switch (m_phase) {
    case PomodoroPhase::work:
        m_with.notifications.post(qtTrId("notif_work_complete_title"), qtTrId("notif_work_complete_body"));
        break;
    case PomodoroPhase::breakTime:
        m_with.notifications.post(qtTrId("notif_break_complete_title"), qtTrId("notif_break_complete_body"));
        break;
    case PomodoroPhase::rearming:
        m_with.notifications.post(qtTrId("notif_rearming_complete_title"),
                                  qtTrId("notif_rearming_complete_body"));
        break;
    }
}

void PomodoroTimerService::addTaskToQueue(TaskItem* task) {
    if (!task || std::any_of(m_taskQueue.cbegin(), m_taskQueue.cend(),
                             [task](const TaskItem* queued) { return queued->id() == task->id(); }))
        return;
    m_taskQueue.append(task);
    task->setPlannedDate(startOfDay(m_with.clock.now()));
    Q_EMIT taskQueueChanged();
}

void PomodoroTimerService::removeTaskFromQueue(TaskItem* task) {
    if (!task)
        return;
    const qsizetype removed =
        m_taskQueue.removeIf([task](const TaskItem* queued) { return queued->id() == task->id(); });
    const QDateTime now = m_with.clock.now();
    if (task->plannedDate().isValid() && task->plannedDate().toTimeZone(now.timeZone()).date() == now.date())
        task->setPlannedDate({});
    if (removed > 0)
        Q_EMIT taskQueueChanged();
}

void PomodoroTimerService::moveTaskInQueue(qsizetype from, qsizetype to) {
    if (from == to || !isWithin(from, m_taskQueue.size()) || !isWithin(to, m_taskQueue.size()))
        return;
    m_taskQueue.move(from, to);
    Q_EMIT taskQueueChanged();
}

void PomodoroTimerService::recordTaskCompletion(bool isSubtask) {
    if (m_state != TimerState::running && m_state != TimerState::paused)
        return;
    ++(isSubtask ? m_completedSubtasksCount : m_completedTasksCount);
    Q_EMIT countersChanged();
    if (m_phase != PomodoroPhase::work || m_taskQueue.isEmpty())
        return;
    if (std::all_of(m_taskQueue.cbegin(), m_taskQueue.cend(),
                    [](const TaskItem* task) { return task->isDone(); })) {
        logLine(QStringLiteral("PomodoroTimerService: All tasks in queue completed. Ending session."));
        completeSession();
    }
}

void PomodoroTimerService::forgetTask(TaskItem* task) {
    if (task == m_activeTask)
        setActiveTask(nullptr);
    if (m_taskQueue.removeAll(task) > 0)
        Q_EMIT taskQueueChanged();
}

double PomodoroTimerService::calculateCurrentScore() const {
    return currentScoreTerms().score;
}

FocusScoreTerms PomodoroTimerService::currentScoreTerms() const {
    return focusScoreTerms(scoreInput(m_with.usage.getCurrentMetrics()));
}

FocusScoreInput PomodoroTimerService::scoreInput(const FocusMetrics& metrics) const {
    return {.metrics = metrics,
            .interruptionCount = m_interruptionCount,
            .blockedAttemptsCount = m_blockedAttemptsCount,
            .blockedSiteAttemptsCount = m_blockedSiteAttemptsCount,
            .completedTasksCount = m_completedTasksCount,
            .completedSubtasksCount = m_completedSubtasksCount};
}

void PomodoroTimerService::recordCompletedSession() {
    if (!m_modelContext) {
        logLine(QStringLiteral("PomodoroTimerService: Error - modelContext is nil, cannot record session"));
        return;
    }
    const int elapsed = elapsedSeconds();
    if (elapsed < 10) {
        logLine(
            QStringLiteral("PomodoroTimerService: Session too short (%1s), skipping recording").arg(elapsed));
        return;
    }
    const FocusMetrics metrics = m_with.usage.getCurrentMetrics();

    Session session;
    session.startTime =
        m_sessionStartTime.isValid() ? m_sessionStartTime : m_with.clock.now().addSecs(-elapsed);
    session.durationMinutes = (elapsed + 59) / 60;
    session.completed = true;
    if (m_activeTask)
        session.task = m_activeTask->id();
    session.score = focusScoreTerms(scoreInput(metrics)).score;
    session.interruptionCount = m_interruptionCount;
    session.blockedAttemptsCount = m_blockedAttemptsCount;
    session.blockedSiteAttemptsCount = m_blockedSiteAttemptsCount;
    session.legitimateTimeSeconds = metrics.legitimate;
    session.distractedTimeSeconds = metrics.distracted;

    const QString score = QString::number(*session.score, 'g', QLocale::FloatingPointShortest);
    logLine(QStringLiteral("PomodoroTimerService: Recording completed session - %1 min, Score: %2")
                .arg(session.durationMinutes)
                .arg(score));
    m_modelContext->insert(session);
    if (const StoreResult error = m_modelContext->save())
        logLine(QStringLiteral("PomodoroTimerService: Error saving session: ") + error->description);
    else
        logLine(QStringLiteral("PomodoroTimerService: Session saved successfully with score ") + score);
}

void PomodoroTimerService::setState(TimerState state) {
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

void PomodoroTimerService::setTimeRemaining(int seconds) {
    if (seconds == m_timeRemaining)
        return;
    m_timeRemaining = seconds;
    Q_EMIT timeRemainingChanged();
}

void PomodoroTimerService::addInterruption() {
    ++m_interruptionCount;
    Q_EMIT countersChanged();
}

} // namespace norvin
