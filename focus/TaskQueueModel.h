#pragma once

#include "model/TaskTreeModel.h"

namespace norvin {

class PomodoroTimerService;

/// The timer's queue as rows: every queued task, each followed by its subtasks of all levels. Main thread
/// only.
class TaskQueueModel final : public TaskTreeModel {
    Q_OBJECT
    /// Queued tasks, subtasks not counted.
    Q_PROPERTY(int taskCount READ taskCount NOTIFY taskCountChanged)
public:
    enum QueueRole {
        IsActiveRole = FirstOwnRole, ///< "isActive": boolean, the task being worked on
        ProjectNameRole,             ///< "projectName": text, empty without a project
        ProjectColorRole,            ///< "projectColor": colour text, empty without a project
        QueueIndexRole, ///< "queueIndex": place of the queued task that the row belongs to, from 0
    };

    explicit TaskQueueModel(PomodoroTimerService& timer, QObject* parent = nullptr);
    ~TaskQueueModel() override;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int taskCount() const { return m_taskCount; }

Q_SIGNALS:
    void taskCountChanged();

private:
    [[nodiscard]] QList<TaskItem*> roots() const override;
    [[nodiscard]] int rootIndexRole() const override { return QueueIndexRole; }
    void followQueue();

    PomodoroTimerService& m_timer;
    int m_taskCount = 0;
};

} // namespace norvin
