#include "planning/FilteredTaskList.h"

#include "focus/PomodoroTimerService.h"
#include "model/ModelContext.h"
#include "planning/CalendarDays.h"
#include "planning/PlanningEdits.h"
#include "platform/Clock.h"
#include "sound/SoundService.h"

#include <QSet>
#include <QtGlobal>

#include <memory>
#include <utility>

namespace norvin {

namespace {

// The task and all that is below it, each before its subtasks.
QList<std::pair<TaskId, TaskStatus>> statusesOf(const TaskItem& task) {
    QList<const TaskItem*> tasks{&task};
    QList<std::pair<TaskId, TaskStatus>> statuses;
    for (qsizetype next = 0; next < tasks.size(); ++next) {
        statuses.append({tasks[next]->id(), tasks[next]->status()});
        for (const TaskItem* subtask : tasks[next]->subtasks())
            tasks.append(subtask);
    }
    return statuses;
}

LiveTaskList::Predicate standsOn(const AgendaDay& day) {
    return [day](const TaskItem& task) { return isOnAgendaDay(task, day.start, day.end); };
}

bool isMoreImportant(const TaskItem& a, const TaskItem& b) {
    return a.priorityValue() > b.priorityValue();
}

} // namespace

FilteredTaskList::FilteredTaskList(const QDateTime& selectedDate, const AgendaCollaborators& collaborators,
                                   const QLocale& locale, QObject* parent)
    : AgendaRowsModel(collaborators.context, collaborators.clock, collaborators.notifications, locale,
                      standsOn(agendaDayOf(dateOf(Instant(selectedDate), collaborators.clock.now()),
                                           collaborators.clock.now())),
                      isMoreImportant, parent)
    , m_with(collaborators)
    , m_selectedDate(selectedDate) {
    connect(this, &QAbstractItemModel::rowsInserted, this, &FilteredTaskList::scheduleSync);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &FilteredTaskList::scheduleSync);
    connect(this, &QAbstractItemModel::modelReset, this, &FilteredTaskList::scheduleSync);
    connect(&m_with.context, &ModelContext::taskAboutToBeRemoved, this, [this](const TaskItem* task) {
        if (task == m_taskToUnschedule)
            cancelUnschedule();
    });
}

FilteredTaskList::~FilteredTaskList() = default;

QList<TaskItem*> FilteredTaskList::filteredTasks() const {
    QList<TaskItem*> list;
    for (int row = 0; row < count(); ++row)
        list.append(taskAt(row));
    return list;
}

void FilteredTaskList::setQuickTaskTitle(const QString& title) {
    if (title == m_quickTaskTitle)
        return;
    m_quickTaskTitle = title;
    Q_EMIT quickTaskTitleChanged();
}

bool FilteredTaskList::isToday() const {
    const QDateTime now = m_with.clock.now();
    return dateOf(Instant(m_selectedDate), now) == now.date();
}

void FilteredTaskList::createQuickTaskWithoutProject() {
    const QString title = m_quickTaskTitle.trimmed();
    if (title.isEmpty())
        return;
    TaskItem* const task = m_with.context.insert(std::make_unique<TaskItem>(
        TaskItem::Init{.title = title, .plannedDate = m_selectedDate, .createdAt = m_with.clock.now()}));
    // What cannot be saved stays in memory and is tried again.
    static_cast<void>(m_with.context.save());
    if (isToday())
        m_with.timer.addTaskToQueue(task);
    setQuickTaskTitle({});
    QMetaObject::invokeMethod(
        this, [&sounds = m_with.sounds] { sounds.play(SoundEffect::pop, 1.0); }, Qt::QueuedConnection);
}

void FilteredTaskList::requestUnschedule(TaskItem* task) {
    if (task == m_taskToUnschedule)
        return;
    m_taskToUnschedule = task;
    Q_EMIT taskToUnscheduleChanged();
}

QString FilteredTaskList::titleToUnschedule() const {
    return m_taskToUnschedule ? m_taskToUnschedule->title() : QString();
}

void FilteredTaskList::confirmUnschedule() {
    TaskItem* const task = m_taskToUnschedule;
    cancelUnschedule();
    if (task != nullptr)
        unschedule(*task);
}

void FilteredTaskList::unschedule(TaskItem& task) {
    m_with.edits.unschedule(task);
}

void FilteredTaskList::completeAt(int row) {
    TaskItem* const task = taskAt(row);
    if (task == nullptr)
        return;
    const QString text = qtTrId("undo_completed_format").arg(task->title());
    const auto before = statusesOf(*task);
    const QDateTime planned = task->plannedDate();
    m_with.edits.setStatus(*task, TaskStatus::done);
    m_with.edits.offerUndo(text, [&context = m_with.context, before, planned, id = task->id()] {
        for (const auto& [taskId, status] : before) {
            if (TaskItem* const ticked = context.task(taskId))
                ticked->setStatus(status);
        }
        // A task that leaves the list leaves the queue, which takes its date.
        TaskItem* const again = context.task(id);
        if (again != nullptr && !again->plannedDate().isValid())
            again->setPlannedDate(planned);
    });
}

void FilteredTaskList::scheduleSync() {
    if (!m_isShown || std::exchange(m_isSyncScheduled, true))
        return;
    // Not within the change: whoever makes it may be about to change the queue, too.
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isSyncScheduled = false;
            syncWithDeepWorkQueue(filteredTasks());
        },
        Qt::QueuedConnection);
}

void FilteredTaskList::retire() {
    // What has been put off to the end of this turn belongs to what happened while the list was shown.
    disconnect(this, nullptr, this, nullptr);
}

void FilteredTaskList::syncWithDeepWorkQueue(const QList<TaskItem*>& newTasks) {
    if (!isToday())
        return;
    const QDateTime now = m_with.clock.now();
    const AgendaDay today = agendaDayOf(now.date(), now);
    const QList<TaskItem*> queue = m_with.timer.taskQueue();
    const QSet<TaskItem*> queued(queue.cbegin(), queue.cend());
    for (TaskItem* task : newTasks) {
        if (!queued.contains(task))
            m_with.timer.addTaskToQueue(task);
    }
    const QSet<TaskItem*> listed(newTasks.cbegin(), newTasks.cend());
    for (TaskItem* task : queue) {
        if (!listed.contains(task) && today.contains(task->plannedInstant()))
            m_with.timer.removeTaskFromQueue(task);
    }
}

QString FilteredTaskList::dayProgressBar(int count) const {
    return qtTrId("tasks_completed_format").arg(locale().toString(0), locale().toString(count));
}

} // namespace norvin
