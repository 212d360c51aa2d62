#include "planning/SubtaskListModel.h"

#include "model/TaskItem.h"

namespace norvin {

SubtaskListModel::SubtaskListModel(QObject* parent)
    : TaskTreeModel(parent) {
    connect(this, &QAbstractItemModel::rowsInserted, this, &SubtaskListModel::countChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &SubtaskListModel::countChanged);
}

SubtaskListModel::~SubtaskListModel() = default;

void SubtaskListModel::setTask(TaskItem* task) {
    disconnect(m_following);
    m_task = task;
    if (m_task != nullptr)
        m_following = connect(m_task, &TaskItem::subtasksChanged, this, &SubtaskListModel::follow);
    follow();
}

void SubtaskListModel::follow() {
    synchronise();
    // Whoever came, went or moved changes who is first and last.
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {IsFirstRole, IsLastRole});
}

QVariant SubtaskListModel::data(const QModelIndex& index, int role) const {
    if (role < FirstOwnRole)
        return TaskTreeModel::data(index, role);
    TaskItem* const task = taskAt(index.row());
    if (task == nullptr || task->parentTask() == nullptr)
        return {};
    const QList<TaskItem*>& siblings = task->parentTask()->subtasks();
    return role == IsFirstRole ? siblings.first() == task : siblings.last() == task;
}

QHash<int, QByteArray> SubtaskListModel::roleNames() const {
    QHash<int, QByteArray> names = TaskTreeModel::roleNames();
    names.insert({{IsFirstRole, "isFirst"}, {IsLastRole, "isLast"}});
    return names;
}

QList<TaskItem*> SubtaskListModel::roots() const {
    return m_task != nullptr ? m_task->subtasks() : QList<TaskItem*>();
}

} // namespace norvin
