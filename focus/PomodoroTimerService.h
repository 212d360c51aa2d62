#pragma once

#include "focus/FocusScore.h"

#include <QDateTime>
#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QSizeF>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace norvin {

class AppBlockerService;
class ApplicationCatalog;
class Clock;
class ClockTimer;
class ModelContext;
class MotionService;
class SoundService;
class TaskItem;
class TickPlayer;
class UserNotifications;

enum class TimerState { idle, running, paused, completed };
enum class PomodoroPhase { work, breakTime, rearming };

/// "work", "break_time", "rearming".
[[nodiscard]] QString rawValue(PomodoroPhase phase);
/// The phase of a raw value; none for any other text.
[[nodiscard]] std::optional<PomodoroPhase> pomodoroPhaseFromRawValue(const QString& raw);
/// "idle", "running", "paused", "completed".
[[nodiscard]] QString rawValue(TimerState state);

/// Everything that the focus timer works with; all of it must outlive the timer.
struct PomodoroCollaborators {
    Clock& clock;
    AppBlockerService& blocker;
    AppUsageService& usage;
    MotionService& motion;
    SoundService& sounds;
    UserNotifications& notifications;
    ApplicationCatalog& catalog;
};

/// The engine of a focus session: the countdown through work, break and rearming, the task queue, the
/// counters of what disturbed the session, and its recording. Main thread only.
class PomodoroTimerService final : public QObject {
    Q_OBJECT
public:
    static constexpr int gracePeriodThreshold = 10; ///< seconds
    static constexpr int workDuration = 1500;       ///< seconds
    static constexpr int breakDuration = 300;       ///< seconds
    static constexpr int rearmingDuration = 120;    ///< seconds

    explicit PomodoroTimerService(const PomodoroCollaborators& collaborators, QObject* parent = nullptr);
    ~PomodoroTimerService() override;

    /// Where sessions are recorded; null for nowhere. Tasks that leave the context leave the timer too.
    void setModelContext(ModelContext* context);
    /// Null for no ticking.
    void setTickSoundService(TickPlayer* tickSoundService) { m_tickSoundService = tickSoundService; }

    [[nodiscard]] TimerState state() const { return m_state; }
    [[nodiscard]] PomodoroPhase phase() const { return m_phase; }
    /// Seconds, never negative.
    [[nodiscard]] int timeRemaining() const { return m_timeRemaining; }
    /// Seconds that the current phase started with.
    [[nodiscard]] int initialDuration() const { return m_initialDuration; }
    /// timeRemaining as "mm:ss"; the minutes go beyond 99 for long phases.
    [[nodiscard]] QString timeRemainingString() const;
    [[nodiscard]] int accumulatedInactivitySeconds() const { return m_accumulatedInactivitySeconds; }
    void setAccumulatedInactivitySeconds(int seconds);
    /// Null when there is none.
    [[nodiscard]] TaskItem* activeTask() const { return m_activeTask; }
    void setActiveTask(TaskItem* task);
    [[nodiscard]] const QList<TaskItem*>& taskQueue() const { return m_taskQueue; }
    /// Length of the work phase chosen by the user, in minutes.
    [[nodiscard]] int selectedDuration() const { return m_selectedDuration; }
    /// @param minutes 1 to 1440; other values are brought into that range
    void setSelectedDuration(int minutes);
    /// Offset of the floating timer from its place, in device-independent pixels.
    [[nodiscard]] QSizeF floatingOffset() const { return m_floatingOffset; }
    void setFloatingOffset(const QSizeF& offset);
    [[nodiscard]] int interruptionCount() const { return m_interruptionCount; }
    [[nodiscard]] int blockedAttemptsCount() const { return m_blockedAttemptsCount; }
    [[nodiscard]] int blockedSiteAttemptsCount() const { return m_blockedSiteAttemptsCount; }
    [[nodiscard]] int completedTasksCount() const { return m_completedTasksCount; }
    [[nodiscard]] int completedSubtasksCount() const { return m_completedSubtasksCount; }
    /// When the session began; invalid before the first one.
    [[nodiscard]] const QDateTime& sessionStartTime() const { return m_sessionStartTime; }

    /// Starts a phase from any state. In a work phase, customMinutes also becomes the selected duration.
    void startSession(TaskItem* task, PomodoroPhase phase, std::optional<int> customMinutes = std::nullopt);
    /// Does nothing unless running.
    void pauseSession();
    /// Does nothing unless paused.
    void resumeSession();
    /// Ends the session without recording it, from any state.
    void stopSession();

    /// Appends the task unless it is queued already, and plans it for today.
    void addTaskToQueue(TaskItem* task);
    /// Removes the task, and its planned date if that is today.
    void removeTaskFromQueue(TaskItem* task);
    /// Moves a queued task to another place; indices out of range change nothing.
    void moveTaskInQueue(qsizetype from, qsizetype to);
    /// To be called after a task or subtask was marked done. Ends the work phase when all that is queued is
    /// done.
    void recordTaskCompletion(bool isSubtask);

    /// The live focus score, 0 to 10.
    [[nodiscard]] double calculateCurrentScore() const;
    /// The live focus score taken apart.
    [[nodiscard]] FocusScoreTerms currentScoreTerms() const;

Q_SIGNALS:
    void stateChanged();
    void phaseChanged();
    void timeRemainingChanged();
    void initialDurationChanged();
    void accumulatedInactivitySecondsChanged();
    void activeTaskChanged();
    void taskQueueChanged();
    void selectedDurationChanged();
    void floatingOffsetChanged();
    void countersChanged();
    /// The session was disturbed by its user: "pause" or "stop".
    void sessionInterrupted(const QString& reason);

private:
    void tick();
    void completeSession();
    void recordCompletedSession();
    void switchControlOff();
    void startTimer();
    void playEndSound();
    void notifyCompletion();
    void subscribeToAttempts();
    [[nodiscard]] int elapsedSeconds() const { return m_initialDuration - m_timeRemaining; }
    [[nodiscard]] FocusScoreInput scoreInput(const FocusMetrics& metrics) const;
    void setState(TimerState state);
    void setTimeRemaining(int seconds);
    void addInterruption();
    void forgetTask(TaskItem* task);

    PomodoroCollaborators m_with;
    ModelContext* m_modelContext = nullptr;
    TickPlayer* m_tickSoundService = nullptr;
    std::unique_ptr<ClockTimer> m_timer;
    std::vector<QMetaObject::Connection> m_cancellables;
    QMetaObject::Connection m_contextSubscription;
    TimerState m_state = TimerState::idle;
    PomodoroPhase m_phase = PomodoroPhase::work;
    int m_timeRemaining = 0;
    int m_initialDuration = 0;
    int m_accumulatedInactivitySeconds = 0;
    TaskItem* m_activeTask = nullptr;
    QList<TaskItem*> m_taskQueue;
    int m_selectedDuration = 25;
    QSizeF m_floatingOffset{0, 0};
    int m_interruptionCount = 0;
    int m_blockedAttemptsCount = 0;
    int m_blockedSiteAttemptsCount = 0;
    int m_completedTasksCount = 0;
    int m_completedSubtasksCount = 0;
    QDateTime m_sessionStartTime;
};

} // namespace norvin
