#include "model/TaskTreeModel.h"

#include "model/TaskItem.h"

#include <QSet>

#include <algorithm>

namespace norvin {

TaskTreeModel::~TaskTreeModel() = default;

int TaskTreeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TaskTreeModel::data(const QModelIndex& index, int role) const {
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
    case SubtaskCountRole:
        return static_cast<int>(task.subtasks().size());
    case CompletedSubtaskCountRole:
        return task.completedSubtasksCount();
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskTreeModel::roleNames() const {
    return {{TaskIdRole, "taskId"},
            {TitleRole, "title"},
            {DepthRole, "depth"},
            {IsDoneRole, "isDone"},
            {SubtaskCountRole, "subtaskCount"},
            {CompletedSubtaskCountRole, "completedSubtaskCount"}};
}

TaskItem* TaskTreeModel::taskAt(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).task : nullptr;
}

int TaskTreeModel::rootIndexAt(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).rootIndex : -1;
}

QList<TaskTreeModel::Row> TaskTreeModel::wantedRows() const {
    QList<Row> rows;
    const QList<TaskItem*> top = roots();
    for (int rootIndex = 0; rootIndex < top.size(); ++rootIndex) {
        // With a list of its own: subtasks may be nested deeper than the stack is.
        QList<Row> pending{{top.at(rootIndex), 0, rootIndex}};
        while (!pending.isEmpty()) {
            const Row row = pending.takeLast();
            rows.append(row);
            const QList<TaskItem*>& subtasks = row.task->subtasks();
            for (auto subtask = subtasks.crbegin(); subtask != subtasks.crend(); ++subtask)
                pending.append({*subtask, row.depth + 1, rootIndex});
        }
    }
    return rows;
}

// By single removals, moves and insertions. A subtask may be a root in its own right too: a row is known by
// its task and depth together.
void TaskTreeModel::synchronise() {
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
        if (m_rows.at(i).rootIndex != wanted.at(i).rootIndex) {
            m_rows[i].rootIndex = wanted.at(i).rootIndex;
            if (rootIndexRole() >= 0)
                Q_EMIT dataChanged(index(i), index(i), {rootIndexRole()});
        }
    }
    unfollowAllBut(m_rows);
    for (const Row& row : std::as_const(m_rows))
        follow(row.task);
}

void TaskTreeModel::follow(TaskItem* task) {
    if (m_followed.contains(task))
        return;
    m_followed.insert(task, {connect(task, &TaskItem::changed, this, [this, task] { refreshTask(task); }),
                             connect(task, &TaskItem::subtasksChanged, this, [this, task] {
                                 synchronise();
                                 refreshTask(task);
                             })});
}

void TaskTreeModel::unfollowAllBut(const QList<Row>& rows) {
    QSet<TaskItem*> shown;
    for (const Row& row : rows)
        shown.insert(row.task);
    for (auto followed = m_followed.begin(); followed != m_followed.end();) {
        if (shown.contains(followed.key())) {
            ++followed;
            continue;
        }
        for (const QMetaObject::Connection& connection : std::as_const(followed.value()))
            disconnect(connection);
        followed = m_followed.erase(followed);
    }
}

void TaskTreeModel::refreshTask(const TaskItem* task) {
    for (int i = 0; i < m_rows.size(); ++i) {
        // The parent of a subtask shows how many are done.
        if (m_rows.at(i).task == task || m_rows.at(i).task == task->parentTask())
            Q_EMIT dataChanged(index(i), index(i));
    }
}

} // namespace norvin
