#include "planning/PlanningEdits.h"

#include "focus/PomodoroTimerService.h"
#include "model/ModelContext.h"
#include "planning/PlanningTexts.h"
#include "platform/Clock.h"

#include <QStringList>
#include <QtGlobal>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

void saveQuietly(ModelContext& context) {
    // What cannot be saved stays in memory, is shown as unsaved and tried again.
    static_cast<void>(context.save());
}

QString deletedText(const QString& name) {
    return qtTrId("undo_deleted_format").arg(name);
}

struct Consequences {
    qsizetype tasks = 0;
    qsizetype subtasks = 0;
    qsizetype phases = 0;
    qsizetype resources = 0;
    qsizetype sessions = 0;

    [[nodiscard]] QString text() const {
        QStringList parts;
        const auto add = [&parts](const char* key, qsizetype count) {
            if (count > 0)
                parts.append(qtTrId(key, static_cast<int>(count)));
        };
        add("count_tasks", tasks);
        add("count_subtasks", subtasks);
        add("count_phases", phases);
        add("count_files", resources);
        add("count_sessions", sessions);
        return parts.isEmpty() ? QString() : qtTrId("deletion_takes_along").arg(enumerated(parts));
    }
};

} // namespace

struct PlanningEdits::Deleted {
    PlanningSnapshot entities;
    QList<Session> sessions;
    /// Tasks of the timer's queue, with their places in it.
    QList<std::pair<TaskId, qsizetype>> queued;
    std::optional<TaskId> activeTask;
};

PlanningEdits::PlanningEdits(ModelContext& context, PomodoroTimerService& timer, Clock& clock,
                             QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_timer(timer)
    , m_clock(clock) {}

PlanningEdits::~PlanningEdits() = default;

void PlanningEdits::deleteTask(TaskItem& task) {
    const QString text = deletedText(task.title());
    Deleted deleted = deletedBy(snapshotOf(task));
    m_context.remove(task);
    saveQuietly(m_context);
    offerUndo(text, [this, deleted = std::move(deleted)] { bringBack(deleted); });
}

void PlanningEdits::deleteProject(Project& project) {
    const QString text = deletedText(project.name());
    Deleted deleted = deletedBy(snapshotOf(project));
    // Tasks of other projects may stand in one of its phases; the phase is all that they lose.
    QList<std::pair<TaskId, ProjectPhaseId>> members;
    for (const ProjectPhase* phase : project.phases()) {
        for (const TaskItem* task : phase->tasks())
            members.append({task->id(), phase->id()});
    }
    m_context.remove(project);
    saveQuietly(m_context);
    offerUndo(text, [this, deleted = std::move(deleted), members] {
        bringBack(deleted);
        putIntoPhases(members);
    });
}

void PlanningEdits::deletePhases(const QList<ProjectPhase*>& phases) {
    if (phases.isEmpty())
        return;
    const QString text = phases.size() == 1 ? deletedText(phases.first()->name())
                                            : qtTrId("undo_phases_deleted", static_cast<int>(phases.size()));
    PlanningSnapshot snapshot;
    QList<std::pair<TaskId, ProjectPhaseId>> members;
    for (const ProjectPhase* phase : phases) {
        const PlanningSnapshot one = snapshotOf(*phase);
        snapshot.phases.insert(snapshot.phases.end(), one.phases.begin(), one.phases.end());
        for (const TaskItem* task : phase->tasks())
            members.append({task->id(), phase->id()});
    }
    for (ProjectPhase* phase : phases)
        m_context.remove(*phase);
    saveQuietly(m_context);
    offerUndo(text, [this, snapshot = std::move(snapshot), members] {
        insert(snapshot, m_context);
        putIntoPhases(members);
    });
}

void PlanningEdits::putIntoPhases(const QList<std::pair<TaskId, ProjectPhaseId>>& members) {
    for (const auto& [taskId, phaseId] : members) {
        TaskItem* const task = m_context.task(taskId);
        ProjectPhase* const phase = m_context.phase(phaseId);
        // One that was given another phase meanwhile keeps it.
        if (task != nullptr && phase != nullptr && task->phase() == nullptr)
            task->setPhase(phase);
    }
}

void PlanningEdits::deleteResource(TaskResource& resource) {
    const QString text = deletedText(resource.name());
    PlanningSnapshot snapshot = snapshotOf(resource);
    m_context.remove(resource);
    saveQuietly(m_context);
    offerUndo(text, [this, snapshot = std::move(snapshot)] { insert(snapshot, m_context); });
}

void PlanningEdits::unschedule(TaskItem& task) {
    const QString text = qtTrId("undo_unscheduled_format").arg(task.title());
    const QDateTime planned = task.plannedDate();
    const QDateTime due = task.dueDate();
    Deleted before = deletedBy(task.project() == nullptr ? snapshotOf(task) : PlanningSnapshot());
    if (task.project() != nullptr)
        before.queued = queuePlaces({task.id()});
    m_timer.removeTaskFromQueue(&task);
    if (task.project() == nullptr) {
        m_context.remove(task);
    } else {
        task.setPlannedDate({});
        task.setDueDate({});
    }
    saveQuietly(m_context);
    offerUndo(text, [this, id = task.id(), planned, due, before = std::move(before)] {
        bringBack(before);
        TaskItem* const again = m_context.task(id);
        if (again == nullptr)
            return;
        if (!again->plannedDate().isValid())
            again->setPlannedDate(planned);
        if (!again->dueDate().isValid())
            again->setDueDate(due);
    });
}

QList<std::pair<TaskId, qsizetype>> PlanningEdits::queuePlaces(const QSet<TaskId>& tasks) const {
    QList<std::pair<TaskId, qsizetype>> places;
    const QList<TaskItem*>& queue = m_timer.taskQueue();
    for (qsizetype place = 0; place < queue.size(); ++place) {
        if (tasks.contains(queue[place]->id()))
            places.append({queue[place]->id(), place});
    }
    return places;
}

PlanningEdits::Deleted PlanningEdits::deletedBy(PlanningSnapshot snapshot) const {
    Deleted deleted{.entities = std::move(snapshot), .sessions = {}, .queued = {}, .activeTask = {}};
    QSet<TaskId> tasks;
    for (const TaskValues& task : deleted.entities.tasks)
        tasks.insert(task.id);
    deleted.queued = queuePlaces(tasks);
    if (const TaskItem* active = m_timer.activeTask(); active != nullptr && tasks.contains(active->id()))
        deleted.activeTask = active->id();
    deleted.sessions = sessionsOf(tasks, m_context);
    return deleted;
}

void PlanningEdits::bringBack(const Deleted& deleted) {
    insert(deleted.entities, m_context);
    for (const Session& session : deleted.sessions)
        m_context.insert(session);
    for (const auto& [id, place] : deleted.queued) {
        TaskItem* const task = m_context.task(id);
        if (task == nullptr || m_timer.taskQueue().contains(task))
            continue;
        // Queueing plans for today, and this one may have been planned for another day.
        const QDateTime planned = task->plannedDate();
        m_timer.addTaskToQueue(task);
        task->setPlannedDate(planned);
        const qsizetype last = m_timer.taskQueue().size() - 1;
        m_timer.moveTaskInQueue(last, std::min(place, last));
    }
    if (deleted.activeTask && m_timer.activeTask() == nullptr)
        m_timer.setActiveTask(m_context.task(*deleted.activeTask));
}

void PlanningEdits::setStatus(TaskItem& task, TaskStatus status) {
    const bool wasDone = task.isDone();
    task.setStatus(status);
    if (!wasDone && status == TaskStatus::done)
        m_timer.recordTaskCompletion(task.parentTask() != nullptr);
}

void PlanningEdits::offerUndo(const QString& text, std::function<void()> takeBack) {
    m_undoText = text;
    m_takeBack = std::move(takeBack);
    m_expiry = m_clock.after(undoTime, [this] { forget(); });
    Q_EMIT undoChanged();
}

void PlanningEdits::undo() {
    if (!m_takeBack)
        return;
    const std::function<void()> takeBack = std::exchange(m_takeBack, {});
    forget();
    takeBack();
    saveQuietly(m_context);
}

void PlanningEdits::forget() {
    m_takeBack = {};
    m_expiry.reset();
    if (m_undoText.isEmpty())
        return;
    m_undoText.clear();
    Q_EMIT undoChanged();
}

QList<Session> sessionsOf(const QSet<TaskId>& tasks, const ModelContext& context) {
    QList<Session> sessions;
    // One question for each of a few tasks; of many, one for all.
    constexpr int few = 50;
    if (tasks.size() <= few) {
        for (const TaskId& task : tasks) {
            RecordQuery query;
            query.task = task;
            sessions.append(context.fetchSessions(query));
        }
        return sessions;
    }
    for (Session& session : context.fetchSessions()) {
        if (session.task && tasks.contains(*session.task))
            sessions.append(std::move(session));
    }
    return sessions;
}

namespace {

QString consequencesOf(const PlanningSnapshot& snapshot, const ModelContext* context, TaskId itself) {
    Consequences with;
    QSet<TaskId> tasks;
    for (const TaskValues& task : snapshot.tasks) {
        tasks.insert(task.id);
        if (task.id != itself)
            ++(task.parentTask ? with.subtasks : with.tasks);
    }
    with.phases = static_cast<qsizetype>(snapshot.phases.size());
    with.resources = static_cast<qsizetype>(snapshot.resources.size());
    if (context != nullptr)
        with.sessions = sessionsOf(tasks, *context).size();
    return with.text();
}

} // namespace

QString deletionConsequences(const Project& project) {
    return consequencesOf(snapshotOf(project), project.context(), {});
}

QString deletionConsequences(const TaskItem& task) {
    return consequencesOf(snapshotOf(task), task.context(), task.id());
}

QString deletionConsequences(const QList<ProjectPhase*>& phases) {
    qsizetype tasks = 0;
    for (const ProjectPhase* phase : phases)
        tasks += phase->tasks().size();
    return tasks == 0 ? QString() : qtTrId("deletion_leaves_without_phase", static_cast<int>(tasks));
}

} // namespace norvin
