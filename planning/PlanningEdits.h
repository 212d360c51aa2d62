#pragma once

#include "model/PlanningSnapshot.h"
#include "model/Session.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

namespace norvin {

class Clock;
class ClockTimer;
class ModelContext;
class PomodoroTimerService;

/// The edits of planning that take something away, each of which can be undone for a while. Only the last one
/// can. Main thread only.
class PlanningEdits final : public QObject {
    Q_OBJECT
    /// What undo() would take back, as a sentence in the language of the window ("“Thesis” was deleted");
    /// empty while there is nothing to undo.
    Q_PROPERTY(QString undoText READ undoText NOTIFY undoChanged)
public:
    /// How long an edit can be undone.
    static constexpr std::chrono::seconds undoTime{10};

    PlanningEdits(ModelContext& context, PomodoroTimerService& timer, Clock& clock,
                  QObject* parent = nullptr);
    ~PlanningEdits() override;

    // Each deletes by the delete rules and saves. The entity must be in the context.
    void deleteTask(TaskItem& task);
    void deleteProject(Project& project);
    /// The tasks of the phases stay, without a phase.
    void deletePhases(const QList<ProjectPhase*>& phases);
    void deleteResource(TaskResource& resource);
    /// Takes the task off the timer's queue; deletes it when it has no project, else clears both its dates.
    void unschedule(TaskItem& task);

    /// Sets the status of the task, and by its rule that of its subtasks, and has a task or subtask that this
    /// finished counted by the timer. This cannot be undone but by setting the status again.
    void setStatus(TaskItem& task, TaskStatus status);

    /// Offers to take back what the caller has just done, as long as any edit can be.
    void offerUndo(const QString& text, std::function<void()> takeBack);
    [[nodiscard]] const QString& undoText() const { return m_undoText; }
    /// Takes the last edit back: what was deleted is there again, in its place, with its sessions; dates are
    /// back where nobody has set others since.
    Q_INVOKABLE void undo();
    /// Gives up the chance to undo.
    Q_INVOKABLE void forget();

Q_SIGNALS:
    void undoChanged();

private:
    struct Deleted;
    [[nodiscard]] Deleted deletedBy(PlanningSnapshot snapshot) const;
    [[nodiscard]] QList<std::pair<TaskId, qsizetype>> queuePlaces(const QSet<TaskId>& tasks) const;
    void bringBack(const Deleted& deleted);
    void putIntoPhases(const QList<std::pair<TaskId, ProjectPhaseId>>& members);

    ModelContext& m_context;
    PomodoroTimerService& m_timer;
    Clock& m_clock;
    QString m_undoText;
    std::function<void()> m_takeBack;
    std::unique_ptr<ClockTimer> m_expiry;
};

/// The sessions of any of the tasks. A read error is logged and gives what was read.
[[nodiscard]] QList<Session> sessionsOf(const QSet<TaskId>& tasks, const ModelContext& context);

// What a deletion takes along, as sentences in the language of the window ("3 tasks, 1 phase and 2 sessions
// go with it."); empty when nothing does.
[[nodiscard]] QString deletionConsequences(const Project& project);
[[nodiscard]] QString deletionConsequences(const TaskItem& task);
/// What the deletion of phases leaves without a phase.
[[nodiscard]] QString deletionConsequences(const QList<ProjectPhase*>& phases);

} // namespace norvin
