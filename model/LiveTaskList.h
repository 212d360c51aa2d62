#pragma once

#include "model/TaskItem.h"

#include <QAbstractListModel>
#include <QSet>

#include <functional>
#include <vector>

namespace norvin {

class ModelContext;

/// The tasks of a context for which a predicate holds, in a given order, kept up to date row by row. Main
/// thread only. Empty once the context is gone.
class LiveTaskList final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    /// Whether a task belongs to the list. Only the task's own properties count: a change elsewhere (the
    /// time, the task's project) is not noticed before refresh().
    using Predicate = std::function<bool(const TaskItem&)>;
    /// Whether `a` comes before `b`; the same restriction holds. Tasks that are equal come in store order.
    using Order = std::function<bool(const TaskItem& a, const TaskItem& b)>;

    enum Role {
        TaskRole = Qt::UserRole + 1, ///< "task": the TaskItem
        IdRole,                      ///< "taskId": text
        TitleRole,                   ///< "title"; also the display role
        StatusValueRole,             ///< "statusValue"
        IsDoneRole,                  ///< "isDone"
        PriorityValueRole,           ///< "priorityValue"
        DueDateRole,                 ///< "dueDate": invalid for none, here and in "plannedDate"
        PlannedDateRole,             ///< "plannedDate"
    };
    Q_ENUM(Role)

    /// @param order none for store order
    LiveTaskList(ModelContext& context, Predicate accept, Order order = {}, QObject* parent = nullptr);
    ~LiveTaskList() override;

    /// Asks another question. Resets the model.
    void setQuery(Predicate accept, Order order = {});
    /// Asks the predicate again for every task, after something changed that the list cannot see.
    void refresh();

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    /// Null when there is no such row.
    [[nodiscard]] TaskItem* taskAt(int row) const;
    /// −1 when the task is not in the list.
    [[nodiscard]] int rowOf(const TaskItem& task) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    using Rows = std::vector<TaskItem*>;
    [[nodiscard]] bool comesBefore(const TaskItem* a, const TaskItem* b) const;
    void load();
    void add(TaskItem* task);
    void update(TaskItem* task);
    void removeRow(TaskItem* task);
    void settle(Rows::iterator place);

    ModelContext* m_context;
    Predicate m_accept;
    Order m_order;
    Rows m_rows;
    QSet<const TaskItem*> m_members;
};

} // namespace norvin
