#include "model/PlanningGraph.h"

#include "model/ModelContext.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace norvin {

/// Cuts the relationships between entities that leave and those that stay. Each list of one that stays is
/// swept once, however many leave it, and signals go out only when everything is in step again.
class PlanningGraph::Unlinker final {
public:
    void unlink(const Removal& removal) {
        for (TaskResource* resource : removal.resources)
            unlink(*resource);
        for (TaskItem* task : removal.tasks)
            unlink(*task);
        for (ProjectPhase* phase : removal.phases)
            unlink(*phase);
        for (Project* project : removal.projects)
            unlink(*project);
        sweep();
        const auto settle = [](const auto& entities) {
            for (Entity* entity : entities)
                entity->m_leaving = false;
        };
        settle(removal.resources);
        settle(removal.tasks);
        settle(removal.phases);
        settle(removal.projects);
        announce();
    }

private:
    template <class Owner>
    static void leaveOwner(Owner*& owner, QSet<Owner*>& owners) {
        if (owner != nullptr && !owner->m_leaving)
            owners.insert(owner);
        owner = nullptr;
    }
    template <class Member, class Owner>
    static void dropMembers(QList<Member*>& members, Owner* Member::*link, std::vector<Member*>& orphans) {
        for (Member* member : std::exchange(members, {})) {
            if (member->m_leaving)
                continue;
            member->*link = nullptr;
            orphans.push_back(member);
        }
    }

    void unlink(TaskResource& resource) { leaveOwner(resource.m_task, m_resourceOwners); }
    void unlink(TaskItem& task) {
        leaveOwner(task.m_project, m_taskProjects);
        leaveOwner(task.m_phase, m_taskPhases);
        leaveOwner(task.m_parentTask, m_parents);
        dropMembers(task.m_subtasks, &TaskItem::m_parentTask, m_parentless);
        dropMembers(task.m_resources, &TaskResource::m_task, m_taskless);
    }
    void unlink(ProjectPhase& phase) {
        leaveOwner(phase.m_project, m_phaseProjects);
        dropMembers(phase.m_tasks, &TaskItem::m_phase, m_phaseless);
    }
    void unlink(Project& project) {
        dropMembers(project.m_tasks, &TaskItem::m_project, m_tasksWithoutProject);
        dropMembers(project.m_phases, &ProjectPhase::m_project, m_phasesWithoutProject);
    }

    void sweep() const {
        const auto leaves = [](const Entity* entity) { return entity->m_leaving; };
        for (TaskItem* task : m_resourceOwners)
            task->m_resources.removeIf(leaves);
        for (TaskItem* task : m_parents)
            task->m_subtasks.removeIf(leaves);
        for (ProjectPhase* phase : m_taskPhases)
            phase->m_tasks.removeIf(leaves);
        for (Project* project : m_taskProjects)
            project->m_tasks.removeIf(leaves);
        for (Project* project : m_phaseProjects)
            project->m_phases.removeIf(leaves);
    }

    void announce() const {
        for (TaskItem* task : m_resourceOwners)
            Q_EMIT task->resourcesChanged();
        for (TaskItem* task : m_parents)
            Q_EMIT task->subtasksChanged();
        for (ProjectPhase* phase : m_taskPhases)
            Q_EMIT phase->tasksChanged();
        for (Project* project : m_taskProjects)
            Q_EMIT project->tasksChanged();
        for (Project* project : m_phaseProjects)
            Q_EMIT project->phasesChanged();
        announce(m_taskless, &TaskResource::taskChanged);
        announce(m_parentless, &TaskItem::parentTaskChanged);
        announce(m_phaseless, &TaskItem::phaseChanged);
        announce(m_tasksWithoutProject, &TaskItem::projectChanged);
        announce(m_phasesWithoutProject, &ProjectPhase::projectChanged);
    }
    template <class Member>
    static void announce(const std::vector<Member*>& members, void (Member::*linkChanged)()) {
        for (Member* member : members) {
            Q_EMIT(member->*linkChanged)();
            member->touch();
        }
    }

    QSet<TaskItem*> m_resourceOwners;
    QSet<TaskItem*> m_parents;
    QSet<ProjectPhase*> m_taskPhases;
    QSet<Project*> m_taskProjects;
    QSet<Project*> m_phaseProjects;
    std::vector<TaskResource*> m_taskless;
    std::vector<TaskItem*> m_parentless;
    std::vector<TaskItem*> m_phaseless;
    std::vector<TaskItem*> m_tasksWithoutProject;
    std::vector<ProjectPhase*> m_phasesWithoutProject;
};

PlanningGraph::~PlanningGraph() {
    const Removal everything{m_resources.all, m_tasks.all, m_phases.all, m_projects.all};
    std::apply(
        [](const auto&... pool) {
            const auto mark = [](Entity* entity) {
                entity->m_context = nullptr;
                entity->m_leaving = true;
            };
            (std::for_each(pool.all.begin(), pool.all.end(), mark), ...);
        },
        pools());
    // Entities outside the context may refer to those inside, and need not die before them.
    Unlinker().unlink(everything);
    if (m_shelf == nullptr)
        std::apply([](const auto&... pool) { (qDeleteAll(pool.all), ...); }, pools());
}

void PlanningGraph::setContext(ModelContext* context) {
    std::apply(
        [this, context](const auto&... pool) {
            const auto take = [this, context](Entity* entity) { shelve(*entity, context); };
            (std::for_each(pool.all.begin(), pool.all.end(), take), ...);
        },
        pools());
}

void PlanningGraph::shelve(Entity& entity, ModelContext* context) {
    // An object without a parent that reaches QML belongs to its garbage collector, so entities need one. It
    // is not the context itself: a QObject searches all its children whenever one of them dies.
    constexpr int shelfSize = 256;
    if (m_shelf == nullptr || m_shelfCount == shelfSize) {
        m_shelf = new QObject(context);
        m_shelfCount = 0;
    }
    ++m_shelfCount;
    entity.setParent(m_shelf);
    entity.m_context = context;
}

template <class T>
bool PlanningGraph::enter(EntityPool<T>& pool, T& entity, ModelContext* context) {
    if (entity.id().isNull() || pool.byId.contains(entity.id().uuid()))
        return false;
    shelve(entity, context);
    entity.m_stored = false;
    entity.m_dirty = true;
    // What was deleted and comes back takes its place again, unless that went to another meanwhile.
    const auto place = std::lower_bound(pool.all.begin(), pool.all.end(), &entity,
                                        [](const T* a, const T* b) { return Entity::isOlder(*a, *b); });
    const bool isFree = entity.m_sequence > 0 && entity.m_sequence <= pool.lastPlace &&
                        (place == pool.all.end() || (*place)->m_sequence != entity.m_sequence);
    if (isFree) {
        pool.all.insert(place, &entity);
    } else {
        entity.m_sequence = ++pool.lastPlace;
        pool.all.push_back(&entity);
    }
    pool.byId.insert(entity.id().uuid(), &entity);
    pool.created.push_back(&entity);
    return true;
}

// What referred to an entity while it was outside has a row that could not say so; hence markModified()
// below.

bool PlanningGraph::adopt(Project& project, ModelContext* context) {
    if (!enter(m_projects, project, context))
        return false;
    for (TaskItem* task : std::as_const(project.m_tasks))
        markModified(*task);
    for (ProjectPhase* phase : std::as_const(project.m_phases))
        markModified(*phase);
    return true;
}

bool PlanningGraph::adopt(ProjectPhase& phase, ModelContext* context) {
    if (!enter(m_phases, phase, context))
        return false;
    if (phase.m_project != nullptr)
        Entity::reorder(phase.m_project->m_phases, &phase);
    for (TaskItem* task : std::as_const(phase.m_tasks))
        markModified(*task);
    return true;
}

bool PlanningGraph::adopt(TaskItem& task, ModelContext* context) {
    if (!enter(m_tasks, task, context))
        return false;
    if (task.m_project != nullptr)
        Entity::reorder(task.m_project->m_tasks, &task);
    if (task.m_phase != nullptr)
        Entity::reorder(task.m_phase->m_tasks, &task);
    if (task.m_parentTask != nullptr)
        Entity::reorder(task.m_parentTask->m_subtasks, &task);
    for (TaskItem* subtask : std::as_const(task.m_subtasks))
        markModified(*subtask);
    for (TaskResource* resource : std::as_const(task.m_resources))
        markModified(*resource);
    return true;
}

bool PlanningGraph::adopt(TaskResource& resource, ModelContext* context) {
    if (!enter(m_resources, resource, context))
        return false;
    if (resource.m_task != nullptr)
        Entity::reorder(resource.m_task->m_resources, &resource);
    return true;
}

bool PlanningGraph::move(TaskItem& task, TaskItem* before) {
    if (task.m_context == nullptr || before == &task ||
        (before != nullptr && (before->m_context == nullptr || before->m_parentTask != task.m_parentTask)))
        return false;
    std::vector<TaskItem*> siblings;
    std::copy_if(m_tasks.all.begin(), m_tasks.all.end(), std::back_inserter(siblings),
                 [&task](const TaskItem* other) { return other->m_parentTask == task.m_parentTask; });
    std::vector<TaskItem*> wanted = siblings;
    std::erase(wanted, &task);
    wanted.insert(before == nullptr ? wanted.end() : std::find(wanted.begin(), wanted.end(), before), &task);

    // Only those between the old place and the new one change, and they share the places that they have.
    std::vector<TaskItem*> changed;
    std::vector<qint64> places;
    for (size_t at = 0; at < wanted.size(); ++at) {
        if (wanted[at] != siblings[at]) {
            changed.push_back(wanted[at]);
            places.push_back(siblings[at]->m_sequence);
        }
    }
    if (changed.empty())
        return false;
    for (size_t at = 0; at < changed.size(); ++at)
        changed[at]->m_sequence = places[at];
    const auto older = [](const TaskItem* a, const TaskItem* b) { return Entity::isOlder(*a, *b); };
    std::sort(m_tasks.all.begin(), m_tasks.all.end(), older);
    for (TaskItem* moved : changed) {
        if (std::find(m_tasks.moved.begin(), m_tasks.moved.end(), moved) == m_tasks.moved.end())
            m_tasks.moved.push_back(moved);
        for (QList<TaskItem*>* list : {moved->m_project ? &moved->m_project->m_tasks : nullptr,
                                       moved->m_phase ? &moved->m_phase->m_tasks : nullptr}) {
            if (list != nullptr && !std::is_sorted(list->begin(), list->end(), older))
                std::sort(list->begin(), list->end(), older);
        }
    }
    if (task.m_parentTask != nullptr) {
        QList<TaskItem*>& subtasks = task.m_parentTask->m_subtasks;
        std::sort(subtasks.begin(), subtasks.end(), older);
    }
    return true;
}

void PlanningGraph::markModified(Entity& entity) {
    if (entity.m_context == nullptr || entity.m_dirty)
        return;
    entity.m_dirty = true;
    switch (entity.m_kind) {
    case Entity::Kind::project:
        m_projects.modified.push_back(static_cast<Project*>(&entity));
        break;
    case Entity::Kind::phase:
        m_phases.modified.push_back(static_cast<ProjectPhase*>(&entity));
        break;
    case Entity::Kind::task:
        m_tasks.modified.push_back(static_cast<TaskItem*>(&entity));
        break;
    case Entity::Kind::resource:
        m_resources.modified.push_back(static_cast<TaskResource*>(&entity));
        break;
    }
}

void PlanningGraph::markAllModified() {
    std::apply(
        [this](const auto&... pool) {
            const auto mark = [this](Entity* entity) { markModified(*entity); };
            (std::for_each(pool.all.begin(), pool.all.end(), mark), ...);
        },
        pools());
}

bool PlanningGraph::goesAlong(const Entity& entity) {
    return entity.m_context != nullptr && !entity.m_leaving;
}

void PlanningGraph::collectTree(TaskItem& root, Removal& removal) {
    size_t next = removal.tasks.size();
    root.m_leaving = true;
    removal.tasks.push_back(&root);
    for (; next < removal.tasks.size(); ++next) {
        const TaskItem& task = *removal.tasks[next];
        for (TaskItem* subtask : task.m_subtasks) {
            if (goesAlong(*subtask)) {
                subtask->m_leaving = true;
                removal.tasks.push_back(subtask);
            }
        }
        for (TaskResource* resource : task.m_resources) {
            if (goesAlong(*resource)) {
                resource->m_leaving = true;
                removal.resources.push_back(resource);
            }
        }
    }
}

Removal PlanningGraph::collect(Project& project) {
    Removal removal;
    if (!goesAlong(project))
        return removal;
    project.m_leaving = true;
    removal.projects.push_back(&project);
    for (ProjectPhase* phase : std::as_const(project.m_phases)) {
        if (goesAlong(*phase)) {
            phase->m_leaving = true;
            removal.phases.push_back(phase);
        }
    }
    for (TaskItem* task : std::as_const(project.m_tasks)) {
        if (!goesAlong(*task))
            continue;
        // From the top of its tree, so that the tree comes as one piece with every task before its subtasks.
        TaskItem* top = task;
        for (TaskItem* ancestor = task->m_parentTask; ancestor != nullptr;
             ancestor = ancestor->m_parentTask) {
            if (!goesAlong(*ancestor))
                break;
            if (ancestor->m_project == &project)
                top = ancestor;
        }
        collectTree(*top, removal);
    }
    std::reverse(removal.tasks.begin(), removal.tasks.end());
    return removal;
}

Removal PlanningGraph::collect(ProjectPhase& phase) {
    Removal removal;
    if (goesAlong(phase)) {
        phase.m_leaving = true;
        removal.phases.push_back(&phase);
    }
    return removal;
}

Removal PlanningGraph::collect(TaskItem& task) {
    Removal removal;
    if (goesAlong(task))
        collectTree(task, removal);
    std::reverse(removal.tasks.begin(), removal.tasks.end());
    return removal;
}

Removal PlanningGraph::collect(TaskResource& resource) {
    Removal removal;
    if (goesAlong(resource)) {
        resource.m_leaving = true;
        removal.resources.push_back(&resource);
    }
    return removal;
}

template <class T>
void PlanningGraph::leave(EntityPool<T>& pool, const std::vector<T*>& removed) {
    if (removed.empty())
        return;
    for (T* entity : removed) {
        entity->m_context = nullptr;
        pool.byId.remove(entity->id().uuid());
        // One that was never saved leaves no trace.
        if (entity->m_stored)
            pool.deleted.push_back(entity->id().uuid());
    }
    const auto gone = [](const T* entity) { return entity->m_context == nullptr; };
    std::erase_if(pool.all, gone);
    std::erase_if(pool.created, gone);
    std::erase_if(pool.modified, gone);
    std::erase_if(pool.moved, gone);
}

void PlanningGraph::release(const Removal& removal) {
    leave(m_resources, removal.resources);
    leave(m_tasks, removal.tasks);
    leave(m_phases, removal.phases);
    leave(m_projects, removal.projects);
    Unlinker().unlink(removal);
}

void PlanningGraph::markWritten() {
    std::apply(
        [](auto&... pool) {
            const auto clean = [](auto& written) {
                for (Entity* entity : written) {
                    entity->m_stored = true;
                    entity->m_dirty = false;
                }
                written.clear();
            };
            ((clean(pool.created), clean(pool.modified), pool.moved.clear(), pool.deleted.clear()), ...);
        },
        pools());
}

bool PlanningGraph::hasChanges() const {
    return std::apply(
        [](const auto&... pool) {
            return ((!pool.created.empty() || !pool.modified.empty() || !pool.moved.empty() ||
                     !pool.deleted.empty()) ||
                    ...);
        },
        pools());
}

} // namespace norvin
