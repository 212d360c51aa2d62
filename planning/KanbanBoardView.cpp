#include "planning/KanbanBoardView.h"

#include "model/ModelContext.h"
#include "planning/PlanningEdits.h"
#include "planning/PlanningNotifications.h"
#include "planning/ProjectSheet.h"
#include "platform/Clock.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

namespace norvin {

KanbanBoardView::KanbanBoardView(ModelContext& context, PlanningEdits& edits,
                                 PlanningNotifications& notifications, ProjectSheet& projectSheet,
                                 Clock& clock, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_edits(edits)
    , m_notifications(notifications)
    , m_projectSheet(projectSheet)
    , m_clock(clock)
    , m_toDo(TaskStatus::todo, edits, clock)
    , m_inProgress(TaskStatus::inProgress, edits, clock)
    , m_done(TaskStatus::done, edits, clock)
    , m_phases(context)
    , m_phaseSheet(context, edits, clock) {
    followStore();
    connect(&m_projectSheet, &ProjectSheet::presentedChanged, this, [this] {
        if (!m_projectSheet.isPresented() && std::exchange(m_showEditProject, false))
            Q_EMIT showEditProjectChanged();
    });
}

KanbanBoardView::~KanbanBoardView() = default;

void KanbanBoardView::followStore() {
    connect(&m_context, &ModelContext::taskChanged, this, &KanbanBoardView::touch);
    connect(&m_context, &ModelContext::taskInserted, this, &KanbanBoardView::touch);
    connect(&m_context, &ModelContext::tasksMoved, this, &KanbanBoardView::schedule);
    connect(&m_context, &ModelContext::taskAboutToBeRemoved, this, [this](const TaskItem* task) {
        touch(task);
        m_touched.remove(task);
        for (KanbanColumnView* column : columns())
            column->forget(task);
    });
    const auto resourceTouched = [this](const TaskResource* resource) {
        if (resource->task() != nullptr)
            touch(resource->task());
    };
    connect(&m_context, &ModelContext::resourceInserted, this, resourceTouched);
    connect(&m_context, &ModelContext::resourceChanged, this, resourceTouched);
    connect(&m_context, &ModelContext::resourceAboutToBeRemoved, this, resourceTouched);
    const auto phaseTouched = [this](const ProjectPhase* phase) {
        if (m_project == nullptr || phase->project() != m_project)
            return;
        m_isEverythingTouched = true;
        schedule();
    };
    connect(&m_context, &ModelContext::phaseChanged, this, phaseTouched);
    connect(&m_context, &ModelContext::phaseAboutToBeRemoved, this, [this](const ProjectPhase* phase) {
        if (m_selectedPhase != phase->id())
            return;
        // Not at once: tasks that leave together with the phase are still its project's.
        m_selectedPhase.reset();
        schedule();
        Q_EMIT selectedPhaseChanged();
    });
    connect(&m_context, &ModelContext::projectAboutToBeRemoved, this, [this](const Project* project) {
        if (project == m_project)
            setProject(nullptr);
    });
    connect(&m_context, &ModelContext::projectChanged, this, [this](const Project* project) {
        if (project == m_project)
            Q_EMIT projectDetailsChanged();
    });
}

void KanbanBoardView::setProject(Project* project) {
    if (project == m_project)
        return;
    if (m_project != nullptr)
        m_project->disconnect(this);
    m_project = project;
    if (m_project != nullptr)
        connect(m_project, &Project::tasksChanged, this, &KanbanBoardView::schedule);
    m_selectedPhase.reset();
    m_phases.setProject(project);
    for (KanbanColumnView* column : columns())
        column->setProject(project);
    setShowAddTask(false);
    setShowManagePhases(false);
    settle();
    refresh();
    Q_EMIT selectedPhaseChanged();
    Q_EMIT projectChanged();
    Q_EMIT projectDetailsChanged();
}

QString KanbanBoardView::projectName() const {
    return m_project != nullptr ? m_project->name() : QString();
}

QString KanbanBoardView::projectEmoji() const {
    return m_project != nullptr ? m_project->emoji() : QString();
}

QString KanbanBoardView::projectColor() const {
    return m_project != nullptr ? m_project->colorHex() : QString();
}

QList<TaskItem*> KanbanBoardView::allTasks() const {
    QList<TaskItem*> tasks;
    if (m_project != nullptr) {
        std::copy_if(m_project->tasks().cbegin(), m_project->tasks().cend(), std::back_inserter(tasks),
                     [](const TaskItem* task) { return task->parentTask() == nullptr; });
    }
    return tasks;
}

bool KanbanBoardView::isSelected(const TaskItem& task) const {
    return !m_selectedPhase || (task.phase() != nullptr && task.phase()->id() == *m_selectedPhase);
}

QList<TaskItem*> KanbanBoardView::filteredTasks() const {
    QList<TaskItem*> tasks = allTasks();
    erase_if(tasks, [this](const TaskItem* task) { return !isSelected(*task); });
    return tasks;
}

QString KanbanBoardView::selectedPhaseID() const {
    return m_selectedPhase ? m_selectedPhase->toString() : QString();
}

void KanbanBoardView::setSelectedPhaseID(const QString& phaseId) {
    const ProjectPhase* phase = m_context.phase(ProjectPhaseId(QUuid::fromString(phaseId)));
    const bool isOurs = phase != nullptr && m_project != nullptr && phase->project() == m_project;
    selectPhase(isOurs ? std::optional(phase->id()) : std::nullopt);
}

void KanbanBoardView::selectPhase(std::optional<ProjectPhaseId> phase) {
    if (phase == m_selectedPhase)
        return;
    m_selectedPhase = phase;
    settle();
    Q_EMIT selectedPhaseChanged();
}

ProjectPhase* KanbanBoardView::selectedPhase() const {
    return m_selectedPhase ? m_context.phase(*m_selectedPhase) : nullptr;
}

void KanbanBoardView::touch(const TaskItem* task) {
    const TaskItem* card = task->parentTask() != nullptr ? task->parentTask() : task;
    if (m_project == nullptr || (task->project() != m_project && card->project() != m_project))
        return;
    // A subtask that was another card's until now does not tell whose, so all cards count theirs again.
    if (card != task)
        m_isEverythingTouched = true;
    else
        m_touched.insert(card);
    schedule();
}

void KanbanBoardView::schedule() {
    if (std::exchange(m_isScheduled, true))
        return;
    QMetaObject::invokeMethod(this, &KanbanBoardView::settle, Qt::QueuedConnection);
}

void KanbanBoardView::settle() {
    m_isScheduled = false;
    const QList<TaskItem*> all = allTasks();
    std::array<QList<TaskItem*>, 3> shown;
    for (TaskItem* task : all) {
        if (isSelected(*task))
            shown[static_cast<size_t>(task->status())].append(task);
    }
    const QSet<const Entity*> touched = std::exchange(m_touched, {});
    const bool isEverythingTouched = std::exchange(m_isEverythingTouched, false);
    for (KanbanColumnView* column : columns()) {
        column->setTasks(shown[static_cast<size_t>(column->status())]);
        if (isEverythingTouched)
            column->allTasksTouched();
        else
            column->tasksTouched(touched);
    }
    const auto count = static_cast<int>(all.size());
    if (std::exchange(m_taskCount, count) != count)
        Q_EMIT taskCountChanged();
}

void KanbanBoardView::refresh() {
    for (KanbanColumnView* column : columns())
        column->allTasksTouched();
    awaitNextDay();
}

void KanbanBoardView::awaitNextDay() {
    m_nextDay.reset();
    if (m_project == nullptr)
        return;
    const QDateTime now = m_clock.now();
    QDateTime tomorrow = now;
    tomorrow.setDate(now.date().addDays(1));
    const auto left = std::chrono::milliseconds(now.msecsTo(startOfDay(tomorrow)));
    m_nextDay = m_clock.after(left, [this] { refresh(); });
}

void KanbanBoardView::setShowAddTask(bool show) {
    if (std::exchange(m_showAddTask, show) != show)
        Q_EMIT showAddTaskChanged();
}

void KanbanBoardView::setShowManagePhases(bool show) {
    show = show && m_project != nullptr;
    if (std::exchange(m_showManagePhases, show) == show)
        return;
    m_phaseSheet.setProject(show ? m_project : nullptr);
    Q_EMIT showManagePhasesChanged();
}

void KanbanBoardView::setShowEditProject(bool show) {
    show = show && m_project != nullptr;
    if (show == m_showEditProject)
        return;
    m_showEditProject = show;
    if (show)
        m_projectSheet.present(m_project);
    else
        m_projectSheet.setPresented(false);
    Q_EMIT showEditProjectChanged();
}

void KanbanBoardView::requestTask(const QString& statusValue) {
    if (m_project == nullptr)
        return;
    m_newTaskStatus = taskStatusFromRawValue(statusValue).value_or(TaskStatus::todo);
    setShowAddTask(true);
}

int KanbanBoardView::addTask(const QString& title, const QString& statusValue) {
    if (m_project == nullptr || title.trimmed().isEmpty())
        return -1;
    const TaskStatus status = taskStatusFromRawValue(statusValue).value_or(TaskStatus::todo);
    const TaskItem* task =
        m_context.insert(std::make_unique<TaskItem>(TaskItem::Init{.title = title.trimmed(),
                                                                   .status = status,
                                                                   .createdAt = m_clock.now(),
                                                                   .project = m_project,
                                                                   .phase = selectedPhase()}));
    static_cast<void>(m_context.save());
    settle();
    return columns()[static_cast<size_t>(status)]->rowOf(*task);
}

int KanbanBoardView::rowOf(const QString& taskId, KanbanColumnView* column) {
    settle();
    const TaskItem* task = taskWithId(taskId);
    return task != nullptr && column != nullptr ? column->rowOf(*task) : -1;
}

void KanbanBoardView::openTask(const QString& taskId) {
    if (TaskItem* task = taskWithId(taskId))
        m_notifications.post(PlanningNotifications::showTaskDetail, task);
}

void KanbanBoardView::planTask(const QString& taskId) {
    if (TaskItem* task = taskWithId(taskId))
        m_notifications.post(PlanningNotifications::showPlanningSheet, task);
}

QString KanbanBoardView::consequencesOfDeletion(const QString& taskId) const {
    const TaskItem* task = taskWithId(taskId);
    return task != nullptr ? deletionConsequences(*task) : QString();
}

void KanbanBoardView::deleteTask(const QString& taskId) {
    if (TaskItem* task = taskWithId(taskId))
        m_edits.deleteTask(*task);
    settle();
}

void KanbanBoardView::setLocale(const QLocale& locale) {
    for (KanbanColumnView* column : columns())
        column->setLocale(locale);
}

void KanbanBoardView::retranslate() {
    for (KanbanColumnView* column : columns())
        column->retranslate();
}

TaskItem* KanbanBoardView::taskWithId(const QString& taskId) const {
    return m_context.task(TaskId(QUuid::fromString(taskId)));
}

} // namespace norvin
