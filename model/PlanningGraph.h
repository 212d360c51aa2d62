#pragma once

#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "model/StoreError.h"
#include "model/TaskItem.h"
#include "model/TaskResource.h"

#include <QHash>
#include <QUuid>

#include <tuple>
#include <vector>

namespace norvin {

class StoreConnection;

/// All entities of one type, and what of them is not in the store yet.
template <class T>
struct EntityPool {
    /// In store order.
    std::vector<T*> all;
    QHash<QUuid, T*> byId;
    /// Those without a row, in store order, and those whose row is older than the object.
    std::vector<T*> created;
    std::vector<T*> modified;
    /// Those whose row has another place than the object.
    std::vector<T*> moved;
    /// Place of the last entity in store order, past and present.
    qint64 lastPlace = 0;
    /// Rows of entities that are gone, in the order in which to delete them.
    std::vector<QUuid> deleted;
};

/// Entities that go together, each list in the order of removal: a task comes after its subtasks.
struct Removal {
    std::vector<TaskResource*> resources;
    std::vector<TaskItem*> tasks;
    std::vector<ProjectPhase*> phases;
    std::vector<Project*> projects;
};

/// The planning entities of a context and their relationships. Only for the thread of its container.
class PlanningGraph final {
public:
    PlanningGraph() = default;
    PlanningGraph(const PlanningGraph&) = delete;
    PlanningGraph& operator=(const PlanningGraph&) = delete;
    /// Cuts all relationships. The entities are deleted here if they have no context yet, else with it.
    ~PlanningGraph();

    [[nodiscard]] const EntityPool<Project>& projects() const { return m_projects; }
    [[nodiscard]] const EntityPool<ProjectPhase>& phases() const { return m_phases; }
    [[nodiscard]] const EntityPool<TaskItem>& tasks() const { return m_tasks; }
    [[nodiscard]] const EntityPool<TaskResource>& resources() const { return m_resources; }

    /// Reads everything from the store; the graph is empty before. References to rows that are not there read
    /// as none.
    [[nodiscard]] StoreResult load(StoreConnection& connection);
    /// Makes all entities part of the context, which owns them from now on.
    void setContext(ModelContext* context);

    /// Takes an entity into the graph.
    /// @return false when the graph has one with this id, or the id is null
    [[nodiscard]] bool adopt(Project& project, ModelContext* context);
    [[nodiscard]] bool adopt(ProjectPhase& phase, ModelContext* context);
    [[nodiscard]] bool adopt(TaskItem& task, ModelContext* context);
    [[nodiscard]] bool adopt(TaskResource& resource, ModelContext* context);

    /// Puts a task before one of its siblings, the other subtasks of its parent or the other tasks without
    /// one, or after the last of them for null.
    /// @return whether anything changed: not for a task outside the graph, nor for one that is no sibling
    [[nodiscard]] bool move(TaskItem& task, TaskItem* before);
    /// Notes that the row of an entity of the graph is out of date.
    void markModified(Entity& entity);
    /// Notes that no row can be relied upon.
    void markAllModified();

    /// Collects what goes with the entity; the relationships are still whole. An entity that is collected
    /// already gives nothing.
    [[nodiscard]] static Removal collect(Project& project);
    [[nodiscard]] static Removal collect(ProjectPhase& phase);
    [[nodiscard]] static Removal collect(TaskItem& task);
    [[nodiscard]] static Removal collect(TaskResource& resource);
    /// Takes the collected entities out of the graph and out of the relationships of all others. The objects
    /// remain, without a context.
    void release(const Removal& removal);

    /// Writes all changes, inside the caller's transaction. Throws SQLite::Exception.
    void write(StoreConnection& connection) const;
    /// The transaction was committed.
    void markWritten();
    [[nodiscard]] bool hasChanges() const;

private:
    class Unlinker;

    [[nodiscard]] auto pools() { return std::tie(m_resources, m_tasks, m_phases, m_projects); }
    [[nodiscard]] auto pools() const { return std::tie(m_resources, m_tasks, m_phases, m_projects); }
    template <class T>
    [[nodiscard]] bool enter(EntityPool<T>& pool, T& entity, ModelContext* context);
    void shelve(Entity& entity, ModelContext* context);
    template <class T>
    static void leave(EntityPool<T>& pool, const std::vector<T*>& removed);
    template <class T>
    void addLoaded(EntityPool<T>& pool, T* entity, qint64 place);
    /// Whether the row of an entity of the pool is to be deleted and written anew.
    template <class T>
    [[nodiscard]] static bool comesBack(const EntityPool<T>& pool);
    [[nodiscard]] static bool goesAlong(const Entity& entity);
    static void collectTree(TaskItem& root, Removal& removal);
    void loadProjects(StoreConnection& connection);
    void loadPhases(StoreConnection& connection);
    void loadTasks(StoreConnection& connection);
    void loadResources(StoreConnection& connection);
    void linkSubtasks();

    EntityPool<Project> m_projects;
    EntityPool<ProjectPhase> m_phases;
    EntityPool<TaskItem> m_tasks;
    EntityPool<TaskResource> m_resources;
    /// Parent of the entities that came last; null without a context.
    QObject* m_shelf = nullptr;
    int m_shelfCount = 0;
};

} // namespace norvin
