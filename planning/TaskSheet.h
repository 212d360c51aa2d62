#pragma once

#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "model/TaskItem.h"
#include "planning/AgendaCalendarPopover.h"
#include "planning/SubtaskListModel.h"
#include "planning/TaskResourceListModel.h"
#include "planning/TaskSessionListModel.h"

#include <QLocale>
#include <QObject>
#include <QUrl>
#include <QVariantList>

#include <optional>

namespace norvin {

class Clock;
class ModelContext;
class PlanningEdits;
class PlanningNotifications;

/// The sheet of one task: makes a new one, or shows and changes one that is there. Of a task that is there,
/// everything is changed at once; a new one comes into being with create(). Main thread only.
class TaskSheet final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY presentedChanged)
    /// Whether the task is still to be made.
    Q_PROPERTY(bool isNew READ isNew NOTIFY presentedChanged)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY fieldsChanged)
    Q_PROPERTY(QString taskDescription READ taskDescription WRITE setTaskDescription NOTIFY fieldsChanged)
    /// "To Do", "In Progress" or "Done".
    Q_PROPERTY(QString statusValue READ statusValue WRITE setStatusValue NOTIFY fieldsChanged)
    /// 0 low, 1 medium, 2 high; −1 where the stored number is none of them.
    Q_PROPERTY(int priorityValue READ priorityValue WRITE setPriorityValue NOTIFY fieldsChanged)
    /// Texts of ids; empty for none.
    Q_PROPERTY(QString projectId READ projectId WRITE setProjectId NOTIFY fieldsChanged)
    Q_PROPERTY(QString phaseId READ phaseId WRITE setPhaseId NOTIFY fieldsChanged)
    /// What can be chosen, none first: the projects by name, and the phases of the chosen one in order. Maps
    /// with "id", "name" and "color", which may be empty.
    Q_PROPERTY(QVariantList projects READ projects NOTIFY choicesChanged)
    Q_PROPERTY(QVariantList phases READ phases NOTIFY choicesChanged)
    /// Days as texts in the language of the window; empty for none.
    Q_PROPERTY(QString plannedText READ plannedText NOTIFY fieldsChanged)
    Q_PROPERTY(QString dueText READ dueText NOTIFY fieldsChanged)
    Q_PROPERTY(bool isPlannedLate READ isPlannedLate NOTIFY fieldsChanged)
    Q_PROPERTY(bool isOverdue READ isOverdue NOTIFY fieldsChanged)
    /// Title of the parent task; empty for a top-level task.
    Q_PROPERTY(QString parentTitle READ parentTitle NOTIFY fieldsChanged)
    /// When the task was made.
    Q_PROPERTY(QDateTime createdAt READ createdAt NOTIFY presentedChanged)
    Q_PROPERTY(norvin::SubtaskListModel* subtasks READ subtasks CONSTANT)
    Q_PROPERTY(norvin::TaskResourceListModel* resources READ resources CONSTANT)
    Q_PROPERTY(norvin::TaskSessionListModel* sessions READ sessions CONSTANT)
    /// Key of the sentence why files could not be attached; empty while there is none.
    Q_PROPERTY(QString noticeKey READ noticeKey NOTIFY noticeChanged)
    /// Where to look for files to attach first.
    Q_PROPERTY(QUrl fileFolder READ fileFolder NOTIFY presentedChanged)
    Q_PROPERTY(norvin::AgendaCalendarPopover* calendar READ calendar CONSTANT)
public:
    TaskSheet(ModelContext& context, PlanningEdits& edits, PlanningNotifications& notifications, Clock& clock,
              QObject* parent = nullptr);
    ~TaskSheet() override;

    /// Shows a task that is in the context.
    void present(TaskItem& task);
    /// Begins a new task; null for no project or phase. @param plannedDate invalid for none
    void presentNew(Project* project, ProjectPhase* phase, TaskStatus status,
                    const QDateTime& plannedDate = {});
    /// Says that the language or the day has changed.
    void retranslate();
    void setLocale(const QLocale& locale);

    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    [[nodiscard]] bool isNew() const { return m_isPresented && m_task == nullptr; }
    /// Null while nothing, or a new task, is shown.
    [[nodiscard]] TaskItem* task() const { return m_task; }
    [[nodiscard]] QString title() const;
    /// Trimmed; an empty title changes nothing.
    void setTitle(const QString& title);
    [[nodiscard]] QString taskDescription() const;
    void setTaskDescription(const QString& text);
    [[nodiscard]] QString statusValue() const;
    void setStatusValue(const QString& statusValue);
    [[nodiscard]] int priorityValue() const;
    void setPriorityValue(int priorityValue);
    [[nodiscard]] QString projectId() const;
    /// Its subtasks go along. Phases of the former project are left.
    void setProjectId(const QString& projectId);
    [[nodiscard]] QString phaseId() const;
    void setPhaseId(const QString& phaseId);
    [[nodiscard]] QVariantList projects() const;
    [[nodiscard]] QVariantList phases() const;
    [[nodiscard]] QString plannedText() const;
    [[nodiscard]] QString dueText() const;
    [[nodiscard]] bool isPlannedLate() const;
    [[nodiscard]] bool isOverdue() const;
    [[nodiscard]] QString parentTitle() const;
    [[nodiscard]] QDateTime createdAt() const;
    [[nodiscard]] SubtaskListModel* subtasks() { return &m_subtasks; }
    [[nodiscard]] TaskResourceListModel* resources() { return &m_resources; }
    [[nodiscard]] TaskSessionListModel* sessions() { return &m_sessions; }
    [[nodiscard]] QUrl fileFolder() const;
    [[nodiscard]] AgendaCalendarPopover* calendar() { return &m_calendar; }
    [[nodiscard]] const QString& noticeKey() const { return m_noticeKey; }

    /// Makes the task and closes. @return false, with the sheet open, while the title is empty
    Q_INVOKABLE bool create();
    Q_INVOKABLE void close();
    // The date meant is "plannedDate" or "dueDate"; others are ignored.
    /// Sets a date to the day that many days after today.
    Q_INVOKABLE void setDaysFromToday(const QString& field, int days);
    Q_INVOKABLE void clearDay(const QString& field);
    /// Lets a day of the calendar be chosen for a date: from now on, a day chosen there is that date.
    Q_INVOKABLE void chooseDay(const QString& field);
    Q_INVOKABLE void showParent();

    /// Adds a subtask to the task of a row, or to the task itself for −1. @return whether one was made
    Q_INVOKABLE bool addSubtask(int row, const QString& title);
    Q_INVOKABLE void toggleSubtask(int row);
    /// An empty title changes nothing.
    Q_INVOKABLE void renameSubtask(int row, const QString& title);
    /// Moves the subtask by that many places among its siblings, negative for up.
    Q_INVOKABLE void moveSubtask(int row, int places);
    /// Moves the subtask as far among its siblings as a drag over that many rows asks for.
    Q_INVOKABLE void moveSubtaskByRows(int row, int rows);
    Q_INVOKABLE void deleteSubtask(int row);
    Q_INVOKABLE void showSubtask(int row);

    /// Attaches the files and folders that are on this machine and are not attached yet.
    Q_INVOKABLE void attach(const QList<QUrl>& files);
    Q_INVOKABLE void removeResource(int row);
    /// Says that the desktop has no application for a file.
    Q_INVOKABLE void reportUnopened();
    Q_INVOKABLE void dismissNotice();

    /// What goes along when the task is deleted; empty for nothing.
    Q_INVOKABLE [[nodiscard]] QString deletionConsequences() const;
    /// Deletes the task and closes.
    Q_INVOKABLE void deleteTask();

Q_SIGNALS:
    void presentedChanged();
    void fieldsChanged();
    void choicesChanged();
    void noticeChanged();

private:
    /// The values of a task that is still to be made.
    struct Draft {
        QString title;
        QString taskDescription;
        TaskStatus status = TaskStatus::todo;
        TaskPriority priority = TaskPriority::medium;
        ProjectId project;
        ProjectPhaseId phase;
        QDateTime plannedDate;
        QDateTime dueDate;
    };
    void show(TaskItem* task);
    void letGo(const TaskItem* task);
    void setNotice(const QString& key);
    [[nodiscard]] Project* project() const;
    void setDate(const QString& field, const QDateTime& date);
    [[nodiscard]] QDateTime plannedDate() const;
    [[nodiscard]] QDateTime dueDate() const;
    [[nodiscard]] QString dayText(const QDateTime& date) const;

    ModelContext& m_context;
    PlanningEdits& m_edits;
    PlanningNotifications& m_notifications;
    Clock& m_clock;
    QLocale m_locale;
    bool m_isPresented = false;
    TaskItem* m_task = nullptr;
    Draft m_draft;
    QMetaObject::Connection m_following;
    SubtaskListModel m_subtasks{this};
    TaskResourceListModel m_resources{this};
    TaskSessionListModel m_sessions;
    AgendaCalendarPopover m_calendar;
    QString m_chosenField;
    QString m_noticeKey;
    QString m_fileFolder;
};

} // namespace norvin
