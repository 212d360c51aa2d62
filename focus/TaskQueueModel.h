#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QList>

namespace norvin {

class PomodoroTimerService;
class TaskItem;

/// The timer's queue as rows: every queued task, each followed by its subtasks of all levels. Main thread
/// only.
class TaskQueueModel final : public QAbstractListModel {
    Q_OBJECT
    /// Queued tasks, subtasks not counted.
    Q_PROPERTY(int taskCount READ taskCount NOTIFY taskCountChanged)
public:
    enum Role {
        TaskIdRole = Qt::UserRole + 1, ///< text of the task's id
        TitleRole,                     ///< text
        DepthRole,                     ///< 0 for a queued task, 1 and more for subtasks
        IsDoneRole,                    ///< boolean
        IsActiveRole,                  ///< boolean: the task being worked on
        ProjectNameRole,               ///< text, empty without a project
        ProjectColorRole,              ///< colour text, empty without a project
        SubtaskCountRole,              ///< direct subtasks
        CompletedSubtaskCountRole,     ///< direct subtasks that are done
        QueueIndexRole,                ///< place of the queued task that the row belongs to, from 0
    };

    explicit TaskQueueModel(PomodoroTimerService& timer, QObject* parent = nullptr);
    ~TaskQueueModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int taskCount() const;
    /// Null for a row that is not there.
    [[nodiscard]] TaskItem* taskAt(int row) const;

Q_SIGNALS:
    void taskCountChanged();

private:
    struct Row {
        TaskItem* task;
        int depth;
        int queueIndex;

        bool operator==(const Row&) const = default;
    };
    [[nodiscard]] QList<Row> wantedRows() const;
    void synchronise();
    void follow(TaskItem* task);
    void unfollow(TaskItem* task);
    void refreshTask(const TaskItem* task);

    PomodoroTimerService& m_timer;
    QList<Row> m_rows;
    QHash<TaskItem*, QList<QMetaObject::Connection>> m_followed;
    int m_taskCount = 0;
};

} // namespace norvin
