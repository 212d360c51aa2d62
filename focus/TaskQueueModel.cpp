#include "focus/TaskQueueModel.h"

#include "focus/PomodoroTimerService.h"
#include "model/Project.h"
#include "model/TaskItem.h"

#include <algorithm>

namespace norvin {

TaskQueueModel::TaskQueueModel(PomodoroTimerService& timer, QObject* parent)
    : QAbstractListModel(parent)
    , m_timer(timer) {
    connect(&m_timer, &PomodoroTimerService::taskQueueChanged, this, &TaskQueueModel::synchronise);
    connect(&m_timer, &PomodoroTimerService::activeTaskChanged, this, [this] {
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {IsActiveRole});
    });
    synchronise();
}

TaskQueueModel::~TaskQueueModel() = default;

int TaskQueueModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TaskQueueModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows.at(index.row());
    const TaskItem& task = *row.task;
    switch (role) {
    case TaskIdRole:
        return task.id().toString();
    case Qt::DisplayRole:
    case TitleRole:
        return task.title();
    case DepthRole:
        return row.depth;
    case IsDoneRole:
        return task.isDone();
    case IsActiveRole:
        return row.depth == 0 && row.task == m_timer.activeTask();
    case ProjectNameRole:
        return task.project() ? task.project()->name() : QString();
    case ProjectColorRole:
        return task.project() ? task.project()->colorHex() : QString();
    case SubtaskCountRole:
        return static_cast<int>(task.subtasks().size());
    case CompletedSubtaskCountRole:
        return task.completedSubtasksCount();
    case QueueIndexRole:
        return row.queueIndex;
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskQueueModel::roleNames() const {
    return {{TaskIdRole, "taskId"},
            {TitleRole, "title"},
            {DepthRole, "depth"},
            {IsDoneRole, "isDone"},
            {IsActiveRole, "isActive"},
            {ProjectNameRole, "projectName"},
            {ProjectColorRole, "projectColor"},
            {SubtaskCountRole, "subtaskCount"},
            {CompletedSubtaskCountRole, "completedSubtaskCount"},
            {QueueIndexRole, "queueIndex"}};
}

int TaskQueueModel::taskCount() const {
    return m_taskCount;
}

TaskItem* TaskQueueModel::taskAt(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).task : nullptr;
}

QList<TaskQueueModel::Row> TaskQueueModel::wantedRows() const {
    QList<Row> rows;
    const auto append = [&rows](const auto& self, TaskItem* task, int depth, int queueIndex) -> void {
        rows.append({task, depth, queueIndex});
        for (TaskItem* subtask : task->subtasks())
            self(self, subtask, depth + 1, queueIndex);
    };
    int queueIndex = 0;
    for (TaskItem* task : m_timer.taskQueue())
        append(append, task, 0, queueIndex++);
    return rows;
}

// Turns the rows into the wanted ones by single removals, moves and insertions, so that a view keeps its
// place. A subtask may be queued in its own right too: a row is known by its task and depth together.
void TaskQueueModel::synchronise() {
    const QList<Row> wanted = wantedRows();
    const auto isSame = [](const Row& a, const Row& b) { return a.task == b.task && a.depth == b.depth; };

    for (int i = rowCount() - 1; i >= 0; --i) {
        const Row& row = m_rows.at(i);
        if (std::any_of(wanted.cbegin(), wanted.cend(), [&](const Row& other) { return isSame(row, other); }))
            continue;
        beginRemoveRows({}, i, i);
        m_rows.removeAt(i);
        endRemoveRows();
    }
    for (int i = 0; i < wanted.size(); ++i) {
        int at = i;
        while (at < m_rows.size() && !isSame(m_rows.at(at), wanted.at(i)))
            ++at;
        if (at == m_rows.size()) {
            beginInsertRows({}, i, i);
            m_rows.insert(i, wanted.at(i));
            endInsertRows();
        } else if (at != i) {
            beginMoveRows({}, at, at, {}, i);
            m_rows.move(at, i);
            endMoveRows();
        }
        if (m_rows.at(i).queueIndex != wanted.at(i).queueIndex) {
            m_rows[i].queueIndex = wanted.at(i).queueIndex;
            Q_EMIT dataChanged(index(i), index(i), {QueueIndexRole});
        }
    }

    const QList<TaskItem*> followed = m_followed.keys();
    for (TaskItem* task : followed) {
        if (std::none_of(m_rows.cbegin(), m_rows.cend(), [task](const Row& row) { return row.task == task; }))
            unfollow(task);
    }
    for (const Row& row : std::as_const(m_rows))
        follow(row.task);

    const auto tasks = static_cast<int>(m_timer.taskQueue().size());
    if (tasks != m_taskCount) {
        m_taskCount = tasks;
        Q_EMIT taskCountChanged();
    }
}

void TaskQueueModel::follow(TaskItem* task) {
    if (m_followed.contains(task))
        return;
    m_followed.insert(task, {connect(task, &TaskItem::changed, this, [this, task] { refreshTask(task); }),
                             connect(task, &TaskItem::subtasksChanged, this, [this, task] {
                                 synchronise();
                                 refreshTask(task);
                             })});
}

void TaskQueueModel::unfollow(TaskItem* task) {
    const QList<QMetaObject::Connection> connections = m_followed.take(task);
    for (const QMetaObject::Connection& connection : connections)
        disconnect(connection);
}

void TaskQueueModel::refreshTask(const TaskItem* task) {
    for (int i = 0; i < m_rows.size(); ++i) {
        // The parent of a subtask shows how many are done.
        if (m_rows.at(i).task == task || m_rows.at(i).task == task->parentTask())
            Q_EMIT dataChanged(index(i), index(i));
    }
}

} // namespace norvin
