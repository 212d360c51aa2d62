#pragma once

#include "model/TaskTreeModel.h"

namespace norvin {

/// The subtasks of one task, each followed by its own. Main thread only.
class SubtaskListModel final : public TaskTreeModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
public:
    enum SubtaskRole {
        IsFirstRole = FirstOwnRole, ///< "isFirst": whether nothing of its siblings stands above it
        IsLastRole,                 ///< "isLast": whether none stands below
    };

    explicit SubtaskListModel(QObject* parent);
    ~SubtaskListModel() override;

    /// Whose subtasks are shown; null for nobody's. To be called with another before the task is destroyed.
    void setTask(TaskItem* task);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    [[nodiscard]] QList<TaskItem*> roots() const override;
    void follow();

    TaskItem* m_task = nullptr;
    QMetaObject::Connection m_following;
};

} // namespace norvin
