#pragma once

#include "model/Entity.h"
#include "model/EntityId.h"
#include "model/Instant.h"
#include "model/TaskStatus.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace norvin {

class Project;
class ProjectPhase;
class TaskItem;
class TaskResource;
struct Session;

using TaskId = EntityId<TaskItem>;

/// A task or subtask. Setting a relationship keeps both of its ends in step.
class TaskItem final : public Entity {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(
        QString taskDescription READ taskDescription WRITE setTaskDescription NOTIFY taskDescriptionChanged)
    Q_PROPERTY(QString statusValue READ statusValue NOTIFY statusChanged)
    Q_PROPERTY(bool isDone READ isDone NOTIFY statusChanged)
    Q_PROPERTY(int priorityValue READ priorityValue NOTIFY priorityChanged)
public:
    /// Values of a new task. The defaults are those of a task typed with nothing but a title.
    struct Init {
        TaskId id = TaskId::create();
        QString title = {};
        QString taskDescription = {};
        TaskStatus status = TaskStatus::todo;
        TaskPriority priority = TaskPriority::medium;
        /// Invalid for none, here and in plannedDate.
        QDateTime dueDate = {};
        QDateTime plannedDate = {};
        QDateTime createdAt = QDateTime::currentDateTime();
        Project* project = nullptr;
        ProjectPhase* phase = nullptr;
    };
    explicit TaskItem(const Init& init);
    ~TaskItem() override;

    [[nodiscard]] TaskId id() const { return m_id; }
    [[nodiscard]] const QString& title() const { return m_title; }
    void setTitle(const QString& title);
    [[nodiscard]] const QString& taskDescription() const { return m_taskDescription; }
    void setTaskDescription(const QString& text);

    /// The stored status text, whatever it is.
    [[nodiscard]] const QString& statusValue() const { return m_statusValue; }
    /// The status; a stored text that is no status reads as todo.
    [[nodiscard]] TaskStatus status() const;
    /// Stores the status and carries a change to or from done down through all levels of subtasks.
    void setStatus(TaskStatus status);
    [[nodiscard]] bool isDone() const { return status() == TaskStatus::done; }

    /// The stored priority number, whatever it is.
    [[nodiscard]] int priorityValue() const { return m_priorityValue; }
    /// The priority; none when the stored number is no priority.
    [[nodiscard]] std::optional<TaskPriority> priority() const;
    void setPriority(TaskPriority priority);

    /// In local time; invalid when there is none. The same for plannedDate().
    [[nodiscard]] QDateTime dueDate() const { return m_dueDate.dateTime(); }
    void setDueDate(const QDateTime& date);
    [[nodiscard]] QDateTime plannedDate() const { return m_plannedDate.dateTime(); }
    void setPlannedDate(const QDateTime& date);
    [[nodiscard]] QDateTime createdAt() const { return m_createdAt.dateTime(); }
    /// The same dates where many tasks are looked at: comparing these asks no time zone.
    [[nodiscard]] Instant dueInstant() const { return m_dueDate; }
    [[nodiscard]] Instant plannedInstant() const { return m_plannedDate; }
    /// When the task stands on the agenda: as planned, else as due; none without either.
    [[nodiscard]] Instant agendaInstant() const { return m_plannedDate.isNone() ? m_dueDate : m_plannedDate; }
    [[nodiscard]] Instant createdInstant() const { return m_createdAt; }

    /// Null when there is none; the same for phase() and parentTask().
    [[nodiscard]] Project* project() const { return m_project; }
    void setProject(Project* project);
    [[nodiscard]] ProjectPhase* phase() const { return m_phase; }
    void setPhase(ProjectPhase* phase);
    [[nodiscard]] TaskItem* parentTask() const { return m_parentTask; }
    /// A task cannot become its own ancestor; such a call changes nothing.
    void setParentTask(TaskItem* parent);

    /// In store order, which is that of creation unless they were moved; resources() in that of creation.
    [[nodiscard]] const QList<TaskItem*>& subtasks() const { return m_subtasks; }
    [[nodiscard]] const QList<TaskResource*>& resources() const { return m_resources; }
    /// The sessions recorded for this task, oldest first, read from the store; empty without a context.
    [[nodiscard]] QList<Session> sessions() const;

    /// Done subtasks ÷ subtasks, 0 to 1; 0 without subtasks.
    [[nodiscard]] double subtasksProgress() const;
    /// Of the direct subtasks, those that are done.
    [[nodiscard]] int completedSubtasksCount() const;
    /// Not done, and the day of the due date is over at `now`, on the calendar in which `now` is told.
    [[nodiscard]] bool isOverdue(const QDateTime& now) const;
    /// The same of the planned date.
    [[nodiscard]] bool isPlannedLate(const QDateTime& now) const;
    /// None without a date; the localisation key "today" or "tomorrow" for those days, else a short date in
    /// the format of `locale`.
    [[nodiscard]] std::optional<QString> formattedDueDate(const QDateTime& now, const QLocale& locale) const;
    [[nodiscard]] std::optional<QString> formattedPlannedDate(const QDateTime& now,
                                                              const QLocale& locale) const;

Q_SIGNALS:
    void titleChanged();
    void taskDescriptionChanged();
    void statusChanged();
    void priorityChanged();
    void dueDateChanged();
    void plannedDateChanged();
    void projectChanged();
    void phaseChanged();
    void parentTaskChanged();
    /// A subtask came, went, or changed place.
    void subtasksChanged();
    void resourcesChanged();

private:
    friend class ModelContext;
    friend class PlanningGraph;
    friend class SnapshotAccess;
    friend class Project;
    friend class ProjectPhase;
    friend class TaskResource;

    /// Stores the status of this task alone.
    void storeStatus(TaskStatus status);

    TaskId m_id;
    QString m_title;
    QString m_taskDescription;
    QString m_statusValue;
    int m_priorityValue;
    Instant m_dueDate;
    Instant m_plannedDate;
    Instant m_createdAt;
    Project* m_project = nullptr;
    ProjectPhase* m_phase = nullptr;
    TaskItem* m_parentTask = nullptr;
    QList<TaskItem*> m_subtasks;
    QList<TaskResource*> m_resources;
};

} // namespace norvin
