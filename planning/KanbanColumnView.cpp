#include "planning/KanbanColumnView.h"

#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "planning/PlanningEdits.h"
#include "planning/PlanningTexts.h"
#include "platform/Clock.h"

#include <QtGlobal>

#include <algorithm>

namespace norvin {

KanbanColumnView::KanbanColumnView(TaskStatus status, PlanningEdits& edits, const Clock& clock,
                                   QObject* parent)
    : EntityListModel(parent)
    , m_status(status)
    , m_edits(edits)
    , m_clock(clock) {}

KanbanColumnView::~KanbanColumnView() = default;

QString KanbanColumnView::title() const {
    switch (m_status) {
    case TaskStatus::todo:
        return qtTrId("task_status_todo");
    case TaskStatus::inProgress:
        return qtTrId("task_status_in_progress");
    case TaskStatus::done:
        return qtTrId("task_status_done");
    }
    return {};
}

void KanbanColumnView::setDropTargeted(bool targeted) {
    if (targeted == m_isDropTargeted)
        return;
    m_isDropTargeted = targeted;
    Q_EMIT dropTargetedChanged();
}

QList<TaskItem*> KanbanColumnView::tasks() const {
    QList<TaskItem*> tasks;
    tasks.reserve(count());
    for (Entity* task : rows())
        tasks.append(static_cast<TaskItem*>(task));
    return tasks;
}

TaskItem* KanbanColumnView::taskAt(int row) const {
    return static_cast<TaskItem*>(entityAt(row));
}

void KanbanColumnView::setTasks(const QList<TaskItem*>& tasks) {
    setRows(Rows(tasks.cbegin(), tasks.cend()));
}

void KanbanColumnView::retranslate() {
    Q_EMIT titleChanged();
    allRowsTouched();
}

TaskItem* KanbanColumnView::taskToDrop(const QStringList& payload) const {
    const QString text = payload.value(0);
    const TaskId id(QUuid::fromString(text));
    // Whatever stands behind a valid id in the text makes it something else.
    if (id.isNull() || id.toString().compare(text, Qt::CaseInsensitive) != 0)
        return nullptr;
    const auto isIt = [id](const TaskItem* task) { return task->id() == id; };
    const QList<TaskItem*> own = tasks();
    if (const auto found = std::find_if(own.cbegin(), own.cend(), isIt); found != own.cend())
        return *found;
    if (m_project == nullptr)
        return nullptr;
    const QList<TaskItem*>& all = m_project->tasks();
    const auto found = std::find_if(all.cbegin(), all.cend(), isIt);
    return found != all.cend() ? *found : nullptr;
}

bool KanbanColumnView::drop(const QStringList& payload) {
    TaskItem* const task = taskToDrop(payload);
    if (task == nullptr)
        return false;
    m_edits.setStatus(*task, m_status);
    return true;
}

QVariant KanbanColumnView::data(const QModelIndex& index, int role) const {
    const TaskItem* const task = taskAt(index.row());
    if (task == nullptr)
        return {};
    switch (role) {
    case TaskIdRole:
        return task->id().toString();
    case TitleRole:
    case Qt::DisplayRole:
        return task->title();
    case PriorityValueRole:
        return task->priorityValue();
    case DueTextRole:
        return textOfDay(task->formattedDueDate(m_clock.now(), m_locale));
    case IsOverdueRole:
        return task->isOverdue(m_clock.now());
    case PlannedTextRole:
        return textOfDay(task->formattedPlannedDate(m_clock.now(), m_locale));
    case IsPlannedLateRole:
        return task->isPlannedLate(m_clock.now());
    case SubtaskCountRole:
        return static_cast<int>(task->subtasks().size());
    case CompletedSubtaskCountRole:
        return task->completedSubtasksCount();
    case ResourceCountRole:
        return static_cast<int>(task->resources().size());
    case PhaseNameRole:
        return task->phase() != nullptr ? task->phase()->name() : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> KanbanColumnView::roleNames() const {
    return {{TaskIdRole, "taskId"},
            {TitleRole, "title"},
            {PriorityValueRole, "priorityValue"},
            {DueTextRole, "dueText"},
            {IsOverdueRole, "isOverdue"},
            {PlannedTextRole, "plannedText"},
            {IsPlannedLateRole, "isPlannedLate"},
            {SubtaskCountRole, "subtaskCount"},
            {CompletedSubtaskCountRole, "completedSubtaskCount"},
            {ResourceCountRole, "resourceCount"},
            {PhaseNameRole, "phaseName"}};
}

} // namespace norvin
