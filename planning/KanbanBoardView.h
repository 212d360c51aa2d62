#pragma once

#include "planning/KanbanColumnView.h"
#include "planning/ManagePhasesSheet.h"
#include "planning/PhaseListModel.h"

#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>

#include <array>
#include <memory>
#include <optional>

namespace norvin {

class Clock;
class ClockTimer;
class ModelContext;
class PlanningEdits;
class PlanningNotifications;
class Project;
class ProjectSheet;

/// The board of one project: its tasks without the subtasks, in a column for each status, all of them or
/// those of one phase. It follows the store at the end of each event-loop turn. Tasks are named by the text
/// of their id; one that is no longer there is ignored. Main thread only.
class KanbanBoardView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasProject READ hasProject NOTIFY projectChanged)
    Q_PROPERTY(QString projectName READ projectName NOTIFY projectDetailsChanged)
    Q_PROPERTY(QString projectEmoji READ projectEmoji NOTIFY projectDetailsChanged)
    /// Hexadecimal colour text.
    Q_PROPERTY(QString projectColor READ projectColor NOTIFY projectDetailsChanged)
    /// Tasks of the project, whichever are shown; without subtasks.
    Q_PROPERTY(int taskCount READ taskCount NOTIFY taskCountChanged)
    Q_PROPERTY(norvin::PhaseListModel* phases READ phases CONSTANT)
    /// Text of the id of the phase whose tasks are shown; empty for all tasks.
    Q_PROPERTY(
        QString selectedPhaseID READ selectedPhaseID WRITE setSelectedPhaseID NOTIFY selectedPhaseChanged)
    Q_PROPERTY(norvin::KanbanColumnView* toDo READ toDo CONSTANT)
    Q_PROPERTY(norvin::KanbanColumnView* inProgress READ inProgress CONSTANT)
    Q_PROPERTY(norvin::KanbanColumnView* done READ done CONSTANT)
    /// The editor of a new task is wanted, for newTaskStatus and the selected phase. Whoever shows it sets
    /// this back to false.
    Q_PROPERTY(bool showAddTask READ showAddTask WRITE setShowAddTask NOTIFY showAddTaskChanged)
    Q_PROPERTY(
        bool showManagePhases READ showManagePhases WRITE setShowManagePhases NOTIFY showManagePhasesChanged)
    /// Stays true for as long as the project sheet is open for this project.
    Q_PROPERTY(
        bool showEditProject READ showEditProject WRITE setShowEditProject NOTIFY showEditProjectChanged)
    /// Has the project's phases while showManagePhases is true.
    Q_PROPERTY(norvin::ManagePhasesSheet* phaseSheet READ phaseSheet CONSTANT)
public:
    /// Everything must outlive this.
    KanbanBoardView(ModelContext& context, PlanningEdits& edits, PlanningNotifications& notifications,
                    ProjectSheet& projectSheet, Clock& clock, QObject* parent = nullptr);
    ~KanbanBoardView() override;

    /// Null for none. A project that leaves the store is let go of.
    [[nodiscard]] Project* project() const { return m_project; }
    void setProject(Project* project);
    [[nodiscard]] bool hasProject() const { return m_project != nullptr; }
    [[nodiscard]] QString projectName() const;
    [[nodiscard]] QString projectEmoji() const;
    [[nodiscard]] QString projectColor() const;

    /// The tasks of the project that have no parent task, in store order.
    [[nodiscard]] QList<TaskItem*> allTasks() const;
    /// Those of the selected phase; all of them while none is.
    [[nodiscard]] QList<TaskItem*> filteredTasks() const;
    [[nodiscard]] int taskCount() const { return m_taskCount; }
    [[nodiscard]] PhaseListModel* phases() { return &m_phases; }
    [[nodiscard]] QString selectedPhaseID() const;
    /// Anything but the id of one of the project's phases selects none.
    void setSelectedPhaseID(const QString& phaseId);
    /// Null while none is.
    [[nodiscard]] ProjectPhase* selectedPhase() const;

    [[nodiscard]] KanbanColumnView* toDo() { return &m_toDo; }
    [[nodiscard]] KanbanColumnView* inProgress() { return &m_inProgress; }
    [[nodiscard]] KanbanColumnView* done() { return &m_done; }

    [[nodiscard]] bool showAddTask() const { return m_showAddTask; }
    void setShowAddTask(bool show);
    [[nodiscard]] TaskStatus newTaskStatus() const { return m_newTaskStatus; }
    [[nodiscard]] bool showManagePhases() const { return m_showManagePhases; }
    void setShowManagePhases(bool show);
    [[nodiscard]] bool showEditProject() const { return m_showEditProject; }
    void setShowEditProject(bool show);
    [[nodiscard]] ManagePhasesSheet* phaseSheet() { return &m_phaseSheet; }

    /// Lets go of the project.
    Q_INVOKABLE void close() { setProject(nullptr); }
    /// To be called when the board comes to the front: another day may have begun.
    Q_INVOKABLE void refresh();
    /// Takes what changed into account now rather than at the end of the turn.
    void settle();

    /// Asks for the editor of a new task. @param statusValue "To Do", "In Progress" or "Done"
    Q_INVOKABLE void requestTask(const QString& statusValue);
    /// Makes a task of that title, trimmed, with the status, in the project and the selected phase.
    /// @return its row in the column of the status; −1 for a blank title, which makes none
    Q_INVOKABLE int addTask(const QString& title, const QString& statusValue);
    /// @return the task's row in the column, as the store is now; −1 where it is not shown there
    Q_INVOKABLE int rowOf(const QString& taskId, norvin::KanbanColumnView* column);
    Q_INVOKABLE void openTask(const QString& taskId);
    Q_INVOKABLE void planTask(const QString& taskId);
    /// What the deletion takes along, in the user's language; empty for nothing.
    Q_INVOKABLE [[nodiscard]] QString consequencesOfDeletion(const QString& taskId) const;
    /// Which can be undone for a while.
    Q_INVOKABLE void deleteTask(const QString& taskId);

    void setLocale(const QLocale& locale);
    /// The texts in the language of now.
    void retranslate();

Q_SIGNALS:
    void projectChanged();
    void projectDetailsChanged();
    void taskCountChanged();
    void selectedPhaseChanged();
    void showAddTaskChanged();
    void showManagePhasesChanged();
    void showEditProjectChanged();

private:
    [[nodiscard]] std::array<KanbanColumnView*, 3> columns() { return {&m_toDo, &m_inProgress, &m_done}; }
    [[nodiscard]] TaskItem* taskWithId(const QString& taskId) const;
    [[nodiscard]] bool isSelected(const TaskItem& task) const;
    void followStore();
    void touch(const TaskItem* task);
    void schedule();
    void selectPhase(std::optional<ProjectPhaseId> phase);
    void awaitNextDay();

    ModelContext& m_context;
    PlanningEdits& m_edits;
    PlanningNotifications& m_notifications;
    ProjectSheet& m_projectSheet;
    Clock& m_clock;
    Project* m_project = nullptr;
    KanbanColumnView m_toDo;
    KanbanColumnView m_inProgress;
    KanbanColumnView m_done;
    PhaseListModel m_phases;
    ManagePhasesSheet m_phaseSheet;
    std::optional<ProjectPhaseId> m_selectedPhase;
    int m_taskCount = 0;
    /// Cards that show something else since the last settle().
    QSet<const Entity*> m_touched;
    bool m_isEverythingTouched = false;
    bool m_isScheduled = false;
    bool m_showAddTask = false;
    TaskStatus m_newTaskStatus = TaskStatus::todo;
    bool m_showManagePhases = false;
    bool m_showEditProject = false;
    std::unique_ptr<ClockTimer> m_nextDay;
};

} // namespace norvin
