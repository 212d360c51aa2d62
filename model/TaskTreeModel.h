#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QList>

namespace norvin {

class TaskItem;

/// Tasks as rows, each followed by its subtasks of all levels. Main thread only.
class TaskTreeModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role {
        TaskIdRole = Qt::UserRole + 1, ///< "taskId": text of the task's id
        TitleRole,                     ///< "title": text
        DepthRole,                     ///< "depth": 0 for a root, 1 and more for what is below
        IsDoneRole,                    ///< "isDone": boolean
        SubtaskCountRole,              ///< "subtaskCount": direct subtasks
        CompletedSubtaskCountRole,     ///< "completedSubtaskCount": direct subtasks that are done
        FirstOwnRole,                  ///< the first that a derived model may use
    };

    ~TaskTreeModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const final;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Null for a row that is not there.
    [[nodiscard]] TaskItem* taskAt(int row) const;
    /// Place of the root that the row belongs to among all roots, from 0; −1 for a row that is not there.
    [[nodiscard]] int rootIndexAt(int row) const;

protected:
    using QAbstractListModel::QAbstractListModel;

    /// The tasks at depth 0, in their order; they must live until synchronise() is called without them.
    [[nodiscard]] virtual QList<TaskItem*> roots() const = 0;
    /// The role that changes with rootIndexAt(); none unless a derived model has one.
    [[nodiscard]] virtual int rootIndexRole() const { return -1; }
    /// Brings the rows in step with the roots, row by row, so that a view keeps its place. A derived model
    /// calls it when the roots change.
    void synchronise();

private:
    struct Row {
        TaskItem* task;
        int depth;
        int rootIndex;
    };
    [[nodiscard]] QList<Row> wantedRows() const;
    void follow(TaskItem* task);
    void unfollowAllBut(const QList<Row>& rows);
    void refreshTask(const TaskItem* task);

    QList<Row> m_rows;
    QHash<TaskItem*, QList<QMetaObject::Connection>> m_followed;
};

} // namespace norvin
