#include "focus/DeepWorkScreen.h"

#include "focus/MotionService.h"
#include "focus/PhaseSymbol.h"
#include "model/ModelContext.h"

#include <QUuid>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

QString activityKindText(CurrentActivityStatus::Kind kind) {
    switch (kind) {
    case CurrentActivityStatus::Kind::legitimate:
        return QStringLiteral("legitimate");
    case CurrentActivityStatus::Kind::distracted:
        return QStringLiteral("distracted");
    case CurrentActivityStatus::Kind::idle:
        break;
    }
    return QStringLiteral("idle");
}

bool isUnderWay(TimerState state) {
    return state == TimerState::running || state == TimerState::paused;
}

} // namespace

DeepWorkScreen::DeepWorkScreen(PomodoroTimerService& timer, AppUsageService& usage, MotionService& motion,
                               ModelContext& context, QObject* parent)
    : QObject(parent)
    , m_timer(timer)
    , m_usage(usage)
    , m_motion(motion)
    , m_context(context)
    , m_queue(timer)
    , m_picker(context, timer) {
    using Timer = PomodoroTimerService;
    connect(&m_timer, &Timer::stateChanged, this, [this] {
        refreshMetrics();
        Q_EMIT countersChanged();
        Q_EMIT stateChanged();
        Q_EMIT timeChanged();
        Q_EMIT activeTaskChanged();
    });
    connect(&m_timer, &Timer::phaseChanged, this, &DeepWorkScreen::phaseChanged);
    connect(&m_timer, &Timer::stateChanged, this, &DeepWorkScreen::phaseSymbolChanged);
    connect(&m_timer, &Timer::phaseChanged, this, &DeepWorkScreen::phaseSymbolChanged);
    connect(&m_timer, &Timer::timeRemainingChanged, this, &DeepWorkScreen::countSecond);
    connect(&m_timer, &Timer::initialDurationChanged, this, &DeepWorkScreen::timeChanged);
    connect(&m_timer, &Timer::selectedDurationChanged, this, [this] {
        Q_EMIT selectedDurationChanged();
        Q_EMIT timeChanged();
    });
    connect(this, &DeepWorkScreen::timeChanged, this, &DeepWorkScreen::countMinutes);
    countMinutes();
    connect(&m_timer, &Timer::countersChanged, this, [this] {
        refreshMetrics();
        Q_EMIT countersChanged();
    });
    connect(&m_timer, &Timer::activeTaskChanged, this, &DeepWorkScreen::activeTaskChanged);
    connect(&m_timer, &Timer::taskQueueChanged, this, &DeepWorkScreen::activeTaskChanged);
    connect(&m_timer, &Timer::accumulatedInactivitySecondsChanged, this, &DeepWorkScreen::inactivityChanged);
    connect(&m_context, &ModelContext::taskChanged, this, &DeepWorkScreen::activeTaskChanged);
    connect(&m_usage, &AppUsageService::metricsChanged, this, &DeepWorkScreen::refreshMetrics);
    connect(&m_usage, &AppUsageService::currentActivityStatusChanged, this, &DeepWorkScreen::activityChanged);
    connect(&m_usage, &AppUsageService::isTrackingActiveChanged, this, &DeepWorkScreen::activityChanged);
    connect(&m_usage, &AppUsageService::trackingAvailabilityChanged, this, &DeepWorkScreen::activityChanged);
    connect(&m_motion, &MotionService::isInactiveChanged, this, &DeepWorkScreen::inactivityChanged);
}

DeepWorkScreen::~DeepWorkScreen() = default;

QString DeepWorkScreen::state() const {
    return rawValue(m_timer.state());
}

QString DeepWorkScreen::phase() const {
    return rawValue(m_timer.phase());
}

QString DeepWorkScreen::phaseSymbol() const {
    return norvin::phaseSymbol(m_timer.state(), m_timer.phase());
}

QString DeepWorkScreen::timeText() const {
    if (m_timer.state() == TimerState::idle)
        return QString::asprintf("%02d:00", m_timer.selectedDuration());
    return m_timer.timeRemainingString();
}

int DeepWorkScreen::timeRemaining() const {
    return m_timer.timeRemaining();
}

int DeepWorkScreen::initialDuration() const {
    return m_timer.initialDuration();
}

double DeepWorkScreen::progress() const {
    if (m_timer.state() == TimerState::idle || m_timer.initialDuration() <= 0)
        return 0;
    return 1.0 - static_cast<double>(m_timer.timeRemaining()) / m_timer.initialDuration();
}

int DeepWorkScreen::selectedDuration() const {
    return m_timer.selectedDuration();
}

void DeepWorkScreen::setSelectedDuration(int minutes) {
    m_timer.setSelectedDuration(minutes);
}

QString DeepWorkScreen::activityKind() const {
    return activityKindText(m_usage.currentActivityStatus().kind);
}

QString DeepWorkScreen::activityAppName() const {
    return m_usage.currentActivityStatus().appName;
}

QString DeepWorkScreen::activityDomain() const {
    return m_usage.currentActivityStatus().domain.value_or(QString());
}

bool DeepWorkScreen::isTrackingActive() const {
    return m_usage.isTrackingActive();
}

QString DeepWorkScreen::blindReasonKey() const {
    const Availability availability = m_usage.trackingAvailability();
    return availability.isAvailable() ? QString() : availability.reason()->reasonKey;
}

int DeepWorkScreen::legitimateSeconds() const {
    return m_metrics.legitimate;
}

int DeepWorkScreen::distractedSeconds() const {
    return m_metrics.distracted;
}

int DeepWorkScreen::interruptionCount() const {
    return m_timer.interruptionCount();
}

int DeepWorkScreen::blockedAttemptsCount() const {
    return m_timer.blockedAttemptsCount();
}

int DeepWorkScreen::blockedSiteAttemptsCount() const {
    return m_timer.blockedSiteAttemptsCount();
}

int DeepWorkScreen::completedTasksCount() const {
    return m_timer.completedTasksCount();
}

int DeepWorkScreen::completedSubtasksCount() const {
    return m_timer.completedSubtasksCount();
}

bool DeepWorkScreen::isInactive() const {
    return m_motion.isInactive();
}

int DeepWorkScreen::inactivitySeconds() const {
    return m_timer.accumulatedInactivitySeconds();
}

QString DeepWorkScreen::activeTaskTitle() const {
    const TaskItem* task = isUnderWay(m_timer.state()) ? m_timer.activeTask() : taskToStartWith();
    return task ? task->title() : QString();
}

int DeepWorkScreen::completedMinutes() const {
    const int elapsed = m_timer.initialDuration() - m_timer.timeRemaining();
    return m_timer.state() == TimerState::completed ? (elapsed + 59) / 60 : 0;
}

bool DeepWorkScreen::completedRecorded() const {
    return m_timer.state() == TimerState::completed && m_timer.phase() == PomodoroPhase::work &&
           m_timer.initialDuration() - m_timer.timeRemaining() >= 10;
}

void DeepWorkScreen::setStartGate(std::function<Refusal()> gate) {
    m_startGate = std::move(gate);
    refreshStartGate();
}

void DeepWorkScreen::refreshStartGate() {
    Refusal closed = m_startGate ? m_startGate() : std::nullopt;
    if (closed == m_closedGate)
        return;
    m_closedGate = std::move(closed);
    Q_EMIT closedGateChanged();
}

DeepWorkScreen::Refusal DeepWorkScreen::startRefusal() {
    if (isUnderWay(m_timer.state()))
        return QStringLiteral("refused_start_already_running");
    refreshStartGate();
    return m_closedGate;
}

DeepWorkScreen::Refusal DeepWorkScreen::startPhase(PomodoroPhase phase, std::optional<int> minutes) {
    if (Refusal refusal = startRefusal())
        return refusal;
    m_timer.startSession(taskToStartWith(), phase, minutes);
    return std::nullopt;
}

DeepWorkScreen::Refusal DeepWorkScreen::startPhaseWith(const QString& taskTitle, PomodoroPhase phase,
                                                       std::optional<int> minutes) {
    // Before a task is made that nobody would see worked on.
    if (Refusal refusal = startRefusal())
        return refusal;
    const QString title = taskTitle.simplified();
    if (!title.isEmpty()) {
        TaskItem* task = openTaskTitled(title);
        if (!task)
            task = makeTask(title);
        m_timer.addTaskToQueue(task);
        m_timer.setActiveTask(task);
    }
    return startPhase(phase, minutes);
}

DeepWorkScreen::Refusal DeepWorkScreen::pauseSession() {
    if (m_timer.state() != TimerState::running)
        return QStringLiteral("refused_pause_not_running");
    m_timer.pauseSession();
    return std::nullopt;
}

DeepWorkScreen::Refusal DeepWorkScreen::resumeSession() {
    if (m_timer.state() != TimerState::paused)
        return QStringLiteral("refused_resume_not_paused");
    m_timer.resumeSession();
    return std::nullopt;
}

DeepWorkScreen::Refusal DeepWorkScreen::stopSession() {
    if (m_timer.state() == TimerState::idle)
        return QStringLiteral("refused_stop_nothing_runs");
    m_timer.stopSession();
    return std::nullopt;
}

DeepWorkScreen::Refusal DeepWorkScreen::addTaskTitled(const QString& title) {
    const QString text = title.simplified();
    if (text.isEmpty())
        return QStringLiteral("refused_task_title_empty");
    TaskItem* task = makeTask(text);
    m_timer.addTaskToQueue(task);
    if (isUnderWay(m_timer.state()) && !m_timer.activeTask())
        m_timer.setActiveTask(task);
    return std::nullopt;
}

TaskItem* DeepWorkScreen::makeTask(const QString& title) {
    return m_context.insert(std::make_unique<TaskItem>(TaskItem::Init{.title = title}));
}

TaskItem* DeepWorkScreen::openTaskTitled(const QString& title) const {
    const auto isWanted = [&title](const TaskItem& task) {
        return !task.isDone() && !task.parentTask() && task.title() == title;
    };
    for (TaskItem* queued : m_timer.taskQueue()) {
        if (isWanted(*queued))
            return queued;
    }
    const std::vector<TaskItem*> found = m_context.fetchTasks(isWanted);
    return found.empty() ? nullptr : found.front();
}

void DeepWorkScreen::begin(PomodoroPhase phase) {
    // Asked for in the tray, perhaps, where no page says why nothing begins.
    if (const Refusal refusal = startPhase(phase); refusal && refusal == m_closedGate)
        Q_EMIT gateHelpWanted();
}

void DeepWorkScreen::start() {
    begin(PomodoroPhase::work);
}

void DeepWorkScreen::startBreak() {
    begin(PomodoroPhase::breakTime);
}

void DeepWorkScreen::startRearming() {
    begin(PomodoroPhase::rearming);
}

void DeepWorkScreen::pause() {
    static_cast<void>(pauseSession());
}

void DeepWorkScreen::resume() {
    static_cast<void>(resumeSession());
}

void DeepWorkScreen::stop() {
    static_cast<void>(stopSession());
}

bool DeepWorkScreen::addTask(const QString& title) {
    return !addTaskTitled(title);
}

void DeepWorkScreen::addExistingTask(const QString& taskId) {
    m_timer.addTaskToQueue(m_context.task(TaskId(QUuid::fromString(taskId))));
}

bool DeepWorkScreen::addSubtask(int row, const QString& title) {
    TaskItem* parent = m_queue.taskAt(row);
    const QString text = title.simplified();
    if (!parent || text.isEmpty())
        return false;
    TaskItem* subtask = m_context.insert(
        std::make_unique<TaskItem>(TaskItem::Init{.title = text, .project = parent->project()}));
    subtask->setParentTask(parent);
    return true;
}

void DeepWorkScreen::removeFromQueue(int row) {
    if (m_queue.index(row).isValid() && m_queue.index(row).data(TaskQueueModel::DepthRole).toInt() == 0)
        m_timer.removeTaskFromQueue(m_queue.taskAt(row));
}

void DeepWorkScreen::moveInQueue(int row, int places) {
    const QModelIndex index = m_queue.index(row);
    if (!index.isValid())
        return;
    const int from = index.data(TaskQueueModel::QueueIndexRole).toInt();
    m_timer.moveTaskInQueue(from, std::clamp(from + places, 0, m_queue.taskCount() - 1));
}

void DeepWorkScreen::toggleDone(int row) {
    TaskItem* task = m_queue.taskAt(row);
    if (!task)
        return;
    if (task->isDone()) {
        task->setStatus(TaskStatus::todo);
        return;
    }
    task->setStatus(TaskStatus::done);
    m_timer.recordTaskCompletion(task->parentTask() != nullptr);
    // A session that this completed keeps its task: the record has been made for it.
    if (isUnderWay(m_timer.state()))
        moveOnFrom(task);
}

void DeepWorkScreen::makeActive(int row) {
    const QModelIndex index = m_queue.index(row);
    if (!index.isValid())
        return;
    m_timer.setActiveTask(m_timer.taskQueue().at(index.data(TaskQueueModel::QueueIndexRole).toInt()));
}

TaskItem* DeepWorkScreen::taskToStartWith() const {
    if (m_timer.activeTask() && !m_timer.activeTask()->isDone())
        return m_timer.activeTask();
    const QList<TaskItem*>& queue = m_timer.taskQueue();
    const auto next =
        std::find_if(queue.cbegin(), queue.cend(), [](const TaskItem* task) { return !task->isDone(); });
    return next == queue.cend() ? nullptr : *next;
}

void DeepWorkScreen::moveOnFrom(TaskItem* doneTask) {
    if (m_timer.activeTask() != doneTask)
        return;
    if (TaskItem* next = taskToStartWith())
        m_timer.setActiveTask(next);
}

void DeepWorkScreen::countSecond() {
    if (m_timer.state() == TimerState::running && m_motion.isInactive())
        m_timer.setAccumulatedInactivitySeconds(m_timer.accumulatedInactivitySeconds() + 1);
    Q_EMIT timeChanged();
    refreshMetrics();
}

void DeepWorkScreen::countMinutes() {
    const bool isIdle = m_timer.state() == TimerState::idle;
    const int now = isIdle ? m_timer.selectedDuration() : (m_timer.timeRemaining() + 59) / 60;
    if (now == m_minutes)
        return;
    m_minutes = now;
    Q_EMIT minutesChanged();
}

void DeepWorkScreen::refreshMetrics() {
    // The tracker keeps the totals of the last work phase: they are nothing to show in a break, or while
    // idle.
    const bool isOfWork = m_timer.phase() == PomodoroPhase::work && m_timer.state() != TimerState::idle;
    m_metrics = isOfWork ? m_usage.getCurrentMetrics() : FocusMetrics{};
    m_terms = isOfWork ? m_timer.currentScoreTerms() : FocusScoreTerms{};
    Q_EMIT metricsChanged();
}

} // namespace norvin
