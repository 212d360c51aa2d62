#include "focus/TaskQueueModel.h"

#include "focus/PomodoroTimerService.h"
#include "model/Project.h"
#include "model/TaskItem.h"

namespace norvin {

TaskQueueModel::TaskQueueModel(PomodoroTimerService& timer, QObject* parent)
    : TaskTreeModel(parent)
    , m_timer(timer) {
    connect(&m_timer, &PomodoroTimerService::taskQueueChanged, this, &TaskQueueModel::followQueue);
    connect(&m_timer, &PomodoroTimerService::activeTaskChanged, this, [this] {
        if (rowCount() > 0)
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {IsActiveRole});
    });
    followQueue();
}

TaskQueueModel::~TaskQueueModel() = default;

QVariant TaskQueueModel::data(const QModelIndex& index, int role) const {
    if (role < FirstOwnRole)
        return TaskTreeModel::data(index, role);
    const TaskItem* const task = taskAt(index.row());
    if (task == nullptr)
        return {};
    switch (role) {
    case IsActiveRole:
        return index.data(DepthRole).toInt() == 0 && task == m_timer.activeTask();
    case ProjectNameRole:
        return task->project() ? task->project()->name() : QString();
    case ProjectColorRole:
        return task->project() ? task->project()->colorHex() : QString();
    case QueueIndexRole:
        return rootIndexAt(index.row());
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskQueueModel::roleNames() const {
    QHash<int, QByteArray> names = TaskTreeModel::roleNames();
    names.insert({{IsActiveRole, "isActive"},
                  {ProjectNameRole, "projectName"},
                  {ProjectColorRole, "projectColor"},
                  {QueueIndexRole, "queueIndex"}});
    return names;
}

QList<TaskItem*> TaskQueueModel::roots() const {
    return m_timer.taskQueue();
}

void TaskQueueModel::followQueue() {
    synchronise();
    const auto tasks = static_cast<int>(m_timer.taskQueue().size());
    if (tasks != m_taskCount) {
        m_taskCount = tasks;
        Q_EMIT taskCountChanged();
    }
}

} // namespace norvin
