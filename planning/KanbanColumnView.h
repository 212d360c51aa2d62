#pragma once

#include "model/TaskItem.h"
#include "planning/EntityListModel.h"

#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace norvin {

class Clock;
class PlanningEdits;
class Project;

/// One column of a project's board: its tasks of one status, in store order. Main thread only.
class KanbanColumnView final : public norvin::EntityListModel {
    Q_OBJECT
    /// In the user's language.
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    /// "To Do", "In Progress" or "Done".
    Q_PROPERTY(QString statusValue READ statusValue CONSTANT)
    /// A dragged card is over the column.
    Q_PROPERTY(bool isDropTargeted READ isDropTargeted WRITE setDropTargeted NOTIFY dropTargetedChanged)
public:
    enum Role {
        TaskIdRole = Qt::UserRole + 1, ///< "taskId": text
        TitleRole,                     ///< "title"; also the display role
        PriorityValueRole,             ///< "priorityValue": 0 low, 1 medium, 2 high; any number may be stored
        DueTextRole,                   ///< "dueText": day in the user's language; empty for none
        IsOverdueRole,                 ///< "isOverdue"
        PlannedTextRole,               ///< "plannedText": like "dueText"
        IsPlannedLateRole,             ///< "isPlannedLate"
        SubtaskCountRole,              ///< "subtaskCount"
        CompletedSubtaskCountRole,     ///< "completedSubtaskCount"
        ResourceCountRole,             ///< "resourceCount": attached files
        PhaseNameRole,                 ///< "phaseName": empty for none
    };
    Q_ENUM(Role)

    /// edits and clock must outlive this.
    KanbanColumnView(TaskStatus status, PlanningEdits& edits, const Clock& clock, QObject* parent = nullptr);
    ~KanbanColumnView() override;

    [[nodiscard]] QString title() const;
    [[nodiscard]] TaskStatus status() const { return m_status; }
    [[nodiscard]] QString statusValue() const { return rawValue(m_status); }
    [[nodiscard]] bool isDropTargeted() const { return m_isDropTargeted; }
    void setDropTargeted(bool targeted);
    /// Whose tasks they are; null for none.
    [[nodiscard]] Project* project() const { return m_project; }
    [[nodiscard]] QList<TaskItem*> tasks() const;
    /// Null when there is no such row.
    [[nodiscard]] TaskItem* taskAt(int row) const;
    /// −1 when the task is not in the column.
    [[nodiscard]] int rowOf(const TaskItem& task) const { return rowOfEntity(&task); }

    // For the board that the column belongs to.
    void setProject(Project* project) { m_project = project; }
    void setTasks(const QList<TaskItem*>& tasks);
    void forget(const TaskItem* task) { dropRow(task); }
    /// What the cards of these tasks show is read again.
    void tasksTouched(const QSet<const Entity*>& tasks) { rowsTouched(tasks); }
    void allTasksTouched() { allRowsTouched(); }
    void setLocale(const QLocale& locale) { m_locale = locale; }
    void retranslate();

    /// A card was dropped on the column: gives the task the status of the column, and with it its subtasks
    /// where that makes or ends "Done". The phase stays.
    /// @param payload its first text is the id of the task
    /// @return false, with nothing changed, where that is no id or no task of the column or the project
    Q_INVOKABLE bool drop(const QStringList& payload);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void titleChanged();
    void dropTargetedChanged();

private:
    [[nodiscard]] TaskItem* taskToDrop(const QStringList& payload) const;

    TaskStatus m_status;
    PlanningEdits& m_edits;
    const Clock& m_clock;
    QLocale m_locale;
    Project* m_project = nullptr;
    bool m_isDropTargeted = false;
};

} // namespace norvin
