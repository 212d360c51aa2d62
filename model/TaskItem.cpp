#include "model/TaskItem.h"

#include "model/ModelContext.h"
#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "model/Session.h"
#include "model/TaskResource.h"

#include <QLocale>
#include <QPointer>
#include <QTimeZone>

#include <algorithm>
#include <utility>
#include <vector>

namespace norvin {

namespace {

// The calendar day of an instant where the user is, which is where `now` is told.
QDate dayOf(const QDateTime& instant, const QDateTime& now) {
    switch (now.timeSpec()) {
    case Qt::TimeZone:
        return instant.toTimeZone(now.timeZone()).date();
    case Qt::OffsetFromUTC:
        return instant.toOffsetFromUtc(now.offsetFromUtc()).date();
    case Qt::UTC:
        return instant.toUTC().date();
    case Qt::LocalTime:
        break;
    }
    return instant.toLocalTime().date();
}

bool dayIsOver(const QDateTime& date, const QDateTime& now) {
    return date.isValid() && dayOf(date, now) < now.date();
}

std::optional<QString> formattedDay(const QDateTime& date, const QDateTime& now, const QLocale& locale) {
    if (!date.isValid())
        return std::nullopt;
    const QDate day = dayOf(date, now);
    if (day == now.date())
        return QStringLiteral("today");
    if (day == now.date().addDays(1))
        return QStringLiteral("tomorrow");
    return locale.toString(day, QLocale::ShortFormat);
}

} // namespace

TaskItem::TaskItem(const Init& init)
    : Entity(Kind::task)
    , m_id(init.id)
    , m_title(init.title)
    , m_taskDescription(init.taskDescription)
    , m_statusValue(rawValue(init.status))
    , m_priorityValue(static_cast<int>(init.priority))
    , m_dueDate(init.dueDate)
    , m_plannedDate(init.plannedDate)
    , m_createdAt(init.createdAt) {
    setProject(init.project);
    setPhase(init.phase);
}

TaskItem::~TaskItem() {
    for (TaskItem* subtask : std::exchange(m_subtasks, {})) {
        subtask->m_parentTask = nullptr;
        Q_EMIT subtask->parentTaskChanged();
        subtask->touch();
    }
    for (TaskResource* resource : std::exchange(m_resources, {})) {
        resource->m_task = nullptr;
        Q_EMIT resource->taskChanged();
        resource->touch();
    }
    if (m_project != nullptr) {
        takeOut(m_project->m_tasks, this);
        Q_EMIT m_project->tasksChanged();
    }
    if (m_phase != nullptr) {
        takeOut(m_phase->m_tasks, this);
        Q_EMIT m_phase->tasksChanged();
    }
    if (m_parentTask != nullptr) {
        takeOut(m_parentTask->m_subtasks, this);
        Q_EMIT m_parentTask->subtasksChanged();
    }
}

void TaskItem::setTitle(const QString& title) {
    if (title == m_title)
        return;
    m_title = title;
    Q_EMIT titleChanged();
    touch();
}

void TaskItem::setTaskDescription(const QString& text) {
    if (text == m_taskDescription)
        return;
    m_taskDescription = text;
    Q_EMIT taskDescriptionChanged();
    touch();
}

TaskStatus TaskItem::status() const {
    return taskStatusFromRawValue(m_statusValue).value_or(TaskStatus::todo);
}

void TaskItem::storeStatus(TaskStatus status) {
    QString raw = rawValue(status);
    if (raw == m_statusValue)
        return;
    m_statusValue = std::move(raw);
    Q_EMIT statusChanged();
    touch();
}

void TaskItem::setStatus(TaskStatus status) {
    // Depth first with a list of its own: a chain of subtasks may be longer than the stack is deep.
    std::vector<std::pair<QPointer<TaskItem>, TaskStatus>> pending{{this, status}};
    while (!pending.empty()) {
        const auto [task, next] = pending.back();
        pending.pop_back();
        if (!task)
            continue;
        const bool wasDone = task->isDone();
        const bool becomesDone = next == TaskStatus::done;
        task->storeStatus(next);
        if (wasDone == becomesDone)
            continue;
        const TaskStatus below = becomesDone ? TaskStatus::done : TaskStatus::todo;
        for (auto subtask = task->m_subtasks.crbegin(); subtask != task->m_subtasks.crend(); ++subtask)
            pending.emplace_back(*subtask, below);
    }
}

std::optional<TaskPriority> TaskItem::priority() const {
    return taskPriorityFromRawValue(m_priorityValue);
}

void TaskItem::setPriority(TaskPriority priority) {
    const int raw = static_cast<int>(priority);
    if (raw == m_priorityValue)
        return;
    m_priorityValue = raw;
    Q_EMIT priorityChanged();
    touch();
}

void TaskItem::setDueDate(const QDateTime& date) {
    const Instant instant(date);
    if (instant == m_dueDate)
        return;
    m_dueDate = instant;
    Q_EMIT dueDateChanged();
    touch();
}

void TaskItem::setPlannedDate(const QDateTime& date) {
    const Instant instant(date);
    if (instant == m_plannedDate)
        return;
    m_plannedDate = instant;
    Q_EMIT plannedDateChanged();
    touch();
}

void TaskItem::setProject(Project* project) {
    if (project == m_project)
        return;
    Project* const former = std::exchange(m_project, project);
    if (former != nullptr)
        takeOut(former->m_tasks, this);
    if (project != nullptr)
        addInOrder(project->m_tasks, this);
    if (former != nullptr)
        Q_EMIT former->tasksChanged();
    if (project != nullptr)
        Q_EMIT project->tasksChanged();
    Q_EMIT projectChanged();
    touch();
}

void TaskItem::setPhase(ProjectPhase* phase) {
    if (phase == m_phase)
        return;
    ProjectPhase* const former = std::exchange(m_phase, phase);
    if (former != nullptr)
        takeOut(former->m_tasks, this);
    if (phase != nullptr)
        addInOrder(phase->m_tasks, this);
    if (former != nullptr)
        Q_EMIT former->tasksChanged();
    if (phase != nullptr)
        Q_EMIT phase->tasksChanged();
    Q_EMIT phaseChanged();
    touch();
}

void TaskItem::setParentTask(TaskItem* parent) {
    if (parent == m_parentTask)
        return;
    for (const TaskItem* ancestor = parent; ancestor != nullptr; ancestor = ancestor->m_parentTask) {
        if (ancestor == this)
            return;
    }
    TaskItem* const former = std::exchange(m_parentTask, parent);
    if (former != nullptr)
        takeOut(former->m_subtasks, this);
    if (parent != nullptr)
        addInOrder(parent->m_subtasks, this);
    if (former != nullptr)
        Q_EMIT former->subtasksChanged();
    if (parent != nullptr)
        Q_EMIT parent->subtasksChanged();
    Q_EMIT parentTaskChanged();
    touch();
}

QList<Session> TaskItem::sessions() const {
    if (context() == nullptr)
        return {};
    RecordQuery query;
    query.task = m_id;
    return context()->fetchSessions(query);
}

double TaskItem::subtasksProgress() const {
    if (m_subtasks.isEmpty())
        return 0.0;
    return static_cast<double>(completedSubtasksCount()) / static_cast<double>(m_subtasks.size());
}

int TaskItem::completedSubtasksCount() const {
    return static_cast<int>(std::count_if(m_subtasks.begin(), m_subtasks.end(),
                                          [](const TaskItem* subtask) { return subtask->isDone(); }));
}

bool TaskItem::isOverdue(const QDateTime& now) const {
    return !isDone() && dayIsOver(dueDate(), now);
}

bool TaskItem::isPlannedLate(const QDateTime& now) const {
    return !isDone() && dayIsOver(plannedDate(), now);
}

std::optional<QString> TaskItem::formattedDueDate(const QDateTime& now, const QLocale& locale) const {
    return formattedDay(dueDate(), now, locale);
}

std::optional<QString> TaskItem::formattedPlannedDate(const QDateTime& now, const QLocale& locale) const {
    return formattedDay(plannedDate(), now, locale);
}

} // namespace norvin
