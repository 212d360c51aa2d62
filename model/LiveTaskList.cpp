#include "model/LiveTaskList.h"

#include "model/ModelContext.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace norvin {

LiveTaskList::LiveTaskList(ModelContext& context, Predicate accept, Order order, QObject* parent)
    : QAbstractListModel(parent)
    , m_context(&context)
    , m_accept(std::move(accept))
    , m_order(std::move(order)) {
    load();
    connect(m_context, &ModelContext::taskInserted, this, &LiveTaskList::update);
    connect(m_context, &ModelContext::taskChanged, this, &LiveTaskList::update);
    connect(m_context, &ModelContext::taskAboutToBeRemoved, this, &LiveTaskList::removeRow);
    connect(m_context, &ModelContext::tasksMoved, this, [this] { setQuery(m_accept, m_order); });
    connect(m_context, &QObject::destroyed, this, [this] {
        beginResetModel();
        m_context = nullptr;
        m_rows.clear();
        m_members.clear();
        endResetModel();
        Q_EMIT countChanged();
    });
}

LiveTaskList::~LiveTaskList() = default;

void LiveTaskList::setQuery(Predicate accept, Order order) {
    beginResetModel();
    m_accept = std::move(accept);
    m_order = std::move(order);
    load();
    endResetModel();
    Q_EMIT countChanged();
}

void LiveTaskList::load() {
    m_rows.clear();
    m_members.clear();
    if (m_context == nullptr)
        return;
    m_rows = m_context->fetchTasks(m_accept, m_order);
    m_members = QSet<const TaskItem*>(m_rows.cbegin(), m_rows.cend());
}

void LiveTaskList::refresh() {
    if (m_context == nullptr)
        return;
    const Rows before = m_rows;
    for (TaskItem* task : before) {
        if (!m_accept(*task))
            removeRow(task);
    }
    const Rows all = m_context->tasks();
    for (TaskItem* task : all) {
        if (!m_members.contains(task))
            update(task);
    }
}

bool LiveTaskList::comesBefore(const TaskItem* a, const TaskItem* b) const {
    if (m_order) {
        if (m_order(*a, *b))
            return true;
        if (m_order(*b, *a))
            return false;
    }
    return Entity::isOlder(*a, *b);
}

void LiveTaskList::add(TaskItem* task) {
    const auto place =
        std::upper_bound(m_rows.begin(), m_rows.end(), task,
                         [this](const TaskItem* a, const TaskItem* b) { return comesBefore(a, b); });
    const int row = static_cast<int>(std::distance(m_rows.begin(), place));
    beginInsertRows({}, row, row);
    m_rows.insert(place, task);
    m_members.insert(task);
    endInsertRows();
    Q_EMIT countChanged();
}

void LiveTaskList::update(TaskItem* task) {
    // Whoever heard the signal first may have changed the task, which adds it here early, or removed it.
    const bool accepted = task->context() == m_context && m_accept(*task);
    if (!m_members.contains(task)) {
        if (accepted)
            add(task);
        return;
    }
    if (!accepted) {
        removeRow(task);
        return;
    }
    settle(std::find(m_rows.begin(), m_rows.end(), task));
    const QModelIndex place = index(rowOf(*task));
    Q_EMIT dataChanged(place, place);
}

void LiveTaskList::settle(Rows::iterator place) {
    const auto before = [this](const TaskItem* a, const TaskItem* b) { return comesBefore(a, b); };
    // All the other rows are in order, so only the side on which the task is wrong needs searching.
    auto target = place;
    if (place != m_rows.begin() && before(*place, *std::prev(place)))
        target = std::upper_bound(m_rows.begin(), place, *place, before);
    else if (std::next(place) != m_rows.end() && before(*std::next(place), *place))
        target = std::upper_bound(std::next(place), m_rows.end(), *place, before);
    if (target == place)
        return;
    const int from = static_cast<int>(std::distance(m_rows.begin(), place));
    const int to = static_cast<int>(std::distance(m_rows.begin(), target));
    beginMoveRows({}, from, from, {}, to);
    if (target < place)
        std::rotate(target, place, std::next(place));
    else
        std::rotate(place, std::next(place), target);
    endMoveRows();
}

void LiveTaskList::removeRow(TaskItem* task) {
    if (!m_members.contains(task))
        return;
    const auto place = std::find(m_rows.begin(), m_rows.end(), task);
    const int row = static_cast<int>(std::distance(m_rows.begin(), place));
    beginRemoveRows({}, row, row);
    m_rows.erase(place);
    m_members.remove(task);
    endRemoveRows();
    Q_EMIT countChanged();
}

TaskItem* LiveTaskList::taskAt(int row) const {
    return row >= 0 && row < count() ? m_rows[static_cast<size_t>(row)] : nullptr;
}

int LiveTaskList::rowOf(const TaskItem& task) const {
    if (!m_members.contains(&task))
        return -1;
    return static_cast<int>(std::distance(m_rows.begin(), std::find(m_rows.begin(), m_rows.end(), &task)));
}

int LiveTaskList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant LiveTaskList::data(const QModelIndex& index, int role) const {
    TaskItem* const task = taskAt(index.row());
    if (task == nullptr)
        return {};
    switch (role) {
    case TaskRole:
        return QVariant::fromValue(task);
    case IdRole:
        return task->id().toString();
    case TitleRole:
    case Qt::DisplayRole:
        return task->title();
    case StatusValueRole:
        return task->statusValue();
    case IsDoneRole:
        return task->isDone();
    case PriorityValueRole:
        return task->priorityValue();
    case DueDateRole:
        return task->dueDate();
    case PlannedDateRole:
        return task->plannedDate();
    default:
        return {};
    }
}

QHash<int, QByteArray> LiveTaskList::roleNames() const {
    return {{TaskRole, "task"},       {IdRole, "taskId"},
            {TitleRole, "title"},     {StatusValueRole, "statusValue"},
            {IsDoneRole, "isDone"},   {PriorityValueRole, "priorityValue"},
            {DueDateRole, "dueDate"}, {PlannedDateRole, "plannedDate"}};
}

} // namespace norvin
