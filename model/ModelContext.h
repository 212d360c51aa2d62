#pragma once

#include "model/AppUsageSession.h"
#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "model/RecordCut.h"
#include "model/Session.h"
#include "model/StoreError.h"
#include "model/TaskItem.h"
#include "model/TaskResource.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace norvin {

class PlanningGraph;
class StoreConnection;

/// Which records to fetch: those that start in [from, to); an invalid end is open.
struct RecordQuery {
    QDateTime from = {};
    QDateTime to = {};
    /// Only the sessions of this task; ignored for usage records.
    std::optional<TaskId> task = {};
};

/// The working set of the store: every planning entity once, as an object, and the records as values. Changes
/// reach the disk with save(), which the context calls itself at the end of the event-loop turn in which
/// something changed. A save that fails keeps everything and is tried again with the next one.
/// Only for the thread of its container, the main thread in the program.
class ModelContext final : public QObject {
    Q_OBJECT
public:
    /// Saves what is left to save.
    ~ModelContext() override;

    /// Takes the entity and gives it back. Its id must not be in the context yet: a second one with the same
    /// id is destroyed, and null returned. What it refers to should be inserted too: a relationship to an
    /// entity outside the context reaches the disk only once that one is inserted.
    Project* insert(std::unique_ptr<Project> project);
    ProjectPhase* insert(std::unique_ptr<ProjectPhase> phase);
    TaskItem* insert(std::unique_ptr<TaskItem> task);
    TaskResource* insert(std::unique_ptr<TaskResource> resource);
    /// A session of a task that is not in the context is kept without a task.
    void insert(const Session& session);
    void insert(const AppUsageSession& usage);

    /// Deletes the entity by its delete rules: a project takes its tasks and phases along, a task its
    /// subtasks, sessions and resources; the tasks of a phase stay without one. The objects live until the
    /// end of the event-loop turn, with a null context().
    void remove(Project& project);
    void remove(ProjectPhase& phase);
    void remove(TaskItem& task);
    void remove(TaskResource& resource);
    /// An unknown session is ignored. Where the store cannot be read, that is logged and the session stays.
    void remove(const SessionId& session);
    /// Says what a recorded session was spent on; none for nothing. A task that is not in the context, and a
    /// session that is not there, change nothing. @return whether there is something to save
    bool setSessionTask(const SessionId& session, std::optional<TaskId> task);

    /// Puts a task before one of its siblings in store order, or after the last of them for null: the other
    /// subtasks of its parent, or the other tasks without one. Anything else changes nothing.
    void moveTask(TaskItem& task, TaskItem* before);

    /// All entities of a type in store order: that of their creation in this store, unless they were moved.
    [[nodiscard]] const std::vector<Project*>& projects() const;
    [[nodiscard]] const std::vector<ProjectPhase*>& phases() const;
    [[nodiscard]] const std::vector<TaskItem*>& tasks() const;
    [[nodiscard]] const std::vector<TaskResource*>& resources() const;

    /// The tasks for which `accept` holds, sorted by `before` where given (stable), else in store order.
    [[nodiscard]] std::vector<TaskItem*>
    fetchTasks(const std::function<bool(const TaskItem&)>& accept,
               const std::function<bool(const TaskItem&, const TaskItem&)>& before = {}) const;
    /// Null when there is no such task; the same for the others.
    [[nodiscard]] TaskItem* task(TaskId id) const;
    [[nodiscard]] Project* project(ProjectId id) const;
    [[nodiscard]] ProjectPhase* phase(ProjectPhaseId id) const;
    [[nodiscard]] TaskResource* resource(TaskResourceId id) const;

    /// Records by ascending start, those not yet saved included. A read error is logged and gives what was
    /// read.
    [[nodiscard]] QList<Session> fetchSessions(const RecordQuery& query = {}) const;
    [[nodiscard]] QList<AppUsageSession> fetchAppUsage(const RecordQuery& query = {}) const;
    /// None when there is no such session. A read error is logged and gives none.
    [[nodiscard]] std::optional<Session> session(const SessionId& id) const;
    /// Saves, and says how the records in the file and here stand now. A read error is logged and gives none.
    [[nodiscard]] std::optional<RecordCut> cutRecords();

    /// Writes all changes in one transaction.
    /// @return none on success; on failure the changes stay for the next save
    [[nodiscard]] StoreResult save();
    /// Whether the next save has something to write.
    [[nodiscard]] bool hasChanges() const;

Q_SIGNALS:
    void projectInserted(norvin::Project* project);
    void phaseInserted(norvin::ProjectPhase* phase);
    void taskInserted(norvin::TaskItem* task);
    void resourceInserted(norvin::TaskResource* resource);
    /// Tasks changed places in store order.
    void tasksMoved();
    /// A property of the entity changed.
    void projectChanged(norvin::Project* project);
    void phaseChanged(norvin::ProjectPhase* phase);
    void taskChanged(norvin::TaskItem* task);
    void resourceChanged(norvin::TaskResource* resource);
    /// The entity is about to leave the context; it and all that goes with it are still whole. A task comes
    /// after its subtasks, a project after its tasks and phases.
    void projectAboutToBeRemoved(norvin::Project* project);
    void phaseAboutToBeRemoved(norvin::ProjectPhase* phase);
    void taskAboutToBeRemoved(norvin::TaskItem* task);
    void resourceAboutToBeRemoved(norvin::TaskResource* resource);
    /// A record was added; it reaches the disk with the next save.
    void sessionInserted(const norvin::Session& session);
    /// Sessions were removed, on their own or with their task.
    void sessionsRemoved();
    /// The task of a session is another one.
    void sessionsEdited();
    void appUsageInserted(const norvin::AppUsageSession& usage);
    /// Everything up to now is on the disk.
    void saved();
    void saveFailed(const norvin::StoreError& error);

private:
    friend class Entity;
    friend class ModelContainer;
    ModelContext(std::unique_ptr<StoreConnection> connection, std::unique_ptr<PlanningGraph> graph);
    void entityTouched(Entity& entity);

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace norvin
