#pragma once

#include "focus/PomodoroTimerService.h"
#include "focus/TaskPickerModel.h"
#include "focus/TaskQueueModel.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace norvin {

/// What the Deep Work screen shows and does. The screen of the window, the command line and the session bus
/// all act through it, so that a refusal reads the same everywhere. Main thread only.
class DeepWorkScreen final : public QObject {
    Q_OBJECT
    /// "idle", "running", "paused", "completed".
    Q_PROPERTY(QString state READ state NOTIFY stateChanged)
    /// "work", "break_time", "rearming".
    Q_PROPERTY(QString phase READ phase NOTIFY phaseChanged)
    /// Name of the symbol that stands for both.
    Q_PROPERTY(QString phaseSymbol READ phaseSymbol NOTIFY phaseSymbolChanged)
    /// What the ring shows: the remaining time, or while idle the length that start() would begin with.
    Q_PROPERTY(QString timeText READ timeText NOTIFY timeChanged)
    Q_PROPERTY(int timeRemaining READ timeRemaining NOTIFY timeChanged)
    /// What timeText says in whole minutes, rounded up: for whom each second would be too much to hear.
    Q_PROPERTY(int minutes READ minutes NOTIFY minutesChanged)
    Q_PROPERTY(int initialDuration READ initialDuration NOTIFY timeChanged)
    /// Share of the phase that is over, 0 to 1; 0 while idle.
    Q_PROPERTY(double progress READ progress NOTIFY timeChanged)
    /// Minutes, 1 to 1440.
    Q_PROPERTY(
        int selectedDuration READ selectedDuration WRITE setSelectedDuration NOTIFY selectedDurationChanged)

    /// "legitimate", "distracted" or "idle".
    Q_PROPERTY(QString activityKind READ activityKind NOTIFY activityChanged)
    /// Empty while idle.
    Q_PROPERTY(QString activityAppName READ activityAppName NOTIFY activityChanged)
    /// Empty where no domain is known.
    Q_PROPERTY(QString activityDomain READ activityDomain NOTIFY activityChanged)
    /// Whether applications are being followed. False for the rest of a work phase that was paused.
    Q_PROPERTY(bool isTrackingActive READ isTrackingActive NOTIFY activityChanged)
    /// Localisation key of why the application in front cannot be known here, empty while it can. The key
    /// with
    /// "_remedy" appended says what to do.
    Q_PROPERTY(QString blindReasonKey READ blindReasonKey NOTIFY activityChanged)
    Q_PROPERTY(int legitimateSeconds READ legitimateSeconds NOTIFY metricsChanged)
    Q_PROPERTY(int distractedSeconds READ distractedSeconds NOTIFY metricsChanged)

    /// Live focus score and its terms, in points; see FocusScoreTerms.
    Q_PROPERTY(bool scoreHasEnoughData READ scoreHasEnoughData NOTIFY metricsChanged)
    Q_PROPERTY(double score READ score NOTIFY metricsChanged)
    Q_PROPERTY(double scoreRatio READ scoreRatio NOTIFY metricsChanged)
    Q_PROPERTY(double scoreRatioPoints READ scoreRatioPoints NOTIFY metricsChanged)
    Q_PROPERTY(double scoreInterruptionPenalty READ scoreInterruptionPenalty NOTIFY countersChanged)
    Q_PROPERTY(double scoreBlockedAttemptsPenalty READ scoreBlockedAttemptsPenalty NOTIFY countersChanged)
    Q_PROPERTY(
        double scoreBlockedSiteAttemptsPenalty READ scoreBlockedSiteAttemptsPenalty NOTIFY countersChanged)
    Q_PROPERTY(double scoreCompletedTasksBonus READ scoreCompletedTasksBonus NOTIFY countersChanged)
    Q_PROPERTY(double scoreCompletedSubtasksBonus READ scoreCompletedSubtasksBonus NOTIFY countersChanged)
    Q_PROPERTY(int interruptionCount READ interruptionCount NOTIFY countersChanged)
    Q_PROPERTY(int blockedAttemptsCount READ blockedAttemptsCount NOTIFY countersChanged)
    Q_PROPERTY(int blockedSiteAttemptsCount READ blockedSiteAttemptsCount NOTIFY countersChanged)
    Q_PROPERTY(int completedTasksCount READ completedTasksCount NOTIFY countersChanged)
    Q_PROPERTY(int completedSubtasksCount READ completedSubtasksCount NOTIFY countersChanged)

    /// Whether keyboard and pointer have been untouched for too long.
    Q_PROPERTY(bool isInactive READ isInactive NOTIFY inactivityChanged)
    /// Seconds of the session during which isInactive was up.
    Q_PROPERTY(int inactivitySeconds READ inactivitySeconds NOTIFY inactivityChanged)

    /// Title of the task being worked on, or while idle of the one that start() would take; empty for none.
    Q_PROPERTY(QString activeTaskTitle READ activeTaskTitle NOTIFY activeTaskChanged)
    Q_PROPERTY(norvin::TaskQueueModel* queue READ queue CONSTANT)
    Q_PROPERTY(norvin::TaskPickerModel* picker READ picker CONSTANT)

    /// While completed: the whole minutes that the phase took, rounded up.
    Q_PROPERTY(int completedMinutes READ completedMinutes NOTIFY stateChanged)
    /// While completed: whether a record was stored (work phases of at least ten seconds).
    Q_PROPERTY(bool completedRecorded READ completedRecorded NOTIFY stateChanged)
    /// Localisation key of why no phase may begin at all, empty while one may; see setStartGate().
    Q_PROPERTY(QString closedGateKey READ closedGateKey NOTIFY closedGateChanged)
public:
    /// Why an action was refused, as the localisation key of a sentence ("refused_pause_not_running").
    using Refusal = std::optional<QString>;

    DeepWorkScreen(PomodoroTimerService& timer, AppUsageService& usage, MotionService& motion,
                   ModelContext& context, QObject* parent = nullptr);
    ~DeepWorkScreen() override;

    [[nodiscard]] QString state() const;
    [[nodiscard]] QString phase() const;
    [[nodiscard]] QString phaseSymbol() const;
    [[nodiscard]] QString timeText() const;
    [[nodiscard]] int timeRemaining() const;
    [[nodiscard]] int minutes() const { return m_minutes; }
    [[nodiscard]] int initialDuration() const;
    [[nodiscard]] double progress() const;
    [[nodiscard]] int selectedDuration() const;
    void setSelectedDuration(int minutes);
    [[nodiscard]] QString activityKind() const;
    [[nodiscard]] QString activityAppName() const;
    [[nodiscard]] QString activityDomain() const;
    [[nodiscard]] bool isTrackingActive() const;
    [[nodiscard]] QString blindReasonKey() const;
    [[nodiscard]] int legitimateSeconds() const;
    [[nodiscard]] int distractedSeconds() const;
    [[nodiscard]] bool scoreHasEnoughData() const { return m_terms.hasEnoughData; }
    [[nodiscard]] double score() const { return m_terms.score; }
    [[nodiscard]] double scoreRatio() const { return m_terms.ratio; }
    [[nodiscard]] double scoreRatioPoints() const { return m_terms.ratioPoints; }
    [[nodiscard]] double scoreInterruptionPenalty() const { return m_terms.interruptionPenalty; }
    [[nodiscard]] double scoreBlockedAttemptsPenalty() const { return m_terms.blockedAttemptsPenalty; }
    [[nodiscard]] double scoreBlockedSiteAttemptsPenalty() const {
        return m_terms.blockedSiteAttemptsPenalty;
    }
    [[nodiscard]] double scoreCompletedTasksBonus() const { return m_terms.completedTasksBonus; }
    [[nodiscard]] double scoreCompletedSubtasksBonus() const { return m_terms.completedSubtasksBonus; }
    [[nodiscard]] int interruptionCount() const;
    [[nodiscard]] int blockedAttemptsCount() const;
    [[nodiscard]] int blockedSiteAttemptsCount() const;
    [[nodiscard]] int completedTasksCount() const;
    [[nodiscard]] int completedSubtasksCount() const;
    [[nodiscard]] bool isInactive() const;
    [[nodiscard]] int inactivitySeconds() const;
    [[nodiscard]] QString activeTaskTitle() const;
    [[nodiscard]] TaskQueueModel* queue() { return &m_queue; }
    [[nodiscard]] TaskPickerModel* picker() { return &m_picker; }
    [[nodiscard]] int completedMinutes() const;
    [[nodiscard]] bool completedRecorded() const;
    [[nodiscard]] QString closedGateKey() const { return m_closedGate.value_or(QString()); }
    [[nodiscard]] PomodoroTimerService& timer() { return m_timer; }

    /// Has `gate` asked before any phase begins; it answers why none may. What runs already goes on.
    void setStartGate(std::function<Refusal()> gate);
    /// Asks the gate again, so that closedGateKey tells what it says now.
    void refreshStartGate();

    /// Starts a phase with the task chosen, or the first of the queue that is not done. Refused while a phase
    /// runs or is paused. @param minutes 1 to 1440; none for the usual length
    Refusal startPhase(PomodoroPhase phase, std::optional<int> minutes = std::nullopt);
    /// The same with the task of that title: the queued one, else an open one of the store, else a new one;
    /// it is queued. An empty title leaves the choice as it is.
    Refusal startPhaseWith(const QString& taskTitle, PomodoroPhase phase, std::optional<int> minutes);
    Refusal pauseSession();
    Refusal resumeSession();
    /// Refused while nothing runs, is paused or is completed.
    Refusal stopSession();
    /// Makes a task of a title and queues it; a title of white space is refused.
    Refusal addTaskTitled(const QString& title);

    // What the screen's controls call. They do nothing where the action would be refused.
    /// Starts a work phase of selectedDuration.
    Q_INVOKABLE void start();
    Q_INVOKABLE void startBreak();
    Q_INVOKABLE void startRearming();
    Q_INVOKABLE void pause();
    Q_INVOKABLE void resume();
    Q_INVOKABLE void stop();
    /// @return whether a task was made
    Q_INVOKABLE bool addTask(const QString& title);
    Q_INVOKABLE void addExistingTask(const QString& taskId);
    /// Adds a subtask to the task of a row. @return whether one was made
    Q_INVOKABLE bool addSubtask(int row, const QString& title);
    Q_INVOKABLE void removeFromQueue(int row);
    /// Moves the queued task that the row belongs to by that many places, negative for up.
    Q_INVOKABLE void moveInQueue(int row, int places);
    /// Ticks a task or subtask off, or reopens it.
    Q_INVOKABLE void toggleDone(int row);
    /// Makes the queued task that the row belongs to the one being worked on.
    Q_INVOKABLE void makeActive(int row);

Q_SIGNALS:
    void stateChanged();
    void phaseChanged();
    void phaseSymbolChanged();
    void timeChanged();
    void minutesChanged();
    void selectedDurationChanged();
    void activityChanged();
    /// What may change with every second.
    void metricsChanged();
    /// What changes only when something happens.
    void countersChanged();
    void inactivityChanged();
    void activeTaskChanged();
    void closedGateChanged();
    /// The user wants to open the gate, or to begin what it forbids, from wherever that was.
    void gateHelpWanted();

private:
    [[nodiscard]] Refusal startRefusal();
    void begin(PomodoroPhase phase);
    [[nodiscard]] TaskItem* taskToStartWith() const;
    [[nodiscard]] TaskItem* openTaskTitled(const QString& title) const;
    TaskItem* makeTask(const QString& title);
    void refreshMetrics();
    void countSecond();
    void countMinutes();
    void moveOnFrom(TaskItem* doneTask);

    PomodoroTimerService& m_timer;
    AppUsageService& m_usage;
    MotionService& m_motion;
    ModelContext& m_context;
    TaskQueueModel m_queue;
    TaskPickerModel m_picker;
    int m_minutes = 0;
    FocusScoreTerms m_terms;
    FocusMetrics m_metrics;
    std::function<Refusal()> m_startGate;
    Refusal m_closedGate;
};

} // namespace norvin
